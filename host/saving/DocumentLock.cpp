#include "DocumentLock.h"

#include "host/files/FileState.h"

#include <sys/file.h>

#include <cerrno>

namespace host {

const char documentLocked[] = "another run, or another program, has it locked";

DocumentLock lockDocument(int file)
{
    if (flock(file, LOCK_EX | LOCK_NB) == 0)
        return DocumentLock::Taken;
    return errno == EWOULDBLOCK ? DocumentLock::Held : DocumentLock::Unavailable;
}

bool isAsRead(int file, const std::string& path, const struct stat& asRead)
{
    struct stat named;
    struct stat opened;
    return stat(path.c_str(), &named) == 0 && fstat(file, &opened) == 0 && isSameState(named, opened) &&
           isSameState(opened, asRead);
}

} // namespace host
