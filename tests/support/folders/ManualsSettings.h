#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

/// The settings that tests/data/manuals.xqq, manuals.ini and manuals.tsf hold, written once by the program:
/// documents open on page 2 at the page's width, with bookmarks, in a window centred under their title.
inline QMap<QString, QVariant> manualsSettings()
{
    return {
        {"LayoutAndMagnCheckBox", true},
        {"NavigationTabComboBox", 1},
        {"PageLayoutComboBox", 1},
        {"MagnificationComboBox", 2},
        {"OpenToPageSpinBox", 2},
        {"ViewerPrefsCheckBox", true},
        {"HideToobarsCheckBox", false},
        {"HideMenuBarCheckBox", false},
        {"HideCtrlWindowsCheckBox", false},
        {"ResizeWinToInitPageCheckBox", true},
        {"CenterWinOnScreenCheckBox", true},
        {"OpenInFullScreenCheckBox", false},
        {"ShowComboBox", 1},
        {"ActionName", "Initial View"},
    };
}
