#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace engine {

class ByteSource;

/// A file in the making: written under a name of its own beside the target, and renamed over it when
/// complete. Without commit() nothing of it remains. All functions throw EngineError with DiskFull,
/// FileTooLarge, DeviceFailed, ReadOnlyFileSystem, AccessDenied, FileNotFound (of the folder), SourceChanged,
/// ReadFailed or WriteFailed.
class OutputFile
{
public:
    /// What the names of unfinished files begin with.
    static constexpr std::string_view temporaryPrefix = ".quintar-";

    /// A symbolic link is followed, so that its target is what is replaced. The mode of a file that is
    /// replaced is kept; a new one has what the umask leaves.
    /// \throws EngineError with NotARegularFile when the path names something else.
    explicit OutputFile(const std::string& path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    /// Begins the file with all bytes of the source, which for a file costs as little as the file systems
    /// allow: shared blocks where they can, a copy within the kernel else. Holes stay holes.
    void copy(const ByteSource& source);

    void write(std::string_view bytes);

    /// Where the file is until commit(), complete or not.
    const std::string& writtenPath() const { return m_temporary; }

    void commit();

private:
    void create(const std::string& folder, unsigned mode);
    void createAt(const std::string& name, unsigned mode);
    void copyFromMemory(const ByteSource& source);
    void writeAt(std::uint64_t offset, std::string_view bytes);

    std::string m_target;
    std::string m_temporary;
    int m_fd = -1;
    std::uint64_t m_size = 0;
};

} // namespace engine
