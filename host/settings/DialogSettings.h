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

    /// What becomes of what the dialog does not show, and nobody changes there.
    enum class Unshown {
        Stays,   ///< The dialog makes a change or a view.
        Replaced ///< It makes settings, which are whole.
    };

    /// What the dialog does not show, a sentence each.
    std::vector<std::string> notes(Unshown unshown) const;

    /// What the settings change that the dialog was left with. Those of a group that is off change nothing.
    ViewChange changeTo(const SettingsMap& chosen) const;

    /// Everything that the dialog shows once it was left with these settings. What it could not show of the
    /// document, and nobody touched, is none of it.
    ViewChange viewShown(const SettingsMap& chosen) const;

    /// Everything that settings say of the view, whatever document they are for. A list without a row, and a
    /// group that is off, say nothing.
    static ViewChange viewOf(const SettingsMap& settings);

private:
    void showPageMode();
    void showOpenAction();
    void showPreferences();
    void noteInvalid();
    void noteHidden();

    /// Of the document, in the dialog's terms.
    struct Note
    {
        std::string what;
        std::string unless; ///< It is changed; empty when that is not possible in the dialog.
        std::vector<ViewEntry> entries;
    };

    ViewChange m_present;
    SettingsMap m_map;
    std::vector<Note> m_notes;
};

} // namespace host
