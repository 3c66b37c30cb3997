#include "ContentCopy.h"

#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <vector>

namespace filecopy {

namespace {

const off_t chunkSize = 1 << 18;
// Asking a file system that cannot do it costs as much as copying some pages.
const off_t worthCloning = 1 << 20;

Outcome writeAt(int target, const char* bytes, std::size_t size, off_t offset)
{
    while (size > 0) {
        const ssize_t count = ::pwrite(target, bytes, size, offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return {Outcome::WriteFailed, errno};
        bytes += count;
        size -= static_cast<std::size_t>(count);
        offset += count;
    }
    return {};
}

Outcome copyThroughMemory(int source, int target, off_t offset, off_t end)
{
    std::vector<char> chunk(static_cast<std::size_t>(std::min(chunkSize, end - offset)));
    while (offset < end) {
        const std::size_t wanted = std::min(chunk.size(), static_cast<std::size_t>(end - offset));
        const ssize_t count = ::pread(source, chunk.data(), wanted, offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return {Outcome::ReadFailed, errno};
        if (count == 0)
            return {Outcome::Shortened, 0};
        if (const Outcome written = writeAt(target, chunk.data(), static_cast<std::size_t>(count), offset);
            written.kind != Outcome::Done)
            return written;
        offset += count;
    }
    return {};
}

/// Copies what lies between two offsets, in the kernel as far as it can. Only reading and writing by hand
/// tells which of the two fails.
Outcome copyRange(int source, int target, off_t offset, off_t end)
{
    off_t from = offset;
    off_t to = offset;
    while (from < end) {
        const auto rest = static_cast<std::size_t>(end - from);
        const ssize_t count = ::copy_file_range(source, &from, target, &to, rest, 0);
        if (count == 0 || (count < 0 && errno != EINTR))
            return copyThroughMemory(source, target, from, end);
    }
    return {};
}

Outcome copyExtents(int source, int target, off_t size)
{
    off_t offset = 0;
    while (offset < size) {
        const off_t data = ::lseek(source, offset, SEEK_DATA);
        if (data < 0 && errno == ENXIO) // nothing but a hole up to the end
            break;
        const off_t hole = data < 0 ? -1 : ::lseek(source, data, SEEK_HOLE);
        const off_t end = hole < 0 ? size : std::min(hole, size);
        if (const Outcome copied = copyRange(source, target, data < 0 ? offset : data, end);
            copied.kind != Outcome::Done)
            return copied;
        offset = end;
    }
    return ::ftruncate(target, size) == 0 ? Outcome() : Outcome{Outcome::WriteFailed, errno};
}

} // namespace

Outcome copyContent(int source, int target, std::uint64_t size)
{
    struct stat status;
    if (::fstat(source, &status) != 0)
        return {Outcome::ReadFailed, errno};
    const auto end = static_cast<off_t>(size);
    if (status.st_size < end)
        return {Outcome::Shortened, 0};
    const bool hasHoles = status.st_blocks * 512 < status.st_size; // the unit is fixed
    if (end < worthCloning && !hasHoles)
        return copyRange(source, target, 0, end);
    const bool cloned = status.st_size == end && ::ioctl(target, FICLONE, source) == 0;
    return cloned ? Outcome() : copyExtents(source, target, end);
}

} // namespace filecopy
