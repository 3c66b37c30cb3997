#pragma once

#include "Landlock.h"

#include <set>
#include <string>
#include <vector>

namespace host {

/// The files and folders that the workers of a run need.
class Reach
{
public:
    /// So many documents are allowed one by one. The kernel keeps each in memory meanwhile, so of more
    /// documents the folders are allowed, with all that is in them and below.
    static constexpr std::size_t mostFiles = 1000;

    void addFileToRead(const std::string& file);
    /// \param folder may be made later; then the one above it that is there is meant.
    void addFolderToWrite(const std::string& folder) { m_folders.insert(folder); }
    /// What is written is read again.
    void readWritten() { m_readsWritten = true; }
    /// Whether there is any folder to write.
    bool isWritten() const { return !m_folders.empty(); }

    /// Throws std::system_error.
    void allowBy(Landlock& landlock) const;

private:
    std::vector<std::string> m_files; ///< Empty when there are too many.
    std::size_t m_fileCount = 0;
    std::set<std::string> m_foldersOfFiles;
    std::set<std::string> m_folders;
    bool m_readsWritten = false;
};

/// Whether it is the cell that keeps this process from a file, or from a folder or the one above it that is
/// there: the user may read it, and rules are about what lay there when they were made.
bool isOutOfReach(const std::string& path);

} // namespace host
