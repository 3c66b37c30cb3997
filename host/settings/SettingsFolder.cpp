#include "SettingsFolder.h"

#include "host/files/FileDescriptor.h"
#include "host/files/SafeOutput.h"
#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include "shared/CUtils.h"
#include "shared/lists/SettingsFiles.h"

#include <QFile>

#include <dirent.h>
#include <strings.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>

namespace host {

using namespace settingsfiles;

SettingsFolder SettingsFolder::actionLists()
{
    return {CUtils::GetSequenceFolder(), actionlist::suffix, "action list", settingsfile::describeActionList};
}

SettingsFolder SettingsFolder::favorites()
{
    return {CUtils::GetCollectionsFolder(), favorite::suffix, "favourite", settingsfile::describeFavorite};
}

SettingsFolder::SettingsFolder(const QString& path, const char* suffix, const char* kind, Describe describe)
    : m_path(QFile::encodeName(QString(path).replace("//", "/")).toStdString()), m_suffix(suffix),
      m_kind(kind), m_describe(describe)
{}

std::string SettingsFolder::make() const
{
    return SafeOutput::makeFolder(m_path);
}

std::vector<std::string> SettingsFolder::files() const
{
    if (const std::string problem = make(); !problem.empty())
        throw UsageError(problem);
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(m_path.c_str()), closedir);
    if (listing == nullptr)
        throw UsageError("the folder " + m_path + " cannot be read: " + systemError(errno));
    std::vector<std::string> names;
    while (const dirent* entry = readdir(listing.get())) {
        const std::string name = entry->d_name;
        if (name.size() >= m_suffix.size() &&
            strcasecmp(name.c_str() + name.size() - m_suffix.size(), m_suffix.c_str()) == 0)
            names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string SettingsFolder::baseName(const std::string& file) const
{
    return file.substr(0, file.size() - m_suffix.size());
}

std::string SettingsFolder::nameOf(const std::string& file, const StoredSettings& stored) const
{
    return stored.name.isEmpty() ? baseName(file) : stored.name.toStdString();
}

bool SettingsFolder::hasName(const std::string& file, const std::string& name) const
{
    std::string fileName = name; // action lists are stored under names without spaces
    std::replace(fileName.begin(), fileName.end(), ' ', '_');
    const std::string base = baseName(file);
    if (file == name || base == name || base == fileName)
        return true;
    try {
        return describe(file).name.toStdString() == name;
    } catch (const UsageError&) {
        return false; // what cannot be read has no name but its file's
    }
}

std::vector<std::string> SettingsFolder::baseNames(const std::vector<std::string>& files) const
{
    std::vector<std::string> names;
    for (const std::string& file : files)
        names.push_back(baseName(file));
    return names;
}

std::string SettingsFolder::namesOf(const std::vector<std::string>& files) const
{
    std::string text;
    for (const std::string& file : files) {
        std::string name = baseName(file);
        try {
            name = nameOf(file, describe(file));
        } catch (const UsageError&) {
        }
        text.append("\n  ").append(name).append("  (").append(file).append(")");
    }
    return text;
}

std::string SettingsFolder::find(const std::string& pathOrName) const
{
    struct stat status;
    const bool isPath = stat(pathOrName.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
    if (isPath || pathOrName.empty() || pathOrName.find('/') != std::string::npos)
        return pathOrName;
    const std::vector<std::string> all = files();
    std::vector<std::string> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&](const std::string& file) { return hasName(file, pathOrName); });
    if (found.size() == 1)
        return pathOf(found.front());
    const std::string kind = m_kind;
    if (!found.empty())
        throw UsageError("more than one " + kind + " has the name " + pathOrName +
                         "; give the path of one, in " + m_path + ":" + namesOf(found));
    throw UsageError(pathOrName + ": no such file, and no " + kind + " in " + m_path + " has this name" +
                     suggestion::didYouMean(pathOrName, baseNames(all)) +
                     (all.empty() ? "; there are none" : "\nthere are:" + namesOf(all)));
}

} // namespace host
