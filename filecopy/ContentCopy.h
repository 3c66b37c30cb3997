#pragma once

#include <cstdint>

/// The content of a file into another one. Below host and library file alike: it knows the system only, keeps
/// nothing, and may be called from any thread.
namespace filecopy {

/// What became of a copy.
struct Outcome
{
    enum Kind {
        Done,
        ReadFailed,
        WriteFailed,
        Shortened ///< The source had fewer bytes than it was said to have.
    };

    Kind kind = Done;
    /// The system's errno where reading or writing failed, else 0.
    int error = 0;
};

/// Copies the first `size` bytes of an open file to the begin of another, which is empty, and costs as little
/// as the file systems allow: shared blocks where they can, a copy within the kernel else. Holes stay holes.
/// Neither file's position is used.
/// \param source open for reading, a regular file; \param target open for writing. Both stay open.
/// \param size in bytes, no more than the source is said to have.
/// \returns on failure why; what the target holds then is of no use.
Outcome copyContent(int source, int target, std::uint64_t size);

} // namespace filecopy
