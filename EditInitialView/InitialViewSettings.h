#pragma once

#include "pdflibrary/ViewNumbers.h"

#include <array>

/// The settings of an Initial View action: the keys of its map and the rows of its option tables. A list's
/// row is the number stored in the map.
namespace initialview {

/// The action's name, as the host lists it and as saved settings record it.
inline constexpr char actionName[] = "Initial View";

enum class ValueType { Flag, Number, Text };

/// The keys of the map; each is the object name of the dialog's widget that edits it.
namespace key {
inline constexpr char LayoutAndMagn[] = "LayoutAndMagnCheckBox";
inline constexpr char NavigationTab[] = "NavigationTabComboBox";
inline constexpr char PageLayout[] = "PageLayoutComboBox";
inline constexpr char Magnification[] = "MagnificationComboBox";
inline constexpr char OpenToPage[] = "OpenToPageSpinBox";
inline constexpr char ViewerPrefs[] = "ViewerPrefsCheckBox";
inline constexpr char HideToolBars[] = "HideToobarsCheckBox";
inline constexpr char HideMenuBar[] = "HideMenuBarCheckBox";
inline constexpr char HideCtrlWindows[] = "HideCtrlWindowsCheckBox";
inline constexpr char ResizeWinToInitPage[] = "ResizeWinToInitPageCheckBox";
inline constexpr char CenterWinOnScreen[] = "CenterWinOnScreenCheckBox";
inline constexpr char OpenInFullScreen[] = "OpenInFullScreenCheckBox";
inline constexpr char Show[] = "ShowComboBox";
inline constexpr char ActionName[] = "ActionName";
} // namespace key

inline constexpr std::array navigationLabels{
    "Page Only",
    "Bookmarks Panel and Page",
    "Pages Panel and Page",
    "Conten Group Panel and Page",
    "Attachments Panel and Page",
};

inline constexpr std::array pageLayoutLabels{
    "Single Page",
    "One Column",
    "Two columns, odd-numbered pages on the left",
    "Two columns, odd-numbered pages on the right",
    "Two pages, odd-numbered pages on the left",
    "Two pages, odd-numbered pages on the right",
    "No preference set in document",
};

inline constexpr std::array magnificationLabels{
    "Default", "Fit Page", "Fit Width", "Fit Height", "Fit Visible", "25%",   "50%",
    "75%",     "100%",     "200%",      "400%",       "800%",        "1600%",
};

inline constexpr std::array titleLabels{"File Name", "Document Title"};

inline constexpr int firstPage = 1;
inline constexpr int lastPage = 9999;

/// One key of the map. Numbers lie in `lowest` to `highest`.
struct Key
{
    const char* name;
    ValueType type;
    int lowest;
    int highest;
};

template <class Labels>
constexpr int lastRow(const Labels& labels)
{
    return static_cast<int>(labels.size()) - 1;
}

/// Every key, in the order in which the dialog writes them.
// clang-format off
inline constexpr std::array keys{
    Key{key::LayoutAndMagn,       ValueType::Flag,   0,         1},
    Key{key::NavigationTab,       ValueType::Number, 0,         lastRow(navigationLabels)},
    Key{key::PageLayout,          ValueType::Number, 0,         lastRow(pageLayoutLabels)},
    Key{key::Magnification,       ValueType::Number, 0,         lastRow(magnificationLabels)},
    Key{key::OpenToPage,          ValueType::Number, firstPage, lastPage},
    Key{key::ViewerPrefs,         ValueType::Flag,   0,         1},
    Key{key::HideToolBars,        ValueType::Flag,   0,         1},
    Key{key::HideMenuBar,         ValueType::Flag,   0,         1},
    Key{key::HideCtrlWindows,     ValueType::Flag,   0,         1},
    Key{key::ResizeWinToInitPage, ValueType::Flag,   0,         1},
    Key{key::CenterWinOnScreen,   ValueType::Flag,   0,         1},
    Key{key::OpenInFullScreen,    ValueType::Flag,   0,         1},
    Key{key::Show,                ValueType::Number, 0,         lastRow(titleLabels)},
    Key{key::ActionName,          ValueType::Text,   0,         0},
};
// clang-format on

/// The page mode of a navigation row. No row gives full screen, which has a setting of its own.
constexpr int pageModeOfRow(int row)
{
    return row == 3 || row == 4 ? row + 1 : row;
}

/// The navigation row of a page mode.
constexpr int rowOfPageMode(int mode)
{
    return mode == pdflibrary::LayersPanel || mode == pdflibrary::AttachmentsPanel ? mode - 1 : mode;
}

} // namespace initialview
