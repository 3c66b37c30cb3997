#include "FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace host {

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept
{
    if (this != &other) {
        close();
        m_descriptor = other.release();
    }
    return *this;
}

int FileDescriptor::release()
{
    return std::exchange(m_descriptor, -1);
}

bool FileDescriptor::close()
{
    return !isOpen() || ::close(release()) == 0;
}

FileDescriptor openRegularFile(const std::string& path)
{
    // O_NONBLOCK: opening a FIFO for reading would otherwise wait for a writer.
    FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status;
    if (!file.isOpen() || fstat(file.get(), &status) != 0)
        return FileDescriptor();
    if (S_ISREG(status.st_mode))
        return file;
    file.close();
    errno = S_ISDIR(status.st_mode) ? EISDIR : notARegularFile;
    return FileDescriptor();
}

bool writeAll(int descriptor, const char* bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(descriptor, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool readAll(int descriptor, std::string& bytes, std::size_t limit)
{
    char chunk[65536];
    for (;;) {
        const ssize_t count = ::read(descriptor, chunk, sizeof chunk);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        if (count == 0)
            return true;
        if (bytes.size() + static_cast<std::size_t>(count) > limit) {
            errno = EFBIG;
            return false;
        }
        bytes.append(chunk, static_cast<std::size_t>(count));
    }
}

std::string systemError(int number)
{
    if (number == notARegularFile)
        return "not a regular file";
    std::string text = std::strerror(number);
    if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z')
        text[0] = static_cast<char>(text[0] - 'A' + 'a');
    return text;
}

} // namespace host
