#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <vector>

/// The keys of the files that keep an action's settings, and those that the save dialogs add to a settings
/// map. All files are INI files in QSettings' format with their keys at the top level; a settings map is one
/// value, a QVariantMap. The keys are part of the files' format: none is ever renamed.
namespace storedkeys {

/// Action lists, "*.xqq": a named series of actions, in CUtils::GetSequenceFolder().
namespace actionlist {
/// Of the file's name; the rest of it is made from the list's name, and may differ from it.
inline constexpr char suffix[] = ".xqq";
/// What people call the list, a text.
inline constexpr char sequenceName[] = "SequenceName";
/// The group that the host shows it in, a text.
inline constexpr char sequenceCategory[] = "SequenceCategory";
/// The host's own; 0 in a new list.
inline constexpr char ioSettings[] = "IOSettings";

/// The key of entry `number`, from 0, that holds the action's name. An entry is present when this key is.
inline QString actionNameKey(int number)
{
    return QStringLiteral("ActionName") + QString::number(number);
}

/// The key of the same entry's settings map.
inline QString actionPrefsKey(int number)
{
    return QStringLiteral("ActionPrefs") + QString::number(number);
}

/// \param keys all keys of a file, in any order.
/// \returns the numbers of the entries that are present, ascending; there may be gaps between them.
inline std::vector<int> entryNumbers(const QStringList& keys)
{
    std::vector<int> numbers;
    for (const QString& key : keys) {
        bool whole = false;
        const int number = key.mid(actionNameKey(0).size() - 1).toInt(&whole);
        if (whole && key == actionNameKey(number))
            numbers.push_back(number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}
} // namespace actionlist

/// Favourites, "*.ini": a settings map with an icon, a QImage, in CUtils::GetCollectionsFolder().
namespace favorite {
/// Of the file's name; the rest of it is the name that people gave, as far as a file can have it.
inline constexpr char suffix[] = ".ini";
/// The settings map; its "CollectionName" is what people call the favourite.
inline constexpr char actionPrefs[] = "ActionPrefs";
/// At most 42 by 42 pixels.
inline constexpr char actionIcon[] = "ActionIcon";
} // namespace favorite

/// Tool settings files, "*.tsf": a settings map alone, in whatever folder a person chose.
namespace toolsettings {
/// That map, as the dialog writes it.
inline constexpr char toolSettings[] = "ToolSettings";
} // namespace toolsettings

/// What the save dialogs put into a settings map beside the action's own keys, all texts but for one bool.
/// Those of a list are not stored with the settings.
namespace request {
/// The action's name, which an action list keeps in a key of its own.
inline constexpr char actionName[] = "ActionName";
/// Of a list to be stored: its name, its category, and whether a list of that name gives way (else the action
/// becomes one more entry of it).
inline constexpr char actionListName[] = "ActionListName";
inline constexpr char actionListCategory[] = "ActionListCategory";
inline constexpr char actionListOverwrite[] = "ActionListOverwrite";
/// The name of a favourite.
inline constexpr char collectionName[] = "CollectionName";
} // namespace request

} // namespace storedkeys
