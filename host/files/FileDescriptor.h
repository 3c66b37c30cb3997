#pragma once

#include <cstddef>
#include <string>

namespace host {

/// Owns one open file descriptor, or none (-1).
class FileDescriptor
{
public:
    explicit FileDescriptor(int descriptor = -1) : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : m_descriptor(other.release()) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    ~FileDescriptor() { close(); }

    int get() const { return m_descriptor; }
    bool isOpen() const { return m_descriptor >= 0; }
    int release();
    /// Closes now. \returns false, with errno set, when the system reports a failed write only here.
    bool close();

private:
    int m_descriptor;
};

/// Stands in errno for a file that is not a regular one.
inline constexpr int notARegularFile = -1;

/// Opens a regular file for reading without ever waiting for a writer. \returns a closed descriptor and errno
/// on failure.
FileDescriptor openRegularFile(const std::string& path);

/// Writes all bytes. \returns false with errno set on failure.
bool writeAll(int descriptor, const char* bytes, std::size_t size);

/// Appends all that is left to read, up to `limit` bytes. \returns false on failure, EFBIG when there is
/// more.
bool readAll(int descriptor, std::string& bytes, std::size_t limit);

/// The system's words for an errno value.
std::string systemError(int number);

} // namespace host
