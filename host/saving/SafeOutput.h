#pragma once

#include "host/failures/Failure.h"

#include <sys/stat.h>

#include <functional>
#include <optional>
#include <string>

namespace host {

class FileAttributes;

/// Puts a complete new file in a target's place, or leaves everything as it was.
///
/// The new file is written under a temporary name beside the target, by whoever knows how; `commit` gives it
/// its attributes and renames it. An object that is destroyed without that removes it.
class SafeOutput
{
public:
    SafeOutput(std::string target, std::string temporary);
    ~SafeOutput();
    SafeOutput(const SafeOutput&) = delete;
    SafeOutput& operator=(const SafeOutput&) = delete;

    /// Makes a folder and those above it; one that is there already is fine.
    static Failure makeFolder(const std::string& folder);
    /// The folder that a file lies in.
    static std::string folderOf(const std::string& file);

    /// What became of the new file.
    struct Outcome
    {
        /// None when it is in the target's place; else why all is as it was.
        Failure problem;
        /// What the user should know of a file that is in its place; may be empty.
        std::string note;
    };
    /// Is told of the finished file just before it is renamed, and of the note if there is one by then, so
    /// that somebody who outlives this process can tell by the target whether it was. What it throws leaves
    /// the target as it was.
    using BeforeRename = std::function<void(const struct stat& finished, const std::string& note)>;

    /// \param attributes go along as far as the system allows it; what does not is noted.
    /// \param flush also waits until file and folder are on the disk. A folder that cannot be flushed is
    /// noted: after a power failure the old file may be there.
    Outcome commit(const FileAttributes& attributes, bool flush, const BeforeRename& beforeRename = {});

    /// The target is replaced only while it is like this. What another program has put there at the last
    /// moment gets its place back, or is kept under a name that is told; but not where the file system
    /// cannot exchange two files, as those on networks.
    void replaceOnly(const struct stat& state) { m_replaced = state; }

    /// Waits until a file that was renamed to the target by another process is on the disk under its name.
    /// \returns false on failure.
    static bool flushPlaced(const std::string& target);

    /// A name for a temporary file beside the target that no other running program uses. Names tell which
    /// process they belong to, so that `removeLeftovers` can find those of processes that are gone.
    static std::string temporaryNameFor(const std::string& target);

    /// Removes a temporary file, if it is there.
    static void removeTemporary(const std::string& temporary);

    /// Removes temporary files from a folder that ended processes left there.
    static void removeLeftovers(const std::string& folder);

private:
    bool putInPlace(int file);
    bool giveBack(int file);
    void keep();
    std::string aboutKept() const;
    bool exchange() const;
    static bool isAt(const std::string& path, int file);
    static bool isKnownElsewhere(const std::string& path, int file);

    std::string m_target;
    std::string m_temporary;
    std::optional<struct stat> m_replaced;
    std::string m_kept; ///< Where another program's file lies that could not be given back; empty for none.
    bool m_committed = false;
};

} // namespace host
