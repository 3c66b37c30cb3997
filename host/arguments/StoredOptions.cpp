#include "StoredOptions.h"

#include "OptionParser.h"
#include "host/settings/SettingsFolder.h"

namespace host {

void StoredOptions::take(OptionParser& parser)
{
    parser.takeValue("list", appendTo(m_lists));
    parser.takeValue("favorite", appendTo(m_favorites));
    parser.takeValue("tool-settings", appendTo(m_toolSettings));
}

std::string StoredOptions::find() const
{
    if (namesList())
        return SettingsFolder::actionLists().find(m_lists.front());
    if (!m_favorites.empty())
        return SettingsFolder::favorites().find(m_favorites.front());
    return m_toolSettings.front();
}

std::vector<ActionEntry> StoredOptions::read(const std::string& file) const
{
    if (namesList())
        return settingsfile::readActionList(file);
    if (!m_favorites.empty())
        return settingsfile::readFavorite(file);
    return settingsfile::readToolSettings(file);
}

} // namespace host
