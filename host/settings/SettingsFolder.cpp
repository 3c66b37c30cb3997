#include "SettingsFolder.h"

#include "host/files/FileDescriptor.h"
#include "host/files/HomeFolder.h"
#include "host/saving/SafeOutput.h"
#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include "shared/CUtils.h"
#include "shared/ini/StoredKeys.h"

#include <QFile>

#include <dirent.h>
#include <strings.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>

namespace host {

using namespace storedkeys;

namespace {

const int deepest = 16;

/// Whether it can only be a path: "/a", "./a", "../a".
bool isPath(const std::string& name)
{
    return name.starts_with("/") || name.starts_with("./") || name.starts_with("../");
}

} // namespace

SettingsFolder SettingsFolder::actionLists()
{
    return {CUtils::GetSequenceFolder(), actionlist::suffix, "action list", settingsfile::describeActionList};
}

SettingsFolder SettingsFolder::favorites()
{
    return {CUtils::GetCollectionsFolder(), favorite::suffix, "favourite", settingsfile::describeFavorite};
}

SettingsFolder::SettingsFolder(const QString& path, const char* suffix, const char* kind, Describe words)
    : m_path(QFile::encodeName(QString(path).replace("//", "/")).toStdString()), m_suffix(suffix),
      m_kind(kind), m_describe(words)
{}

std::string SettingsFolder::make() const
{
    struct stat status;
    if (stat(m_path.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
        return {};
    const std::string problem = homefolder::problem();
    return problem.empty() ? SafeOutput::makeFolder(m_path).text : problem;
}

std::vector<std::string> SettingsFolder::files() const
{
    if (const std::string problem = make(); !problem.empty())
        throw UsageError(problem);
    std::vector<std::string> names;
    std::set<FolderId> seen;
    if (!collect({}, seen, names))
        throw UsageError("the folder " + m_path + " cannot be read: " + systemError(errno));
    std::sort(names.begin(), names.end());
    return names;
}

/// \param below the folder's path from the top one, with a slash at its end.
bool SettingsFolder::collect(const std::string& below, std::set<FolderId>& seen,
                             std::vector<std::string>& names) const
{
    const std::string folder = pathOf(below);
    struct stat status;
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
    if (listing == nullptr || fstat(dirfd(listing.get()), &status) != 0)
        return false;
    if (std::count(below.begin(), below.end(), '/') > deepest ||
        !seen.emplace(status.st_dev, status.st_ino).second)
        return true;
    while (const dirent* entry = readdir(listing.get())) {
        const std::string name = below + entry->d_name;
        const bool isFolder = fstatat(dirfd(listing.get()), entry->d_name, &status, 0) == 0 &&
                              S_ISDIR(status.st_mode) && entry->d_name != std::string(".") &&
                              entry->d_name != std::string("..");
        const std::size_t before = names.size();
        const bool isRead = isFolder && collect(name + "/", seen, names);
        if (isFolder ? !isRead || (hasSuffix(name) && names.size() == before) : hasSuffix(name))
            names.push_back(name); // also a folder, for describe() to say what is wrong with it
    }
    return true;
}

bool SettingsFolder::hasSuffix(const std::string& file) const
{
    return file.size() >= m_suffix.size() &&
           strcasecmp(file.c_str() + file.size() - m_suffix.size(), m_suffix.c_str()) == 0;
}

std::string SettingsFolder::baseName(const std::string& file) const
{
    return hasSuffix(file) ? file.substr(0, file.size() - m_suffix.size()) : file;
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
    names.reserve(files.size());
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
    const bool isFile = stat(pathOrName.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
    if (isFile || pathOrName.empty() || isPath(pathOrName))
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
