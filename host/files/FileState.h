#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>

namespace host {

/// A file's size and time of change as text, "1234 bytes, 2026-11-23T05:47:31.123456789Z", by which a later
/// run sees whether it is still the same.
std::string stateOf(const struct stat& file);

/// The same of the file at a path; empty when there is none.
std::string stateOf(const std::string& path);

/// What such a text tells.
struct FileState
{
    std::int64_t size;    ///< In bytes.
    struct timespec time; ///< Of the last change.

    /// Nothing for any other text.
    static std::optional<FileState> fromText(const std::string& text);
};

/// Whether two looks at a file saw the same one, changed or not.
bool isSameFile(const struct stat& one, const struct stat& other);
/// Whether two looks at a file saw the same one, unchanged.
bool isSameState(const struct stat& one, const struct stat& other);

} // namespace host
