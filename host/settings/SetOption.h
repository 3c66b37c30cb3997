#pragma once

#include "SettingsMap.h"

#include <string>
#include <vector>

namespace host {

/// One setting given as a word, KEY=VALUE.
namespace setoption {

/// Puts the setting into the map. A flag takes true/false, yes/no, on/off, 1/0; a list its row or the row's
/// label; a page its number. Anything else is a UsageError that names the choices.
void apply(const std::string& word, SettingsMap& map);

/// The settings as words, KEY=VALUE, that `apply` takes and that need no quotes in a shell.
/// \param[out] leftOut the keys that are missing or whose value no word can give.
std::vector<std::string> wordsOf(const SettingsMap& map, std::vector<std::string>& leftOut);

/// The keys, a line each, with what they take; for the help text.
std::string describeKeys();

} // namespace setoption

} // namespace host
