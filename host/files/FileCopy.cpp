#include "FileCopy.h"

#include "FileDescriptor.h"

#include "filecopy/ContentCopy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace host {

namespace {

std::string copyContent(const FileDescriptor& from, FileDescriptor& to)
{
    struct stat status;
    if (fstat(from.get(), &status) != 0)
        return "cannot be read: " + systemError(errno);
    const filecopy::Outcome outcome =
        filecopy::copyContent(from.get(), to.get(), static_cast<std::uint64_t>(status.st_size));
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
    if (!from.isOpen())
        return "cannot be read: " + systemError(errno);
    FileDescriptor to(::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600));
    if (!to.isOpen())
        return "cannot be written: " + systemError(errno);
    std::string problem = copyContent(from, to);
    if (!problem.empty())
        unlink(target.c_str());
    return problem;
}

} // namespace host
