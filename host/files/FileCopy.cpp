#include "FileCopy.h"

#include "FileDescriptor.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <vector>

namespace host {

namespace {

const std::size_t chunkSize = 1 << 20;
// Asking a file system that cannot do it costs as much as copying some pages.
const off_t worthCloning = 1 << 20;

bool copyByHand(int source, int target, off_t offset, off_t end)
{
    std::vector<char> chunk(std::min<std::size_t>(chunkSize, static_cast<std::size_t>(end - offset)));
    while (offset < end) {
        const std::size_t wanted =
            std::min<std::size_t>(chunk.size(), static_cast<std::size_t>(end - offset));
        const ssize_t count = pread(source, chunk.data(), wanted, offset);
        if (count < 0)
            return false;
        if (count == 0)
            break; // the file became shorter meanwhile
        if (lseek(target, offset, SEEK_SET) < 0 ||
            !writeAll(target, chunk.data(), static_cast<std::size_t>(count)))
            return false;
        offset += count;
    }
    return true;
}

/// Copies what lies between two offsets, in the kernel where it can.
bool copyRange(int source, int target, off_t offset, off_t end)
{
    while (offset < end) {
        off_t from = offset;
        off_t to = offset;
        const ssize_t count =
            copy_file_range(source, &from, target, &to, static_cast<std::size_t>(end - offset), 0);
        if (count <= 0)
            return copyByHand(source, target, offset, end);
        offset += count;
    }
    return true;
}

bool copyContent(int source, int target)
{
    struct stat status;
    if (fstat(source, &status) != 0)
        return false;
    const bool hasHoles = status.st_blocks * 512 < status.st_size; // the unit is fixed
    if (status.st_size < worthCloning && !hasHoles)
        return copyRange(source, target, 0, status.st_size);
    if (ioctl(target, FICLONE, source) == 0)
        return true;
    if (ftruncate(target, status.st_size) != 0)
        return false;
    off_t offset = 0;
    while (offset < status.st_size) {
        const off_t data = lseek(source, offset, SEEK_DATA);
        if (data < 0 && errno == ENXIO)
            break; // only a hole is left
        const off_t hole = data < 0 ? -1 : lseek(source, data, SEEK_HOLE);
        const off_t begin = data < 0 ? offset : data;
        const off_t end = hole < 0 ? status.st_size : std::min(hole, status.st_size);
        if (!copyRange(source, target, begin, end))
            return false;
        offset = end;
    }
    return true;
}

} // namespace

std::string copyFile(const std::string& source, const std::string& target)
{
    const FileDescriptor from = openRegularFile(source);
    if (!from.isOpen())
        return "cannot be read: " + systemError(errno);
    FileDescriptor to(::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!to.isOpen())
        return "cannot be written: " + systemError(errno);
    if (copyContent(from.get(), to.get()) && to.close())
        return {};
    const int problem = errno;
    unlink(target.c_str());
    return "cannot be written: " + systemError(problem);
}

} // namespace host
