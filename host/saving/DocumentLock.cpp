#include "DocumentLock.h"

#include "host/files/FileState.h"

#include <sys/file.h>

#include <cerrno>
#include <thread>

namespace host {

namespace {

const std::chrono::milliseconds step(5);

} // namespace

const Failure documentLocked{ReasonCode::Locked, "another run, or another program, has it locked"};

DocumentLock lockDocument(int file, std::chrono::milliseconds patience)
{
    const auto end = std::chrono::steady_clock::now() + patience;
    while (flock(file, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return DocumentLock::Unavailable;
        if (std::chrono::steady_clock::now() > end)
            return DocumentLock::Held;
        std::this_thread::sleep_for(step);
    }
    return DocumentLock::Taken;
}

bool isAsRead(int file, const std::string& path, const struct stat& asRead)
{
    struct stat named;
    struct stat opened;
    errno = 0;
    if (stat(path.c_str(), &named) != 0 || fstat(file, &opened) != 0) {
        errno = errno == ENOENT || errno == ENOTDIR ? 0 : errno; // it has gone
        return false;
    }
    return isSameState(named, opened) && isSameState(opened, asRead);
}

} // namespace host
