#pragma once

#include <QByteArray>
#include <QVector>

class QMimeData;

/// Names of files and folders that come from elsewhere, as bytes: they need not be text.
namespace host::desktop::droppednames {

/// Of what is dropped or pasted: addresses of local files, else a path or an address a line.
QVector<QByteArray> of(const QMimeData& data);

/// Made absolute from the current folder.
QByteArray absolute(const QByteArray& name);

} // namespace host::desktop::droppednames
