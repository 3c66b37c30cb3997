#pragma once

#include "host/settings/SettingsFile.h"

#include <cstddef>
#include <string>
#include <vector>

namespace host {

class OptionParser;

/// The options that name stored settings: --list, --favorite and --tool-settings.
class StoredOptions
{
public:
    /// The object must outlive the parser.
    void take(OptionParser& parser);

    /// How many are given. What follows is for one alone.
    std::size_t count() const { return m_lists.size() + m_favorites.size() + m_toolSettings.size(); }
    bool namesList() const { return !m_lists.empty(); }
    /// The file that is meant. Throws UsageError when a name does not tell.
    std::string find() const;
    /// The settings in that file: of a list all entries, else one. Throws UsageError.
    std::vector<ActionEntry> read(const std::string& file) const;

private:
    std::vector<std::string> m_lists;
    std::vector<std::string> m_favorites;
    std::vector<std::string> m_toolSettings;
};

} // namespace host
