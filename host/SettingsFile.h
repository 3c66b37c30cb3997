#pragma once

#include "StoredVariant.h"

#include <string>
#include <vector>

namespace host {

/// One action with its settings, as it is run over a document.
struct ActionEntry
{
    QString action;
    SettingsMap settings;
};

/// Reads the files in which settings are stored. What cannot be read whole and understood is refused with a
/// UsageError that names the file and the reason: a file that is not a regular one or above 16 MiB, a missing
/// key, a value that is not a settings map, an empty map (a cut-off one reads as such), settings of another
/// action.
namespace settingsfile {

/// The entries of an action list (.xqq) in the order of their numbers.
std::vector<ActionEntry> readActionList(const std::string& path);

/// The settings of a favourite (.ini).
std::vector<ActionEntry> readFavorite(const std::string& path);

/// The settings of a tool settings file (.tsf).
std::vector<ActionEntry> readToolSettings(const std::string& path);

} // namespace settingsfile

} // namespace host
