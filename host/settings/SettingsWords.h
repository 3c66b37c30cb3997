#pragma once

#include "SettingsMap.h"

#include <string>

namespace host {

/// What a document looks like to a reader once the settings are applied to it; in lines of a label and what
/// it says, each with a line feed. May hold texts of the settings as they are.
std::string settingsInWords(const SettingsMap& settings);

} // namespace host
