#include "DiskFlush.h"

#include "FileDescriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace host {

namespace {

const int mostAttempts = 100;

/// A call that a signal interrupted is made again; not for ever, where something else is wrong.
template <class Call>
int retried(Call call)
{
    int result = -1;
    for (int attempt = 0; attempt < mostAttempts; ++attempt)
        if (result = call(); result >= 0 || errno != EINTR)
            break;
    return result;
}

/// What a file system says that cannot flush this kind of file, or does not let this user.
bool isInability(int error)
{
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EACCES || error == EPERM;
}

bool flushFileSystem(int file, int problem)
{
    const bool flushed = retried([file] { return syncfs(file); }) == 0;
    errno = problem;
    return flushed;
}

} // namespace

bool flushFile(int file)
{
    return retried([file] { return fsync(file); }) == 0 ||
           (isInability(errno) && flushFileSystem(file, errno));
}

bool flushContent(int file)
{
    return retried([file] { return fdatasync(file); }) == 0;
}

bool flushFolder(const std::string& folder, int fileInIt)
{
    const FileDescriptor directory(
        retried([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!directory.isOpen()) // its rights may allow to enter it, not to read it
        return flushFileSystem(fileInIt, errno);
    // After a device's error a second attempt may succeed without having written anything.
    return retried([&] { return fsync(directory.get()); }) == 0 ||
           (isInability(errno) && flushFileSystem(fileInIt, errno));
}

} // namespace host
