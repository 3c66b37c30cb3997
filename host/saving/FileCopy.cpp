#include "FileCopy.h"

#include "host/files/FileDescriptor.h"

#include "filecopy/ContentCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace host {

namespace {

Failure cannotRead(int error)
{
    return Failure::ofSystem(error, ReasonCode::ReadFailed, "cannot be read: ");
}

Failure cannotWrite(int error)
{
    return Failure::ofSystem(error, ReasonCode::WriteFailed, "cannot be written: ");
}

Failure copyContent(int from, std::uint64_t size, FileDescriptor& to)
{
    const filecopy::Outcome outcome = filecopy::copyContent(from, to.get(), size);
    switch (outcome.kind) {
    case filecopy::Outcome::ReadFailed:
        return cannotRead(outcome.error);
    case filecopy::Outcome::WriteFailed:
        return cannotWrite(outcome.error);
    case filecopy::Outcome::Shortened:
        return {ReasonCode::ChangedMeanwhile, "cannot be read: another program made it shorter meanwhile"};
    case filecopy::Outcome::Done:
        break;
    }
    return to.close() ? Failure() : cannotWrite(errno);
}

} // namespace

Failure copyFile(const std::string& source, const std::string& target)
{
    const FileDescriptor from = openRegularFile(source);
    struct stat status;
    if (!from.isOpen() || fstat(from.get(), &status) != 0)
        return cannotRead(errno);
    return copyBegin(from.get(), static_cast<std::uint64_t>(status.st_size), target);
}

Failure copyBegin(int source, std::uint64_t size, const std::string& target)
{
    FileDescriptor to(::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!to.isOpen())
        return cannotWrite(errno);
    Failure problem = copyContent(source, size, to);
    if (problem)
        unlink(target.c_str());
    return problem;
}

} // namespace host
