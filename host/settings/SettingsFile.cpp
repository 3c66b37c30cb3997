#include "SettingsFile.h"

#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"
#include "shared/ini/CIniFile.h"
#include "shared/ini/StoredKeys.h"

#include <algorithm>

namespace host::settingsfile {

namespace {

using namespace storedkeys;

[[noreturn]] void refuse(const std::string& path, const QString& reason)
{
    throw UsageError(path + ": " + reason.toStdString());
}

CIniFile openIni(const std::string& path)
{
    CIniFile file(QByteArray::fromStdString(path), CIniFile::Access::Read);
    if (!file.problem().isEmpty())
        refuse(path, file.problem());
    return file;
}

SettingsMap readMap(const CIniFile& ini, const std::string& path, const QString& key)
{
    if (!ini.contains(key))
        refuse(path, QString("not a settings file of this kind: it has no \"%1\"").arg(key));
    const auto refuseValue = [&](const QString& problem) {
        refuse(path, QString("the settings in \"%1\" cannot be read: it %2").arg(key, problem));
    };
    QString problem;
    const std::optional<QVariant> value = ini.decoded(key, problem);
    if (!value)
        refuseValue(problem);
    if (value->userType() != QMetaType::QVariantMap)
        refuseValue("is not a settings map");
    if (value->toMap().isEmpty())
        refuseValue("is empty");
    return value->toMap();
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

std::vector<ActionEntry> readSingle(const std::string& path, const QString& key)
{
    const SettingsMap map = readMap(openIni(path), path, key);
    const QString action = actionOf(map);
    if (action != initialview::actionName)
        refuse(path,
               QString("these are settings of another action%1; only \"%2\" can be run")
                   .arg(action.isEmpty() ? QString() : " (\"" + action + "\")", initialview::actionName));
    return {{action, map}};
}

QString textOf(const CIniFile& ini, const QString& key)
{
    return ini.value(key).toString();
}

StoredSettings describe(const std::string& path, const CIniFile& ini)
{
    StoredSettings list{textOf(ini, actionlist::sequenceName), textOf(ini, actionlist::sequenceCategory), {}};
    for (const int number : actionlist::entryNumbers(ini.keys())) {
        const QString action = textOf(ini, actionlist::actionNameKey(number));
        const bool ours = action == initialview::actionName;
        list.entries.push_back(
            {action, ours ? readMap(ini, path, actionlist::actionPrefsKey(number)) : SettingsMap(), number});
    }
    if (list.entries.empty())
        refuse(path, "not an action list: it has no \"ActionName0\"");
    return list;
}

void refuseOtherActions(const std::string& path, const CIniFile& ini)
{
    QStringList others;
    for (const int number : actionlist::entryNumbers(ini.keys())) {
        const QString name = textOf(ini, actionlist::actionNameKey(number));
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
    const CIniFile ini = openIni(path);
    refuseOtherActions(path, ini);
    return describe(path, ini).entries;
}

StoredSettings describeActionList(const std::string& path)
{
    return describe(path, openIni(path));
}

StoredSettings describeFavorite(const std::string& path)
{
    const SettingsMap map = readMap(openIni(path), path, favorite::actionPrefs);
    const QString action = actionOf(map);
    const bool ours = action == initialview::actionName;
    return {map.value(request::collectionName).toString(), {}, {{action, ours ? map : SettingsMap()}}};
}

std::vector<ActionEntry> readFavorite(const std::string& path)
{
    return readSingle(path, favorite::actionPrefs);
}

std::vector<ActionEntry> readToolSettings(const std::string& path)
{
    return readSingle(path, toolsettings::toolSettings);
}

} // namespace host::settingsfile
