#include "SettingsOutput.h"

#include "host/change/ViewJson.h"
#include "host/files/FileDescriptor.h"
#include "host/files/Links.h"
#include "host/saving/SafeOutput.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"
#include "shared/ini/CIniFile.h"
#include "shared/ini/StoreReport.h"
#include "shared/ini/StoredKeys.h"
#include "shared/ini/WholeFile.h"

#include <QJsonDocument>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

namespace host {

using namespace storedkeys;

namespace {

const std::string_view toolSettingsSuffix = ".tsf";
const std::string_view viewSuffix = ".json";
const char ownCategory[] = "Favorites"; // where the dialogs put a list without a category

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

} // namespace

SettingsOutput::SettingsOutput(const std::string& path) : m_path(behindLink(path)), m_kind(kindOf(path))
{
    checkPlace();
}

SettingsOutput::Kind SettingsOutput::kindOf(const std::string& path)
{
    if (endsWith(path, actionlist::suffix))
        return Kind::ActionList;
    if (endsWith(path, favorite::suffix))
        return Kind::Favorite;
    if (endsWith(path, toolSettingsSuffix))
        return Kind::ToolSettings;
    if (endsWith(path, viewSuffix))
        return Kind::View;
    throw UsageError("-o takes a file that ends in .xqq (action list), .ini (favourite), .tsf (tool "
                     "settings) or .json (view), not " +
                     path);
}

/// Checked before the dialog opens, so that no choices are lost.
void SettingsOutput::checkPlace() const
{
    struct stat status;
    if (stat(m_path.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        throw UsageError(m_path + " cannot be written: it is not a regular file");
    if (const std::string problem = folderProblem(); !problem.empty())
        throw UsageError(m_path + " cannot be written: " + problem);
}

std::string SettingsOutput::folderProblem() const
{
    const bool isUsable = access(SafeOutput::folderOf(m_path).c_str(), W_OK | X_OK) == 0;
    return isUsable ? std::string() : systemError(errno);
}

/// Where that cannot be found out, `problem` says why.
bool SettingsOutput::isSameFile(const std::string& path, std::string& problem) const
{
    struct stat own;
    struct stat other;
    if (path.empty())
        return false;
    if (stat(m_path.c_str(), &own) == 0 && stat(path.c_str(), &other) == 0)
        return own.st_dev == other.st_dev && own.st_ino == other.st_ino;
    problem = errno == ENOENT ? std::string() : systemError(errno);
    return false;
}

SettingsOutput::Outcome SettingsOutput::write(const SettingsMap& settings, const Edit& edit,
                                              const QImage& icon) const
{
    std::string problem = folderProblem();
    const bool edits = problem.empty() && isSameFile(edit.file, problem);
    if (!problem.empty())
        return {false, m_path + ": cannot be written: " + problem};
    const QByteArray path = QByteArray::fromStdString(m_path);
    const QString replaced = edits ? ", whose other content stays" : storereport::inPlaceOf(path);
    CIniFile file(path, edits ? CIniFile::Access::Extend : CIniFile::Access::Replace);
    compose(file, settings, edits ? edit.entry : 0, icon);
    return outcome(replaced, file.commit() ? QString() : file.problem());
}

SettingsOutput::Outcome SettingsOutput::write(const ViewChange& view) const
{
    if (const std::string problem = folderProblem(); !problem.empty())
        return {false, m_path + ": cannot be written: " + problem};
    const QByteArray path = QByteArray::fromStdString(m_path);
    const QString replaced = storereport::inPlaceOf(path);
    return outcome(replaced, wholefile::replace(path, QJsonDocument(viewjson::write(view)).toJson()));
}

SettingsOutput::Outcome SettingsOutput::outcome(const QString& replaced, const QString& problem) const
{
    if (!problem.isEmpty())
        return {false, m_path + ": cannot be written: " + problem.toStdString()};
    return {true, "stored: " + m_path + replaced.toStdString()};
}

void SettingsOutput::compose(CIniFile& file, const SettingsMap& settings, int entry, const QImage& icon) const
{
    if (m_kind == Kind::ActionList)
        composeActionList(file, settings, entry);
    else if (m_kind == Kind::Favorite)
        composeFavorite(file, settings, icon);
    else
        file.setValue(toolsettings::toolSettings, settings);
}

void SettingsOutput::composeActionList(CIniFile& file, const SettingsMap& settings, int entry) const
{
    if (!file.contains(actionlist::actionNameKey(entry))) {
        file.setValue(actionlist::sequenceName, baseName());
        file.setValue(actionlist::sequenceCategory, ownCategory);
        file.setValue(actionlist::ioSettings, 0);
        file.setValue(actionlist::actionNameKey(entry), initialview::actionName);
    }
    SettingsMap prefs = settings;
    prefs.remove(request::actionName); // the entry's own key tells
    file.setValue(actionlist::actionPrefsKey(entry), prefs);
}

void SettingsOutput::composeFavorite(CIniFile& file, SettingsMap settings, const QImage& icon) const
{
    if (!settings.contains(request::collectionName))
        settings.insert(request::collectionName, baseName());
    file.setValue(favorite::actionPrefs, settings);
    if (!file.contains(favorite::actionIcon))
        file.setValue(favorite::actionIcon, icon);
}

QString SettingsOutput::baseName() const
{
    const std::string name = m_path.substr(m_path.rfind('/') + 1);
    return QString::fromStdString(name.substr(0, name.rfind('.')));
}

} // namespace host
