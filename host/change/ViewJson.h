#pragma once

#include "ViewChange.h"

#include <QJsonObject>

#include <string>

/// Changes as JSON, with the names that "quintar show --json" prints: pageMode, pageLayout, openAction
/// with page, type and zoom, viewerPreferences, title and lang. null stands for an entry that is taken
/// away, and in a document's view for one that is missing or invalid; the latter's names are listed in
/// `invalid`. An open action that shows no page has its `action` alone. titleFromFileName and
/// titleIfMissing say what no document's view does.
namespace host::viewjson {

/// The change of what the object names; facts about a document that say nothing of how it opens (its file,
/// its number of pages) are passed over. Every document's view is a change. Anything else is a UsageError.
ViewChange parse(const QJsonObject& object);

/// Reads a change from a file, "-" for standard input. Throws UsageError with the file's name.
ViewChange readFile(const std::string& path);

QJsonObject write(const ViewChange& change);

} // namespace host::viewjson
