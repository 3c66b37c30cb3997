#include "SettingsOutput.h"

#include "host/files/FileAttributes.h"
#include "host/files/FileCopy.h"
#include "host/files/FileDescriptor.h"
#include "host/files/Links.h"
#include "host/files/SafeOutput.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"
#include "shared/CIniFile.h"
#include "shared/lists/SettingsFiles.h"

#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

namespace host {

using namespace settingsfiles;

namespace {

const std::string_view toolSettingsSuffix = ".tsf";
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
    throw UsageError("-o takes a file that ends in .xqq (action list), .ini (favourite) or .tsf (tool "
                     "settings), not " +
                     path);
}

/// Checked before the dialog opens, so that no choices are lost.
void SettingsOutput::checkPlace() const
{
    struct stat status;
    if (stat(m_path.c_str(), &status) == 0 && !S_ISREG(status.st_mode))
        throw UsageError(m_path + " cannot be written: it is not a regular file");
    if (access(SafeOutput::folderOf(m_path).c_str(), W_OK | X_OK) != 0)
        throw UsageError(m_path + " cannot be written: " + systemError(errno));
}

bool SettingsOutput::isSameFile(const std::string& path) const
{
    struct stat own;
    struct stat other;
    return !path.empty() && stat(m_path.c_str(), &own) == 0 && stat(path.c_str(), &other) == 0 &&
           own.st_dev == other.st_dev && own.st_ino == other.st_ino;
}

std::string SettingsOutput::write(const SettingsMap& settings, const Edit& edit, const QImage& icon) const
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return "no temporary folder can be made: " + folder.errorString().toStdString();
    const QString draft = folder.filePath("draft");
    const bool edits = isSameFile(edit.file);
    if (edits)
        if (const std::string problem = copyFile(m_path, draft.toStdString()); !problem.empty())
            return m_path + ": " + problem;
    if (!compose(draft, settings, edits ? edit.entry : 0, icon))
        return m_path + " cannot be written: no complete copy could be made in " +
               folder.path().toStdString();
    return putInPlace(draft.toStdString());
}

bool SettingsOutput::compose(const QString& draft, const SettingsMap& settings, int entry,
                             const QImage& icon) const
{
    CIniFile file(draft, CIniFile::Access::Extend);
    if (m_kind == Kind::ActionList)
        composeActionList(file, settings, entry);
    else if (m_kind == Kind::Favorite)
        composeFavorite(file, settings, icon);
    else
        file.setValue(toolsettings::toolSettings, settings);
    return file.commit();
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

std::string SettingsOutput::putInPlace(const std::string& draft) const
{
    const FileDescriptor replaced = openRegularFile(m_path);
    if (!replaced.isOpen() && errno != ENOENT)
        return m_path + " cannot be written: " + systemError(errno);
    const FileAttributes attributes = replaced.isOpen()
                                          ? FileAttributes(replaced.get(), FileAttributes::Take::All)
                                          : FileAttributes::ofNewFile();
    const std::string temporary = SafeOutput::temporaryNameFor(m_path);
    SafeOutput output(m_path, temporary);
    const std::string problem = copyFile(draft, temporary);
    return problem.empty() ? output.commit(attributes, true).problem : m_path + ": " + problem;
}

QString SettingsOutput::baseName() const
{
    const std::string name = m_path.substr(m_path.rfind('/') + 1);
    return QString::fromStdString(name.substr(0, name.rfind('.')));
}

} // namespace host
