#pragma once

#include "host/change/ViewChange.h"

#include <QString>

#include <vector>

/// What the window calls the entries of a view and their values, in the user's language.
namespace host::desktop::viewtexts {

/// "Panel"
QString nameOf(ViewEntry entry);

/// What the setting does and which viewers follow it, in a few sentences.
QString helpOf(ViewEntry entry);

/// "Bookmarks"; for an unset entry what viewers then do, as "Not set".
QString valueOf(ViewEntry entry, const ViewValue& value);

/// "Not set"
QString unset();

/// The values that are offered, in their order; none for numbers and texts.
std::vector<ViewValue> choices(ViewEntry entry);

/// The name of an open action that shows no page: "runs a script".
QString actionOf(const QString& kind);

} // namespace host::desktop::viewtexts
