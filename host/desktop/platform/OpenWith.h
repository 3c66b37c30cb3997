#pragma once

#include <QByteArray>

/// Hands a document to other programs.
namespace host::desktop::openwith {

/// Opens it in the desktop's viewer. \returns whether somebody took it.
bool viewer(const QByteArray& path);

/// Shows it in the desktop's file manager, selected where that is possible, else its folder.
bool folder(const QByteArray& path);

/// Shows what is in the folder.
bool contents(const QByteArray& folder);

} // namespace host::desktop::openwith
