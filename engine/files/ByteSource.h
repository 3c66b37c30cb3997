#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace engine {

/// The bytes that a document was loaded from: a file kept open, or memory. Reading is by position and changes
/// no state, and nothing is mapped, so a file that another program cuts short costs a short read, not a
/// signal.
class ByteSource
{
public:
    /// Opens a regular file for reading; never waits, whatever the path names.
    /// \throws EngineError with FileNotFound, AccessDenied, NotARegularFile, EmptyFile or ReadFailed.
    static std::shared_ptr<ByteSource> openFile(const std::string& path);

    /// \throws EngineError with EmptyFile for no bytes.
    static std::shared_ptr<ByteSource> fromBytes(std::string bytes);

    ~ByteSource();
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;

    /// In bytes, as it was on opening.
    std::uint64_t size() const { return m_size; }

    /// Reads up to `size` bytes from `offset` on; fewer are returned only at the end.
    /// \throws EngineError with ReadFailed.
    std::size_t read(std::uint64_t offset, void* into, std::size_t size) const;

    /// The same into a new string.
    std::string text(std::uint64_t offset, std::size_t size) const;

    /// \throws EngineError with ReadFailed.
    char lastByte() const;

    /// The open file, owned by this object; -1 for memory.
    int fd() const { return m_fd; }

    /// False as soon as the file's size or time of change differs from what it was on opening.
    bool unchangedSinceOpened() const;

    /// True once a read threw, even if nobody heard of it.
    bool readFailed() const { return m_readFailed; }

private:
    ByteSource() = default;

    int m_fd = -1;
    std::string m_bytes;
    std::uint64_t m_size = 0;
    std::int64_t m_modifiedSeconds = 0;
    std::int64_t m_modifiedNanoseconds = 0;
    mutable std::optional<char> m_lastByte; // once it was among what was read
    mutable bool m_readFailed = false;
};

} // namespace engine
