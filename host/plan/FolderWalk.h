#pragma once

#include "host/failures/Failure.h"

#include <sys/stat.h>

#include <functional>
#include <string>

namespace host {

/// Finds the PDF documents in a folder and its subfolders, as QDir would list them: names that begin with a
/// dot are passed over, a document is a file whose suffix is "pdf" in any case, and symbolic links are not
/// followed. Names are taken as bytes, in byte order, files and subfolders interleaved.
class FolderWalk
{
public:
    struct Entry
    {
        /// Relative to the folder, or "" for the folder itself.
        const std::string& path;
        /// Null when there is a problem.
        const struct stat* status;
        /// Why this one cannot be read.
        Failure problem;
    };
    using Found = std::function<void(const Entry& entry)>;
    /// A folder for which this answers true is passed over.
    using Skip = std::function<bool(const struct stat& status)>;

    FolderWalk(Found found, Skip skip);
    void walk(const std::string& folder);

private:
    void visit(const std::string& folder, const std::string& relative, int depth);

    Found m_found;
    Skip m_skip;
};

} // namespace host
