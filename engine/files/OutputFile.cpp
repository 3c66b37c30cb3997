#include "OutputFile.h"

#include "ByteSource.h"
#include "EngineError.h"

#include "filecopy/ContentCopy.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace engine {

namespace {

const std::size_t chunkSize = 1 << 18;

[[noreturn]] void fail(int error)
{
    ErrorCode code = ErrorCode::WriteFailed;
    if (error == ENOSPC || error == EDQUOT)
        code = ErrorCode::DiskFull;
    else if (error == EFBIG)
        code = ErrorCode::FileTooLarge;
    else if (error == EIO)
        code = ErrorCode::DeviceFailed;
    else if (error == EROFS)
        code = ErrorCode::ReadOnlyFileSystem;
    else if (error == EACCES || error == EPERM)
        code = ErrorCode::AccessDenied;
    else if (error == ENOENT || error == ENOTDIR)
        code = ErrorCode::FileNotFound;
    throw EngineError(code, std::strerror(error));
}

std::string followed(const std::string& path)
{
    struct stat status = {};
    if (::lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode))
        return path;
    char* resolved = ::realpath(path.c_str(), nullptr);
    if (resolved == nullptr)
        fail(errno);
    std::string target(resolved);
    std::free(resolved);
    return target;
}

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

bool isUnfinished(const std::string& path)
{
    const std::string_view name = std::string_view(path).substr(path.rfind('/') + 1);
    return name.substr(0, OutputFile::temporaryPrefix.size()) == OutputFile::temporaryPrefix;
}

std::string unguessableName()
{
    std::uint64_t number = 0;
    if (::getrandom(&number, sizeof(number), 0) != sizeof(number))
        fail(errno);
    char digits[17];
    std::snprintf(digits, sizeof(digits), "%016llx", static_cast<unsigned long long>(number));
    return std::string(OutputFile::temporaryPrefix) + digits + ".tmp";
}

} // namespace

OutputFile::OutputFile(const std::string& path) : m_target(isUnfinished(path) ? path : followed(path))
{
    if (isUnfinished(m_target)) { // made with O_EXCL, so a link of that name is refused
        createAt(m_target, 0600);
        if (m_fd < 0)
            fail(errno);
        return;
    }
    struct stat status = {};
    const bool replaces = ::stat(m_target.c_str(), &status) == 0;
    if (!replaces && errno != ENOENT)
        fail(errno);
    if (replaces && !S_ISREG(status.st_mode))
        throw EngineError(ErrorCode::NotARegularFile);
    create(folderOf(m_target), replaces ? 0600 : 0666);
    if (replaces && ::fchmod(m_fd, status.st_mode & 01777) != 0)
        fail(errno);
}

OutputFile::~OutputFile()
{
    if (m_fd >= 0)
        ::close(m_fd);
    if (!m_temporary.empty())
        ::unlink(m_temporary.c_str());
}

void OutputFile::create(const std::string& folder, unsigned mode)
{
    while (m_fd < 0) {
        createAt(folder + unguessableName(), mode);
        if (m_fd < 0 && errno != EEXIST && errno != EINTR)
            fail(errno);
    }
}

void OutputFile::createAt(const std::string& name, unsigned mode)
{
    m_fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (m_fd >= 0)
        m_temporary = name;
}

void OutputFile::copy(const ByteSource& source)
{
    m_size = source.size();
    if (source.fd() < 0)
        return copyFromMemory(source);
    const filecopy::Outcome outcome = filecopy::copyContent(source.fd(), m_fd, m_size);
    if (outcome.kind == filecopy::Outcome::Shortened)
        throw EngineError(ErrorCode::SourceChanged);
    if (outcome.kind == filecopy::Outcome::ReadFailed)
        throw EngineError(ErrorCode::ReadFailed);
    if (outcome.kind == filecopy::Outcome::WriteFailed)
        fail(outcome.error);
}

void OutputFile::copyFromMemory(const ByteSource& source)
{
    std::string chunk(chunkSize, '\0');
    std::uint64_t offset = 0;
    while (const std::size_t count = source.read(offset, chunk.data(), chunk.size())) {
        writeAt(offset, {chunk.data(), count});
        offset += count;
    }
}

void OutputFile::writeAt(std::uint64_t offset, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::pwrite(m_fd, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (count < 0 && errno != EINTR)
            fail(errno);
        if (count <= 0)
            continue;
        bytes.remove_prefix(static_cast<std::size_t>(count));
        offset += static_cast<std::uint64_t>(count);
    }
}

void OutputFile::write(std::string_view bytes)
{
    writeAt(m_size, bytes);
    m_size += bytes.size();
}

void OutputFile::commit()
{
    // Some file systems report a full disk only on closing.
    const int fd = std::exchange(m_fd, -1);
    if (::close(fd) != 0 && errno != EINTR)
        fail(errno);
    if (m_temporary != m_target && ::rename(m_temporary.c_str(), m_target.c_str()) != 0)
        fail(errno);
    m_temporary.clear();
}

} // namespace engine
