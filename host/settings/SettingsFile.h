#pragma once

#include "SettingsMap.h"

#include <string>
#include <vector>

namespace host {

/// One action with its settings, as it is run over a document.
struct ActionEntry
{
    QString action;
    SettingsMap settings;
    /// In an action list, the number of the entry's keys.
    int number = 0;
};

/// What a file of stored settings holds. Entries of other actions have no settings.
struct StoredSettings
{
    /// As its user named it; may differ from the file's name. Empty where the file does not tell.
    QString name;
    /// Of an action list.
    QString category;
    std::vector<ActionEntry> entries;
};

/// Reads the files in which settings are stored. What cannot be read whole and understood is refused with a
/// UsageError that names the file and the reason: a file that is not a regular one or above 16 MiB, a missing
/// key, a value that is not a settings map, an empty map, settings of another action.
namespace settingsfile {

/// The entries of an action list (.xqq) in the order of their numbers.
std::vector<ActionEntry> readActionList(const std::string& path);

/// The settings of a favourite (.ini).
std::vector<ActionEntry> readFavorite(const std::string& path);

/// The settings of a tool settings file (.tsf).
std::vector<ActionEntry> readToolSettings(const std::string& path);

/// All of an action list. Other actions are no reason to refuse it.
StoredSettings describeActionList(const std::string& path);

/// The same of a favourite.
StoredSettings describeFavorite(const std::string& path);

} // namespace settingsfile

} // namespace host
