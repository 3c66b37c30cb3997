#include "Reach.h"

#include "host/saving/SafeOutput.h"

#include <unistd.h>

namespace host {

namespace {

std::string existing(std::string folder)
{
    while (access(folder.c_str(), F_OK) != 0 && folder != SafeOutput::folderOf(folder))
        folder = SafeOutput::folderOf(folder);
    return folder;
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
    for (const std::string& folder : written)
        landlock.allow(folder, Landlock::Access::Write);
}

} // namespace host
