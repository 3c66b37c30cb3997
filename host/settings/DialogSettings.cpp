#include "DialogSettings.h"

#include "host/change/ViewValues.h"

#include "EditInitialView/InitialViewSettings.h"

#include <algorithm>
#include <array>
#include <optional>

namespace host {

namespace {

using namespace initialview;

const int noRow = -1;

struct Preference
{
    const char* key;
    ViewEntry entry;
};

constexpr std::array preferences{
    Preference{key::HideToolBars, ViewEntry::HideToolbar},
    Preference{key::HideMenuBar, ViewEntry::HideMenubar},
    Preference{key::HideCtrlWindows, ViewEntry::HideWindowUI},
    Preference{key::ResizeWinToInitPage, ViewEntry::FitWindow},
    Preference{key::CenterWinOnScreen, ViewEntry::CenterWindow},
    Preference{key::Show, ViewEntry::DisplayDocTitle},
};

/// Preferences that have no widget.
constexpr std::array hiddenEntries{ViewEntry::Direction, ViewEntry::PrintScaling, ViewEntry::Duplex,
                                   ViewEntry::PickTrayByPDFSize, ViewEntry::NumCopies};

/// What a preference that is missing reads as.
int absentNumber(ViewEntry preference)
{
    return pdflibrary::findPreference(viewentries::describe(preference).preference).value().absent;
}

/// The row of a list or the page; nothing where none is chosen.
std::optional<int> chosenNumber(const SettingsMap& settings, const char* name)
{
    const Key& key = *findKey(name);
    const QVariant value = settings.value(name);
    const int number = value.toInt();
    const bool isChosen = value.isValid() && number >= key.lowest && number <= key.highest;
    return isChosen ? std::optional(number) : std::nullopt;
}

Magnification magnificationOf(int row)
{
    return {destinationTypeOfRow(row), double(zoomOfRow(row))};
}

int rowOf(const Magnification& magnification)
{
    for (int row = 0; row < static_cast<int>(magnificationLabels.size()); ++row)
        if (magnificationOf(row) == magnification)
            return row;
    return noRow;
}

void addLayout(const SettingsMap& settings, ViewChange& view)
{
    if (const auto row = chosenNumber(settings, key::NavigationTab); row)
        view.set(ViewEntry::PageMode, pageModeOfRow(*row));
    if (const auto row = chosenNumber(settings, key::PageLayout); row)
        view.set(ViewEntry::PageLayout, *row == pdflibrary::NoPageLayout ? ViewValue() : ViewValue(*row));
    if (const auto row = chosenNumber(settings, key::Magnification); row)
        view.set(ViewEntry::Zoom, magnificationOf(*row));
    if (const auto page = chosenNumber(settings, key::OpenToPage); page)
        view.set(ViewEntry::OpenPage, *page);
}

void addPreferences(const SettingsMap& settings, ViewChange& view)
{
    for (const Preference& each : preferences)
        if (const auto value = chosenNumber(settings, each.key); value)
            view.set(each.entry, *value);
    if (!settings.value(key::OpenInFullScreen).toBool())
        return;
    if (const auto panel = view[ViewEntry::PageMode]; panel) // shows again when full screen is left
        view.set(ViewEntry::NonFullScreenPageMode, *panel);
    view.set(ViewEntry::PageMode, pdflibrary::FullScreen);
}

} // namespace

DialogSettings::DialogSettings(const ViewChange& present) : m_present(present)
{
    m_map = {{key::LayoutAndMagn, true}, {key::ViewerPrefs, true}};
    showPageMode();
    m_map.insert(key::PageLayout, m_present.number(ViewEntry::PageLayout, pdflibrary::NoPageLayout));
    showOpenAction();
    showPreferences();
    noteInvalid();
    noteHidden();
}

std::vector<std::string> DialogSettings::notes(Unshown unshown) const
{
    std::vector<std::string> notes;
    for (const Note& each : m_notes)
        notes.push_back(each.what + (each.unless.empty() ? ""
                                     : unshown == Unshown::Replaced
                                         ? "; the settings that OK makes replace it"
                                         : "; it stays unless " + each.unless));
    return notes;
}

/// In full screen the panel is the one that shows when it is left.
void DialogSettings::showPageMode()
{
    const bool isFullScreen =
        m_present.number(ViewEntry::PageMode, pdflibrary::PageOnly) == pdflibrary::FullScreen;
    const ViewEntry panel = isFullScreen ? ViewEntry::NonFullScreenPageMode : ViewEntry::PageMode;
    m_map.insert(key::NavigationTab, rowOfPageMode(m_present.number(panel, pdflibrary::PageOnly)));
    m_map.insert(key::OpenInFullScreen, isFullScreen);
    const int after = m_present.number(ViewEntry::NonFullScreenPageMode, noRow);
    if (!isFullScreen && after != noRow &&
        after != m_present.number(ViewEntry::PageMode, pdflibrary::PageOnly))
        m_notes.push_back({"the window cannot show its panel after full screen, " +
                               viewvalues::wordOf(ViewEntry::NonFullScreenPageMode, after),
                           "full screen and another panel are chosen",
                           {ViewEntry::NonFullScreenPageMode}});
}

void DialogSettings::showOpenAction()
{
    const int page = m_present.number(ViewEntry::OpenPage, firstPage);
    const std::optional<ViewValue>& zoom = m_present[ViewEntry::Zoom];
    const auto* magnification = zoom ? std::get_if<Magnification>(&*zoom) : nullptr;
    const auto& opening = m_present[ViewEntry::OpenPage];
    const auto* other = opening ? std::get_if<OtherAction>(&*opening) : nullptr;
    const int row =
        other != nullptr ? noRow : rowOf(magnification != nullptr ? *magnification : Magnification());
    m_map.insert(key::Magnification, row);
    m_map.insert(key::OpenToPage, std::clamp(page, firstPage, lastPage));
    if (other != nullptr)
        m_notes.push_back({"it opens with an action (" + other->type + ") that the window cannot show",
                           "a magnification or another page is chosen",
                           {ViewEntry::OpenPage, ViewEntry::Zoom}});
    else if (row == noRow)
        m_notes.push_back(
            {"the window has no row for its magnification, " + viewvalues::wordOf(ViewEntry::Zoom, *zoom),
             "one is chosen",
             {ViewEntry::Zoom}});
    if (page > lastPage)
        m_notes.push_back({"the window cannot show its opening page, " + std::to_string(page),
                           "another is chosen",
                           {ViewEntry::OpenPage}});
}

void DialogSettings::showPreferences()
{
    for (const Preference& each : preferences) {
        const int value = m_present.number(each.entry, absentNumber(each.entry));
        const bool isFlag = findKey(each.key)->type == ValueType::Flag;
        m_map.insert(each.key, isFlag ? QVariant(value == 1) : QVariant(value));
    }
}

/// The dialog shows it as if it were missing.
void DialogSettings::noteInvalid()
{
    Note note{"what it has is invalid: ", "another is chosen", {}};
    for (const viewentries::Description& each : viewentries::all()) {
        const bool isHidden =
            std::find(hiddenEntries.begin(), hiddenEntries.end(), each.entry) != hiddenEntries.end();
        if (isHidden || m_present[each.entry] != ViewValue(Invalid()))
            continue;
        note.what += (note.entries.empty() ? "" : ", ") + viewentries::label(each.entry);
        note.entries.push_back(each.entry);
    }
    if (!note.entries.empty())
        m_notes.push_back(std::move(note));
}

void DialogSettings::noteHidden()
{
    std::string list;
    for (const ViewEntry each : hiddenEntries)
        if (const auto& value = m_present[each]; value && *value != ViewValue(Unset()))
            list += (list.empty() ? "" : ", ") + viewentries::label(each) + " (" +
                    viewvalues::told(each, *value) + ")";
    if (!list.empty())
        m_notes.push_back(
            {"the window does not show everything that it has, and leaves it: " + list, {}, {}});
}

ViewChange DialogSettings::changeTo(const SettingsMap& chosen) const
{
    SettingsMap settings = m_map;
    for (const Key& each : keys)
        if (each.group != nullptr && chosen.value(each.group).toBool())
            settings.insert(each.name, chosen.value(each.name));
    ViewChange change = viewOf(settings);
    ViewChange shown = viewOf(m_map);
    shown.set(ViewEntry::NonFullScreenPageMode,
              m_present.number(ViewEntry::NonFullScreenPageMode, pdflibrary::PageOnly));
    const bool isPanelChosen = settings.value(key::NavigationTab) != m_map.value(key::NavigationTab);
    if (!isPanelChosen && m_present.number(ViewEntry::NonFullScreenPageMode, noRow) != noRow)
        change.remove(ViewEntry::NonFullScreenPageMode); // full screen alone was chosen
    for (const viewentries::Description& each : viewentries::all())
        if (change[each.entry] == shown[each.entry])
            change.remove(each.entry);
    return change;
}

ViewChange DialogSettings::viewShown(const SettingsMap& chosen) const
{
    ViewChange view = viewOf(chosen);
    const ViewChange atFirst = viewOf(m_map);
    for (const Note& note : m_notes)
        for (const ViewEntry each : note.entries)
            if (view[each] == atFirst[each])
                view.remove(each);
    return view;
}

ViewChange DialogSettings::viewOf(const SettingsMap& settings)
{
    ViewChange view;
    if (settings.value(key::LayoutAndMagn).toBool())
        addLayout(settings, view);
    if (settings.value(key::ViewerPrefs).toBool())
        addPreferences(settings, view);
    return view;
}

} // namespace host
