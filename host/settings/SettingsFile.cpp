#include "SettingsFile.h"

#include "IniText.h"
#include "host/files/FileDescriptor.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"
#include "shared/lists/SettingsFiles.h"

#include <algorithm>
#include <cerrno>

namespace host::settingsfile {

namespace {

using namespace settingsfiles;

const std::size_t largestFile = 16 << 20;
const std::string entryNameKey = "ActionName";
const std::string entrySettingsKey = "ActionPrefs";

[[noreturn]] void refuse(const std::string& path, const QString& reason)
{
    throw UsageError(path + ": " + reason.toStdString());
}

IniText readIni(const std::string& path)
{
    const FileDescriptor file = openRegularFile(path);
    std::string bytes;
    if (!file.isOpen() || !readAll(file.get(), bytes, largestFile))
        throw UsageError(path + ": " +
                         (errno == EFBIG ? "too large for a settings file" : systemError(errno)));
    return IniText(bytes);
}

SettingsMap readMap(const IniText& ini, const std::string& path, const std::string& key)
{
    if (ini.values().count(key) == 0)
        refuse(path, QString("not a settings file of this kind: it has no \"%1\"").arg(key.c_str()));
    const auto where = [&](const QString& problem) {
        return QString("the settings in \"%1\" cannot be read: %2").arg(key.c_str(), problem);
    };
    const std::optional<QString> text = ini.text(key);
    QString problem = "it is damaged";
    const std::optional<SettingsMap> map =
        text ? StoredVariant::decodeMap(*text, problem) : std::optional<SettingsMap>();
    if (!map)
        refuse(path, where(problem));
    if (map->isEmpty())
        refuse(path, where("it is empty"));
    return *map;
}

bool hasKnownKey(const SettingsMap& map)
{
    return std::any_of(initialview::keys.begin(), initialview::keys.end(),
                       [&](const initialview::Key& key) { return map.contains(key.name); });
}

/// The action's name; empty where the settings do not tell and are none of ours.
QString actionOf(const SettingsMap& map)
{
    const QString ours = hasKnownKey(map) ? initialview::actionName : "";
    const QString action = map.value(initialview::key::ActionName, ours).toString();
    return action == initialview::actionName ? ours : action;
}

std::vector<ActionEntry> readSingle(const std::string& path, const std::string& key)
{
    const SettingsMap map = readMap(readIni(path), path, key);
    const QString action = actionOf(map);
    if (action != initialview::actionName)
        refuse(path,
               QString("these are settings of another action%1; only \"%2\" can be run")
                   .arg(action.isEmpty() ? QString() : " (\"" + action + "\")", initialview::actionName));
    return {{action, map}};
}

/// The numbers of the list's entries, ascending.
std::vector<int> entryNumbers(const IniText& ini)
{
    std::vector<int> numbers;
    for (const auto& [key, value] : ini.values()) {
        if (key.compare(0, entryNameKey.size(), entryNameKey) != 0)
            continue;
        bool whole = false;
        const QString digits = QString::fromStdString(key.substr(entryNameKey.size()));
        const int number = digits.toInt(&whole);
        if (whole && QString::number(number) == digits)
            numbers.push_back(number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

QString textOf(const IniText& ini, const std::string& key)
{
    return unmarkedText(ini.text(key).value_or(QString()));
}

StoredSettings describe(const std::string& path, const IniText& ini)
{
    StoredSettings list{textOf(ini, actionlist::sequenceName), textOf(ini, actionlist::sequenceCategory), {}};
    for (const int number : entryNumbers(ini)) {
        const QString action = textOf(ini, entryNameKey + std::to_string(number));
        const bool ours = action == initialview::actionName;
        list.entries.push_back(
            {action, ours ? readMap(ini, path, entrySettingsKey + std::to_string(number)) : SettingsMap(),
             number});
    }
    if (list.entries.empty())
        refuse(path, "not an action list: it has no \"ActionName0\"");
    return list;
}

void refuseOtherActions(const std::string& path, const IniText& ini)
{
    QStringList others;
    for (const int number : entryNumbers(ini)) {
        const QString name = textOf(ini, entryNameKey + std::to_string(number));
        if (name != initialview::actionName)
            others += QString("entry %1 is \"%2\"").arg(number).arg(name);
    }
    if (!others.isEmpty())
        refuse(path, QString("the list holds other actions, and only \"%1\" can be run: %2")
                         .arg(initialview::actionName, others.join(", ")));
}

} // namespace

std::vector<ActionEntry> readActionList(const std::string& path)
{
    const IniText ini = readIni(path);
    refuseOtherActions(path, ini);
    return describe(path, ini).entries;
}

StoredSettings describeActionList(const std::string& path)
{
    return describe(path, readIni(path));
}

StoredSettings describeFavorite(const std::string& path)
{
    const SettingsMap map = readMap(readIni(path), path, entrySettingsKey);
    const QString action = actionOf(map);
    const bool ours = action == initialview::actionName;
    return {map.value(request::collectionName).toString(), {}, {{action, ours ? map : SettingsMap()}}};
}

std::vector<ActionEntry> readFavorite(const std::string& path)
{
    return readSingle(path, entrySettingsKey);
}

std::vector<ActionEntry> readToolSettings(const std::string& path)
{
    return readSingle(path, "ToolSettings");
}

} // namespace host::settingsfile
