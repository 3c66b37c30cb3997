#include "CActionUtils.h"

#include "ini/CIniFile.h"
#include "ini/StoreReport.h"
#include "ini/StoredKeys.h"

#include <QDir>
#include <QFileInfo>

namespace {

using namespace storedkeys;

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

/// Whether the list's file lies in the sequence folder or below.
bool staysInFolder(const QString& listName)
{
    int depth = 0;
    for (const QString& folder : listName.split('/').mid(0, listName.count('/'))) {
        depth += folder == ".." ? -1 : folder.isEmpty() || folder == "." ? 0 : 1;
        if (depth < 0)
            return false;
    }
    return !listName.contains(QChar::Null);
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
    storereport::add(storereport::inWords("the action list " + path, QString(", as its entry %1").arg(number),
                                          file.problem()));
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
    const QString replaced = storereport::inPlaceOf(QFile::encodeName(path));
    CIniFile file(path, CIniFile::Access::Replace);
    file.setValue(actionlist::sequenceName, textOf(prefs, request::actionListName));
    file.setValue(actionlist::sequenceCategory, category.isEmpty() ? favoritesCategory : category);
    file.setValue(actionlist::ioSettings, 0);
    file.setValue(actionlist::actionNameKey(0), textOf(prefs, request::actionName));
    file.setValue(actionlist::actionPrefsKey(0), withoutRequest(prefs));
    file.commit();
    storereport::add(storereport::inWords("the action list " + path, replaced, file.problem()));
    return file.problem().isEmpty();
}

} // namespace

void CActionUtils::SaveAsCustomActionList(QMap<QString, QVariant>* prefs)
{
    const QString listName = prefs->value(request::actionListName, "Action").toString();
    const QString path = pathOf(listName);
    if (!staysInFolder(listName)) {
        storereport::add(storereport::inWords("the action list " + path, QString(),
                                              "its name leads out of the folder of action lists"));
        return;
    }
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
