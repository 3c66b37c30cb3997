#pragma once

#include <cstdint>

/// Below host and library file alike: it knows the system only.
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
    /// The system's errno where reading or writing failed.
    int error = 0;
};

/// Copies the first `size` bytes of an open file to the begin of another, which is empty, and costs as little
/// as the file systems allow: shared blocks where they can, a copy within the kernel else. Holes stay holes.
/// Neither file's position is used.
Outcome copyContent(int source, int target, std::uint64_t size);

} // namespace filecopy
