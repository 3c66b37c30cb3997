#include "Reach.h"

#include "host/saving/SafeOutput.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace host {

namespace {

/// The path, or the nearest folder above it that is there.
std::string existing(std::string path)
{
    while (access(path.c_str(), F_OK) != 0 && path != SafeOutput::folderOf(path))
        path = SafeOutput::folderOf(path);
    return path;
}

} // namespace

void Reach::addFileToRead(const std::string& file)
{
    m_foldersOfFiles.insert(SafeOutput::folderOf(file));
    if (++m_fileCount <= mostFiles)
        m_files.push_back(file);
    else
        m_files.clear();
}

void Reach::allowBy(Landlock& landlock) const
{
    for (const std::string& file : m_files)
        landlock.allow(file, Landlock::Access::Read);
    if (m_fileCount > mostFiles)
        for (const std::string& folder : m_foldersOfFiles)
            landlock.allow(folder, Landlock::Access::Read);
    std::set<std::string> written;
    for (const std::string& folder : m_folders)
        written.insert(existing(folder));
    const auto access = m_readsWritten ? Landlock::Access::ReadAndWrite : Landlock::Access::Write;
    for (const std::string& folder : written)
        landlock.allow(folder, access);
}

bool isOutOfReach(const std::string& path)
{
    const std::string place = existing(path);
    const FileDescriptor file(::open(place.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    return !file.isOpen() && errno == EACCES && access(place.c_str(), R_OK) == 0;
}

} // namespace host
