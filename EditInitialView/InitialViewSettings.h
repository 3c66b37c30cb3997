#pragma once

#include "pdflibrary/ViewerPreferences.h"

#include <array>
#include <span>
#include <string_view>

/// The settings of an Initial View action: the keys of its map and the rows of its option tables. A list's
/// row is the number stored in the map, so neither a key nor a row ever changes its meaning: saved action
/// lists and favourites hold them. Everything is known when it is compiled, and needs no Qt; any thread.
///
///     for (const Key& each : keys)
///         if (each.label != nullptr)
///             std::cout << each.name << ": " << each.label << "\n";
namespace initialview {

/// The action's name, as the host lists it and as saved settings record it.
inline constexpr char actionName[] = "Initial View";

/// What the map holds at a key: a bool, an int, or a QString.
enum class ValueType { Flag, Number, Text };

/// The keys of the map; each is the object name of the dialog's widget that edits it. Those of viewer
/// preferences stand in pdflibrary/ViewerPreferences.h.
namespace key {
inline constexpr char LayoutAndMagn[] = "LayoutAndMagnCheckBox";
inline constexpr char NavigationTab[] = "NavigationTabComboBox";
inline constexpr char PageLayout[] = "PageLayoutComboBox";
inline constexpr char Magnification[] = "MagnificationComboBox";
inline constexpr char OpenToPage[] = "OpenToPageSpinBox";
inline constexpr char ViewerPrefs[] = "ViewerPrefsCheckBox";
inline constexpr const char* HideToolBars = pdflibrary::preference(pdflibrary::HideToolBars).key;
inline constexpr const char* HideMenuBar = pdflibrary::preference(pdflibrary::HideMenuBar).key;
inline constexpr const char* HideCtrlWindows = pdflibrary::preference(pdflibrary::HideWindowControls).key;
inline constexpr const char* ResizeWinToInitPage = pdflibrary::preference(pdflibrary::FitWindow).key;
inline constexpr const char* CenterWinOnScreen = pdflibrary::preference(pdflibrary::CenterWindow).key;
inline constexpr char OpenInFullScreen[] = "OpenInFullScreenCheckBox";
inline constexpr const char* Show = pdflibrary::preference(pdflibrary::TitleBar).key;
inline constexpr char ActionName[] = "ActionName";
} // namespace key

/// The page mode (pdflibrary::PageMode) of a navigation row, 0 to 4. No row gives full screen, which has a
/// setting of its own.
constexpr int pageModeOfRow(int row)
{
    return row == 3 || row == 4 ? row + 1 : row;
}

/// The navigation row of a page mode; that of full screen is no mode's, and reads as the row of
/// the layers panel.
constexpr int rowOfPageMode(int mode)
{
    return mode == pdflibrary::LayersPanel || mode == pdflibrary::AttachmentsPanel ? mode - 1 : mode;
}

/// The rows of the dialog's lists, in English. Of the navigation tab:
inline constexpr std::array navigationLabels{
    pdflibrary::pageModeLabels[pdflibrary::PageOnly],
    pdflibrary::pageModeLabels[pdflibrary::BookmarksPanel],
    pdflibrary::pageModeLabels[pdflibrary::PagesPanel],
    pdflibrary::pageModeLabels[pdflibrary::LayersPanel],
    pdflibrary::pageModeLabels[pdflibrary::AttachmentsPanel],
};

/// Of the page layout: the rows are pdflibrary::PageLayout.
inline constexpr std::array pageLayoutLabels{
    "Single Page",
    "One Column",
    "Two columns, odd-numbered pages on the left",
    "Two columns, odd-numbered pages on the right",
    "Two pages, odd-numbered pages on the left",
    "Two pages, odd-numbered pages on the right",
    "No preference set in document",
};

/// Of the magnification: what destinationTypeOfRow() and zoomOfRow() tell.
inline constexpr std::array magnificationLabels{
    "Default", "Fit Page", "Fit Width", "Fit Height", "Fit Visible", "25%",   "50%",
    "75%",     "100%",     "200%",      "400%",       "800%",        "1600%",
};

/// The destination type (pdflibrary::DestinationType) of a magnification row.
constexpr int destinationTypeOfRow(int row)
{
    return row <= 4 ? row + 1 : pdflibrary::Zoomed;
}

/// The zoom of a magnification row in percent, 0 for none.
constexpr int zoomOfRow(int row)
{
    return row <= 4 ? 0 : row <= 7 ? (row - 4) * 25 : 100 << (row - 8);
}

using pdflibrary::titleLabels;

/// What can be chosen as the page to open at; a document may have fewer or more.
inline constexpr int firstPage = 1;
inline constexpr int lastPage = 9999;

/// One key of the map.
struct Key
{
    const char* name; ///< Also the object name of the dialog's widget.
    ValueType type;
    /// The group that the setting belongs to, by its key: nothing of a group is applied while its flag is
    /// off. Null for the groups themselves and for what is no setting.
    const char* group;
    /// What the dialog and the program call it; null for what is no setting.
    const char* label;
    /// The rows of a list, whose value is the number of one; empty for what is none.
    std::span<const char* const> rows;
    /// Numbers lie in `lowest` to `highest`.
    int lowest;
    int highest;

    /// Whether other settings depend on its flag.
    constexpr bool isGroup() const { return type == ValueType::Flag && group == nullptr; }
};

/// What the rows of `keys` are made by: a check box,
constexpr Key flagKey(const char* name, const char* group, const char* label)
{
    return {name, ValueType::Flag, group, label, {}, 0, 1};
}

/// a list,
constexpr Key listKey(const char* name, const char* group, const char* label,
                      std::span<const char* const> rows)
{
    return {name, ValueType::Number, group, label, rows, 0, static_cast<int>(rows.size()) - 1};
}

/// a viewer preference, which is either of these.
constexpr Key preferenceKey(pdflibrary::ViewerPreference option)
{
    const pdflibrary::PreferenceRow row = pdflibrary::preference(option);
    return row.valueLabels.empty() ? flagKey(row.key, key::ViewerPrefs, row.label)
                                   : listKey(row.key, key::ViewerPrefs, row.label, row.valueLabels);
}

/// Every key, in the order in which the dialog writes them.
inline constexpr std::array keys{
    flagKey(key::LayoutAndMagn, nullptr, "Layout and Magnification"),
    listKey(key::NavigationTab, key::LayoutAndMagn, "Navigation tab", navigationLabels),
    listKey(key::PageLayout, key::LayoutAndMagn, "Page layout", pageLayoutLabels),
    listKey(key::Magnification, key::LayoutAndMagn, "Magnification", magnificationLabels),
    Key{key::OpenToPage, ValueType::Number, key::LayoutAndMagn, "Open to page", {}, firstPage, lastPage},
    flagKey(key::ViewerPrefs, nullptr, "Viewer Preferences"),
    preferenceKey(pdflibrary::HideToolBars),
    preferenceKey(pdflibrary::HideMenuBar),
    preferenceKey(pdflibrary::HideWindowControls),
    preferenceKey(pdflibrary::FitWindow),
    preferenceKey(pdflibrary::CenterWindow),
    flagKey(key::OpenInFullScreen, key::ViewerPrefs, "Open in full screen mode"),
    preferenceKey(pdflibrary::TitleBar),
    Key{key::ActionName, ValueType::Text, nullptr, nullptr, {}, 0, 0},
};

/// The key of a name, in `keys`; null where there is none. Capitals matter.
constexpr const Key* findKey(std::string_view name)
{
    for (const Key& each : keys)
        if (name == each.name)
            return &each;
    return nullptr;
}

} // namespace initialview
