#pragma once

#include <sys/stat.h>

#include <functional>
#include <string>

namespace host {

/// Puts a complete new file in a target's place, or leaves everything as it was.
///
/// The new file is written under a temporary name beside the target, by whoever knows how; `commit` gives it
/// mode and owner and renames it. An object that is destroyed without that removes it.
class SafeOutput
{
public:
    SafeOutput(std::string target, std::string temporary);
    ~SafeOutput();
    SafeOutput(const SafeOutput&) = delete;
    SafeOutput& operator=(const SafeOutput&) = delete;

    /// Makes a folder and those above it; one that is there already is fine. \returns empty, or the reason of
    /// the failure.
    static std::string makeFolder(const std::string& folder);
    /// The folder that a file lies in.
    static std::string folderOf(const std::string& file);

    /// Is told of the finished file just before it is renamed, so that somebody who outlives this process can
    /// tell by the target whether it was. What it throws leaves the target as it was.
    using BeforeRename = std::function<void(const struct stat& finished)>;

    /// \param like the new file gets its permissions and, where the system allows it, owner and group.
    /// \param flush also waits until file and folder are on the disk.
    /// \returns empty, or the reason of the failure.
    std::string commit(const struct stat& like, bool flush, const BeforeRename& beforeRename = {});

    /// A name for a temporary file beside the target that no other running program uses. Names tell which
    /// process they belong to, so that `removeLeftovers` can find those of processes that are gone.
    static std::string temporaryNameFor(const std::string& target);

    /// Removes a temporary file, if it is there.
    static void removeTemporary(const std::string& temporary);

    /// Removes temporary files from a folder that ended processes left there.
    static void removeLeftovers(const std::string& folder);

private:
    std::string m_target;
    std::string m_temporary;
    bool m_committed = false;
};

} // namespace host
