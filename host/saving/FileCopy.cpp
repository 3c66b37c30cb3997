#include "FileCopy.h"

#include "host/files/FileDescriptor.h"

#include "filecopy/ContentCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace host {

namespace {

std::string copyContent(int from, std::uint64_t size, FileDescriptor& to)
{
    const filecopy::Outcome outcome = filecopy::copyContent(from, to.get(), size);
    switch (outcome.kind) {
    case filecopy::Outcome::ReadFailed:
        return "cannot be read: " + systemError(outcome.error);
    case filecopy::Outcome::WriteFailed:
        return "cannot be written: " + systemError(outcome.error);
    case filecopy::Outcome::Shortened:
        return "cannot be read: another program made it shorter meanwhile";
    case filecopy::Outcome::Done:
        break;
    }
    return to.close() ? "" : "cannot be written: " + systemError(errno);
}

} // namespace

std::string copyFile(const std::string& source, const std::string& target)
{
    const FileDescriptor from = openRegularFile(source);
    struct stat status;
    if (!from.isOpen() || fstat(from.get(), &status) != 0)
        return "cannot be read: " + systemError(errno);
    return copyBegin(from.get(), static_cast<std::uint64_t>(status.st_size), target);
}

std::string copyBegin(int source, std::uint64_t size, const std::string& target)
{
    FileDescriptor to(::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!to.isOpen())
        return "cannot be written: " + systemError(errno);
    std::string problem = copyContent(source, size, to);
    if (!problem.empty())
        unlink(target.c_str());
    return problem;
}

} // namespace host
