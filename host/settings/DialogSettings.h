#pragma once

#include "SettingsMap.h"

#include "host/change/ViewChange.h"

#include <string>
#include <vector>

namespace host {

/// How a document opens, as the action's dialog shows it, and what is changed by choosing something else there.
class DialogSettings
{
public:
    /// \param present every entry that the dialog shows, Unset where the document has none.
    explicit DialogSettings(const ViewChange& present);

    /// What the dialog is to start with. A list is at -1 where no row is right.
    const SettingsMap& map() const { return m_map; }

    /// What the dialog does not show, a sentence each; it stays unless it is changed.
    const std::vector<std::string>& notes() const { return m_notes; }

    /// What the settings change that the dialog was left with. Those of a group that is off change nothing.
    ViewChange changeTo(const SettingsMap& chosen) const;

    /// Everything that settings say of the view, whatever document they are for. A list without a row, and a
    /// group that is off, say nothing.
    static ViewChange viewOf(const SettingsMap& settings);

private:
    void showPageMode();
    void showOpenAction();
    void showPreferences();
    void noteHidden();

    int number(ViewEntry entry, int absent) const;

    ViewChange m_present;
    SettingsMap m_map;
    std::vector<std::string> m_notes;
};

} // namespace host
