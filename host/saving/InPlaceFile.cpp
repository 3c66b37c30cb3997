#include "InPlaceFile.h"

#include "host/files/DiskFlush.h"

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace host {

namespace {

/// What is flushed is on the disk before what is written later, and what is on the disk stays when a file
/// grows. Network file systems promise neither, and others nobody has tried.
constexpr std::array<decltype(statfs::f_type), 4> suitedFileSystems{EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC,
                                                                    BTRFS_SUPER_MAGIC, TMPFS_MAGIC};

// Encryption may join sectors that are written one by one; memory that is a disk has none; a file that may
// only grow cannot be cut back.
constexpr auto unsuitedAttributes = STATX_ATTR_ENCRYPTED | STATX_ATTR_DAX | STATX_ATTR_APPEND;

bool liesSuitably(int file)
{
    struct statfs system;
    struct statx about;
    return fstatfs(file, &system) == 0 &&
           std::find(suitedFileSystems.begin(), suitedFileSystems.end(), system.f_type) !=
               suitedFileSystems.end() &&
           statx(file, "", AT_EMPTY_PATH, STATX_TYPE, &about) == 0 &&
           (about.stx_attributes & unsuitedAttributes) == 0;
}

} // namespace

// O_NONBLOCK: opening a FIFO, or a file that another program has leased, would wait.
InPlaceFile::InPlaceFile(const std::string& path)
    : m_path(path),
      m_file(::open(path.c_str(), O_RDWR | O_APPEND | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY)),
      m_suited(m_file.isOpen() && fstat(m_file.get(), &m_status) == 0 && S_ISREG(m_status.st_mode) &&
               m_status.st_nlink == 1 && liesSuitably(m_file.get()))
{}

bool InPlaceFile::flush() const
{
    return flushContent(m_file.get());
}

bool InPlaceFile::cut(std::int64_t size) const
{
    int result = -1;
    do
        result = ftruncate(m_file.get(), size);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

bool InPlaceFile::setTime(const struct timespec& time) const
{
    const std::array<struct timespec, 2> times{timespec{0, UTIME_OMIT}, time};
    return futimens(m_file.get(), times.data()) == 0;
}

} // namespace host
