#include "FolderWalk.h"

#include "host/files/Paths.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>
#include <vector>

namespace host {

namespace {

const int deepest = 512;

/// Whether an entry may be a document or a folder; some file systems do not tell.
bool mayMatter(const dirent& entry)
{
    if (entry.d_name[0] == '.')
        return false;
    return entry.d_type == DT_UNKNOWN || entry.d_type == DT_DIR ||
           (entry.d_type == DT_REG && isPdfName(entry.d_name));
}

/// \returns false with errno set when the folder cannot be read.
bool listNames(const std::string& folder, std::vector<std::string>& names)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
    if (listing == nullptr)
        return false;
    errno = 0;
    while (const dirent* entry = readdir(listing.get()))
        if (mayMatter(*entry))
            names.emplace_back(entry->d_name);
    std::sort(names.begin(), names.end());
    return errno == 0;
}

} // namespace

FolderWalk::FolderWalk(Found found, Skip skip) : m_found(std::move(found)), m_skip(std::move(skip)) {}

void FolderWalk::walk(const std::string& folder)
{
    visit(folder, {}, 0);
}

void FolderWalk::visit(const std::string& folder, const std::string& relative, int depth)
{
    std::vector<std::string> names;
    if (depth > deepest || !listNames(folder, names)) {
        m_found({relative, nullptr,
                 depth > deepest ? Failure{ReasonCode::ReadFailed, "the folders are nested too deeply"}
                                 : Failure::ofSystem(errno, ReasonCode::ReadFailed)});
        return;
    }
    const std::string folderPrefix = folder + "/";
    const std::string relativePrefix = relative.empty() ? std::string() : relative + "/";
    for (const std::string& name : names) {
        const std::string path = folderPrefix + name;
        const std::string below = relativePrefix + name;
        struct stat status;
        if (lstat(path.c_str(), &status) != 0) {
            if (errno != ENOENT) // it has gone since
                m_found({below, nullptr, Failure::ofSystem(errno, ReasonCode::ReadFailed)});
            continue;
        }
        if (S_ISDIR(status.st_mode) && !m_skip(status))
            visit(path, below, depth + 1);
        else if (S_ISREG(status.st_mode) && isPdfName(name))
            m_found({below, &status, {}});
    }
}

} // namespace host
