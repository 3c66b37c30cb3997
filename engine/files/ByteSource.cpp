#include "ByteSource.h"

#include "EngineError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace engine {

namespace {

ErrorCode openingError(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return ErrorCode::FileNotFound;
    case EACCES:
    case EPERM:
        return ErrorCode::AccessDenied;
    case ENXIO: // a socket, or a device that is not there
        return ErrorCode::NotARegularFile;
    default:
        return ErrorCode::ReadFailed;
    }
}

} // namespace

std::shared_ptr<ByteSource> ByteSource::openFile(const std::string& path)
{
    std::shared_ptr<ByteSource> source(new ByteSource);
    // Without O_NONBLOCK a FIFO would be waited for.
    source->m_fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (source->m_fd < 0)
        throw EngineError(openingError(errno));
    struct stat status = {};
    if (::fstat(source->m_fd, &status) != 0)
        throw EngineError(ErrorCode::ReadFailed);
    if (!S_ISREG(status.st_mode))
        throw EngineError(ErrorCode::NotARegularFile);
    if (status.st_size == 0)
        throw EngineError(ErrorCode::EmptyFile);
    source->m_size = static_cast<std::uint64_t>(status.st_size);
    source->m_modifiedSeconds = status.st_mtim.tv_sec;
    source->m_modifiedNanoseconds = status.st_mtim.tv_nsec;
    return source;
}

std::shared_ptr<ByteSource> ByteSource::fromBytes(std::string bytes)
{
    if (bytes.empty())
        throw EngineError(ErrorCode::EmptyFile);
    std::shared_ptr<ByteSource> source(new ByteSource);
    source->m_bytes = std::move(bytes);
    source->m_size = source->m_bytes.size();
    return source;
}

ByteSource::~ByteSource()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

std::size_t ByteSource::read(std::uint64_t offset, void* into, std::size_t size) const
{
    if (offset >= m_size)
        return 0;
    size = static_cast<std::size_t>(std::min<std::uint64_t>(size, m_size - offset));
    if (m_fd < 0) {
        std::memcpy(into, m_bytes.data() + offset, size);
        return size;
    }
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            ::pread(m_fd, static_cast<char*>(into) + done, size - done, static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            m_readFailed = true;
            throw EngineError(ErrorCode::ReadFailed);
        }
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    if (done > 0 && offset + done == m_size)
        m_lastByte = static_cast<const char*>(into)[done - 1];
    return done;
}

char ByteSource::lastByte() const
{
    char byte = '\0';
    if (!m_lastByte)
        read(m_size - 1, &byte, 1);
    return m_lastByte.value_or(byte);
}

std::string ByteSource::text(std::uint64_t offset, std::size_t size) const
{
    if (offset >= m_size)
        return {};
    std::string result(static_cast<std::size_t>(std::min<std::uint64_t>(size, m_size - offset)), '\0');
    result.resize(read(offset, result.data(), result.size()));
    return result;
}

bool ByteSource::unchangedSinceOpened() const
{
    if (m_fd < 0)
        return true;
    struct stat status = {};
    return ::fstat(m_fd, &status) == 0 && static_cast<std::uint64_t>(status.st_size) == m_size &&
           status.st_mtim.tv_sec == m_modifiedSeconds && status.st_mtim.tv_nsec == m_modifiedNanoseconds;
}

} // namespace engine
