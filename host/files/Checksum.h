#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace host {

/// SHA-256 of a file's first `size` bytes, in hexadecimal. Bounded, so that it costs a millisecond at most: of
/// more than 64 KiB, only the first and the last 32 KiB of them count. Whoever changes a file in between
/// changes its size or its time, or means to go unnoticed.
/// \returns empty, with errno set, when they cannot be read; errno is 0 when there are fewer.
std::string checksumOf(int file, std::int64_t size);

/// The same of all of some bytes.
std::string checksumOf(std::string_view bytes);

} // namespace host
