#pragma once

#include "StoredVariant.h"

#include <string>

namespace host {

/// One setting given as a word, KEY=VALUE.
namespace setoption {

/// Puts the setting into the map. A flag takes true/false, yes/no, on/off, 1/0; a list its row or the row's
/// label; a page its number. Anything else is a UsageError that names the choices.
void apply(const std::string& word, SettingsMap& map);

/// The keys, a line each, with what they take; for the help text.
std::string describeKeys();

} // namespace setoption

} // namespace host
