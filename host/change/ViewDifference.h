#pragma once

#include "ViewChange.h"

#include <QJsonObject>

#include <string>
#include <vector>

namespace host {

/// An entry that a change has altered, with what it was and what it is, in words.
struct ViewDifference
{
    ViewEntry entry;
    std::string before;
    std::string after;
};

namespace viewdifference {

/// The word for a value that a document has, or "unset".
std::string wordOf(ViewEntry entry, const ViewValue& value);

/// "page mode: unset -> use-outlines; title: unset -> Manual"
std::string inWords(const std::vector<ViewDifference>& differences);

/// What the entries were, or are, by the names of their options.
QJsonObject before(const std::vector<ViewDifference>& differences);
QJsonObject after(const std::vector<ViewDifference>& differences);

} // namespace viewdifference

} // namespace host
