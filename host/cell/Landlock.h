#pragma once

#include "host/files/FileDescriptor.h"

#include <cstdint>
#include <string>

namespace host {

/// What a process may reach of the file system, and Linux holds it to: the kernel's Landlock, by its own
/// system calls. Rules are made first; the process that enters them cannot leave them, nor can its children.
class Landlock
{
public:
    enum class Access {
        Read,         ///< Files.
        Browse,       ///< Files, and folders are listed.
        Write,        ///< Files are made, changed and removed, but not read; folders are made and listed.
        ReadAndWrite, ///< As Write, and files are read.
    };

    /// The newest version of the interface that this program knows.
    static constexpr int newest = 6;
    /// The version that the kernel offers; 0, with errno set, when it has none.
    static int version();

    /// Rules that allow nothing yet. \param version from 1 to what the kernel offers. Throws
    /// std::system_error.
    explicit Landlock(int version);

    /// Allows it for a file, or for a folder and all that is below, now and later. What is not there, or
    /// cannot be reached, gets no rule. Throws std::system_error.
    void allow(const std::string& path, Access access);

    /// Holds this process to the rules from now on; it must have given up new privileges. \returns false with
    /// errno set.
    bool enter() const;

private:
    FileDescriptor m_rules;
    std::uint64_t m_handled = 0;
};

} // namespace host
