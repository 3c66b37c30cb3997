#include "SettingsFile.h"

#include "FileDescriptor.h"
#include "IniText.h"
#include "UsageError.h"

#include "EditInitialView/InitialViewSettings.h"

#include <algorithm>
#include <cerrno>

namespace host::settingsfile {

namespace {

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

std::vector<ActionEntry> readSingle(const std::string& path, const std::string& key)
{
    const SettingsMap map = readMap(readIni(path), path, key);
    const QString action = map.value(initialview::key::ActionName, initialview::actionName).toString();
    if (action != initialview::actionName || !hasKnownKey(map))
        refuse(path, QString("these are settings of another action%1; only \"%2\" can be run")
                         .arg(action == initialview::actionName ? QString() : " (\"" + action + "\")",
                              initialview::actionName));
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

void refuseOtherActions(const std::string& path, const IniText& ini, const std::vector<int>& numbers)
{
    QStringList others;
    for (const int number : numbers) {
        const auto name = ini.text(entryNameKey + std::to_string(number)).value_or(QString());
        if (unmarkedText(name) != initialview::actionName)
            others += QString("entry %1 is \"%2\"").arg(number).arg(unmarkedText(name));
    }
    if (!others.isEmpty())
        refuse(path, QString("the list holds other actions, and only \"%1\" can be run: %2")
                         .arg(initialview::actionName, others.join(", ")));
}

} // namespace

std::vector<ActionEntry> readActionList(const std::string& path)
{
    const IniText ini = readIni(path);
    const std::vector<int> numbers = entryNumbers(ini);
    if (numbers.empty())
        refuse(path, "not an action list: it has no \"ActionName0\"");
    refuseOtherActions(path, ini, numbers);
    std::vector<ActionEntry> entries;
    for (const int number : numbers)
        entries.push_back(
            {initialview::actionName, readMap(ini, path, entrySettingsKey + std::to_string(number))});
    return entries;
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
