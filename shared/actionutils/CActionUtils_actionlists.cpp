#include "CActionUtils.h"

#include "CIniFile.h"
#include "lists/SettingsFiles.h"

#include <QDir>
#include <QFileInfo>

namespace {

using namespace settingsfiles;

const QString defaultCategory = QStringLiteral("Default");
const QString favoritesCategory = QStringLiteral("Favorites");

QString textOf(const QMap<QString, QVariant>& prefs, const char* key)
{
    return prefs.value(key).toString();
}

QString pathOf(QString listName)
{
    return CActionUtils::GetSequenceFolder() + "/" + listName.replace(' ', '_') + actionlist::suffix;
}

/// Whether the list's file lies in the sequence folder itself.
bool isFileName(const QString& listName)
{
    return !listName.contains('/') && !listName.contains(QChar::Null);
}

void addEntry(const QString& path, const QMap<QString, QVariant>& prefs)
{
    CIniFile file(path, CIniFile::Access::Extend);
    int number = 0;
    while (file.contains(actionlist::actionNameKey(number)))
        ++number;
    file.setValue(actionlist::actionNameKey(number), textOf(prefs, request::actionName));
    file.setValue(actionlist::actionPrefsKey(number), prefs);
    file.commit();
}

/// The settings without what was said to the writer only.
QMap<QString, QVariant> withoutRequest(QMap<QString, QVariant> prefs)
{
    for (const char* key : {request::actionName, request::actionListOverwrite, request::actionListCategory,
                            request::actionListName})
        prefs.remove(key);
    return prefs;
}

bool writeNewList(const QString& path, const QMap<QString, QVariant>& prefs)
{
    const QString category = textOf(prefs, request::actionListCategory);
    CIniFile file(path, CIniFile::Access::Replace);
    file.setValue(actionlist::sequenceName, textOf(prefs, request::actionListName));
    file.setValue(actionlist::sequenceCategory, category.isEmpty() ? favoritesCategory : category);
    file.setValue(actionlist::ioSettings, 0);
    file.setValue(actionlist::actionNameKey(0), textOf(prefs, request::actionName));
    file.setValue(actionlist::actionPrefsKey(0), withoutRequest(prefs));
    return file.commit();
}

} // namespace

void CActionUtils::SaveAsCustomActionList(QMap<QString, QVariant>* prefs)
{
    const QString listName = prefs->value(request::actionListName, "Action").toString();
    if (!isFileName(listName))
        return;
    const QString path = pathOf(listName);
    const bool exists = QFileInfo::exists(path);
    if (exists && !prefs->value(request::actionListOverwrite).toBool()) {
        addEntry(path, *prefs);
        return;
    }
    if (writeNewList(path, *prefs) || !exists)
        *prefs = withoutRequest(*prefs);
}

QStringList CActionUtils::GetActionListCategories()
{
    QStringList categories{defaultCategory, favoritesCategory};
    const QString folder = GetSequenceFolder();
    const QStringList names = QDir(folder).entryList({QString("*") + actionlist::suffix}, QDir::AllEntries,
                                                     QDir::Name | QDir::IgnoreCase);
    for (const QString& name : names) {
        const CIniFile file(folder + "/" + name, CIniFile::Access::Read);
        const QString category = file.value(actionlist::sequenceCategory).toString();
        if (!category.isEmpty() && !categories.contains(category, Qt::CaseInsensitive))
            categories.append(category);
    }
    return categories;
}
