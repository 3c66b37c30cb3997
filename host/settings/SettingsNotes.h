#pragma once

#include "SettingsFile.h"

#include <string>
#include <vector>

/// What a user should know of settings that the action takes as they are.
namespace host::settingsnotes {

/// What holds for every document, a sentence each: numbers that no dialog offers, groups that are all off, a
/// page that is not set.
std::vector<std::string> about(const SettingsMap& settings);

/// The rows that are left out and that the action takes for the first ones; empty when there are none.
std::string aboutRowsLeftOut(const std::vector<ActionEntry>& entries);

/// The page that the entries make documents open at, 0 when they leave that alone.
int openingPage(const std::vector<ActionEntry>& entries);

/// What becomes of the page in a document that does not have it; empty when it has.
std::string aboutPage(const std::vector<ActionEntry>& entries, int pageCount);

} // namespace host::settingsnotes
