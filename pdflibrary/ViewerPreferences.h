#pragma once

#include "ViewNumbers.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <optional>
#include <span>

/// The viewer preferences (ISO 32000-1, 12.2), each under all of its names. Library file, action, dialog and
/// program read this one table, so a further preference is a further row. Everything is known when it is
/// compiled, and the header stands alone; any thread.
///
///     for (const PreferenceRow& row : viewerPreferences)
///         std::cout << row.label << ": " << library.GetViewerPreferences(row.option) << "\n";
namespace pdflibrary {

/// One entry of a document's /ViewerPreferences. It is a yes or no unless it has names or is a number.
struct PreferenceRow
{
    /// The option of GetViewerPreferences and SetViewerPreferences.
    ViewerPreference option;
    /// The entry's key in the document, with its slash.
    const char* pdfName;
    /// The names that the entry takes, at the library's number for each; an empty one is never taken. Empty
    /// for an entry that is true (1) or false (0).
    std::span<const char* const> names;
    /// The key in an action's settings; null for one that has no setting of its own.
    const char* key;
    /// What the dialog and the program call it, in English.
    const char* label;
    /// What they call its values, by number, in English; empty for yes and no, and without a
    /// list in the dialog.
    std::span<const char* const> valueLabels;
    /// What a missing entry reads as. Setting an entry that is missing to this number changes nothing.
    int absent = 0;
    /// Whether it is a number, from 1 to what an int holds.
    bool isNumber = false;

    /// The largest number that it takes, the smallest being 0, or 1 for a number.
    constexpr int highest() const
    {
        return isNumber ? INT_MAX : names.empty() ? 1 : static_cast<int>(names.size()) - 1;
    }
    /// Whether the library takes a number for it. NoPreference, which removes the entry, is none of these.
    constexpr bool takes(int value) const
    {
        return value >= (isNumber ? 1 : 0) && value <= highest() &&
               (names.empty() || *names[static_cast<std::size_t>(value)] != '\0');
    }
};

/// What dialog and program call the values of /DisplayDocTitle, by number.
inline constexpr std::array titleLabels{"File Name", "Document Title"};

/// Values of /NonFullScreenPageMode, by number: the page modes but FullScreen.
inline constexpr std::array nonFullScreenModeNames{"/UseNone", "/UseOutlines", "/UseThumbs",
                                                   "",         "/UseOC",       "/UseAttachments"};

/// Values of /Direction, /PrintScaling and /Duplex, by number. All of them mean something of their own: none
/// stands for an entry that is missing.
inline constexpr std::array directionNames{"/L2R", "/R2L"};
inline constexpr std::array printScalingNames{"/None", "/AppDefault"};
inline constexpr std::array duplexNames{"/Simplex", "/DuplexFlipShortEdge", "/DuplexFlipLongEdge"};

/// What dialog and program call the page modes, by number. `--set` takes these words, so each stays
/// as it is spelt.
inline constexpr std::array pageModeLabels{
    "Page Only",   "Bookmarks Panel and Page",    "Pages Panel and Page",
    "Full screen", "Conten Group Panel and Page", "Attachments Panel and Page",
};

/// Those that the dialog shows, each by itself or with the page mode, in the order of their options. The
/// first five are set before full screen, the title bar after it.
// clang-format off
inline constexpr std::array viewerPreferences{
    PreferenceRow{HideToolBars,       "/HideToolbar",           {}, "HideToobarsCheckBox",        "Hide tool bars",                {}},
    PreferenceRow{HideMenuBar,        "/HideMenubar",           {}, "HideMenuBarCheckBox",        "Hide menu bar",                 {}},
    PreferenceRow{HideWindowControls, "/HideWindowUI",          {}, "HideCtrlWindowsCheckBox",    "Hide control windows",          {}},
    PreferenceRow{FitWindow,          "/FitWindow",             {}, "ResizeWinToInitPageCheckBox", "Resize window to initial page", {}},
    PreferenceRow{CenterWindow,       "/CenterWindow",          {}, "CenterWinOnScreenCheckBox",  "Center window on screen",       {}},
    PreferenceRow{TitleBar,           "/DisplayDocTitle",       {}, "ShowComboBox",               "Show",                          titleLabels},
    PreferenceRow{NonFullScreenMode,  "/NonFullScreenPageMode", nonFullScreenModeNames, nullptr,  "After full screen",             pageModeLabels},
};

/// Those that have no row in the dialog. A missing one reads as NoPreference, for no value means the same.
inline constexpr std::array furtherPreferences{
    PreferenceRow{Direction,         "/Direction",         directionNames,    nullptr, "Reading direction",      {}, NoPreference},
    PreferenceRow{PrintScaling,      "/PrintScaling",      printScalingNames, nullptr, "Print scaling",          {}, NoPreference},
    PreferenceRow{Duplex,            "/Duplex",            duplexNames,       nullptr, "Two-sided printing",     {}, NoPreference},
    PreferenceRow{PickTrayByPDFSize, "/PickTrayByPDFSize", {},                nullptr, "Paper tray by page size", {}, NoPreference},
    PreferenceRow{NumCopies,         "/NumCopies",         {},                nullptr, "Copies",                 {}, NoPreference, true},
};
// clang-format on

/// All of them, in the order of their options, for what goes over every preference.
inline constexpr auto allPreferences = [] {
    std::array<PreferenceRow, viewerPreferences.size() + furtherPreferences.size()> all{};
    std::ranges::copy(furtherPreferences, std::ranges::copy(viewerPreferences, all.begin()).out);
    return all;
}();

/// The row of an option, by value; its texts live as long as the program.
/// \param option any number, as a caller of the library gives it.
/// \returns none for a number that has no row, such as one with AsWritten added to it.
constexpr std::optional<PreferenceRow> findPreference(int option)
{
    for (const PreferenceRow& row : allPreferences)
        if (row.option == option)
            return row;
    return {};
}

/// The row of an option, for those that the caller knows to be there.
///
///     constexpr const char* name = preference(HideMenuBar).pdfName; // "/HideMenubar"
///
/// \throws std::bad_optional_access for an option without one; where it is a constant, it does not compile.
constexpr PreferenceRow preference(ViewerPreference option)
{
    return findPreference(option).value();
}

} // namespace pdflibrary
