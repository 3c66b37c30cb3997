#pragma once

#include "DocumentLock.h"
#include "host/files/FileDescriptor.h"

#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace host {

/// A document opened for being changed where it lies.
class InPlaceFile
{
public:
    /// Opens a regular file for reading and writing, and never waits. \param path links are not followed at
    /// its end.
    explicit InPlaceFile(const std::string& path);

    /// Whether it may be changed where it lies: it could be opened for that, has no name but this one, and
    /// lies on a file system that keeps what was written before in order when power fails.
    bool isSuited() const { return m_suited; }

    /// The descriptor, -1 when it could not be opened.
    int get() const { return m_file.get(); }
    /// As it was when it was opened.
    const struct stat& status() const { return m_status; }
    const std::string& path() const { return m_path; }

    /// Writes all bytes behind whatever is in the file by then, so that nobody's bytes are overwritten and no
    /// hole comes up. \returns false, with errno set, on failure.
    bool append(std::string_view bytes) const { return writeAll(m_file.get(), bytes.data(), bytes.size()); }

    /// Waits until what was written is on the disk. \returns false, with errno set, on failure.
    bool flush() const;

    /// Cuts the file off behind `size` bytes. \returns false, with errno set, on failure.
    bool cut(std::int64_t size) const;

    /// Gives it a time of change. \returns false, with errno set, on failure: only its owner may do that.
    bool setTime(const struct timespec& time) const;

private:
    std::string m_path;
    FileDescriptor m_file;
    struct stat m_status = {};
    bool m_suited = false;
};

} // namespace host
