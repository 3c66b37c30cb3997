#pragma once

#include <string>
#include <string_view>

/// File names as they cross the library boundary. A file name is any bytes; a wide string holds characters.
/// What is valid UTF-8 crosses as its characters, and each other byte 0x80 to 0xFF as U+DC80 to U+DCFF, lone
/// surrogates that no text contains: every name survives the way there and back. The header stands alone, for
/// hosts to use. Any thread; std::bad_alloc is all that is thrown.
///
///     library.LoadFromFile(engine::wideFromFileName(path), L"");
namespace engine {

/// What the two functions below are made of.
namespace filename_detail {

constexpr char32_t escapeOfByte0 = 0xdc00;

inline bool isContinuation(unsigned char byte)
{
    return (byte & 0xc0) == 0x80;
}

/// Length of the valid UTF-8 sequence that `bytes` begins with, 0 when there is none.
inline std::size_t sequenceLength(std::string_view bytes)
{
    const auto at = [&](std::size_t index) { return static_cast<unsigned char>(bytes[index]); };
    const unsigned char lead = at(0);
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xc2 ? 0
                               : lead < 0xe0 ? 2
                               : lead < 0xf0 ? 3
                               : lead < 0xf5 ? 4
                                             : 0;
    if (length == 0 || length > bytes.size())
        return 0;
    for (std::size_t index = 1; index < length; ++index)
        if (!isContinuation(at(index)))
            return 0;
    const bool overlong = (lead == 0xe0 && at(1) < 0xa0) || (lead == 0xf0 && at(1) < 0x90);
    const bool surrogate = lead == 0xed && at(1) >= 0xa0;
    const bool beyondUnicode = lead == 0xf4 && at(1) >= 0x90;
    return overlong || surrogate || beyondUnicode ? 0 : length;
}

/// The character that a valid sequence stands for.
inline wchar_t character(std::string_view sequence)
{
    const auto lead = static_cast<unsigned char>(sequence[0]);
    char32_t code = sequence.size() == 1 ? lead : lead & (0x7fu >> sequence.size());
    for (const char byte : sequence.substr(1))
        code = code << 6 | (static_cast<unsigned char>(byte) & 0x3f);
    return static_cast<wchar_t>(code);
}

/// \param code up to U+10FFFF.
inline void appendUtf8(std::string& bytes, char32_t code)
{
    if (code < 0x80) {
        bytes.push_back(static_cast<char>(code));
        return;
    }
    const int continuations = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    bytes.push_back(static_cast<char>((0xff00u >> (continuations + 1) & 0xff) | code >> 6 * continuations));
    for (int left = continuations - 1; left >= 0; --left)
        bytes.push_back(static_cast<char>(0x80 | (code >> 6 * left & 0x3f)));
}

} // namespace filename_detail

/// The wide string that stands for a file name's bytes.
/// \param bytes any, without a NUL for the name of a file; a path with its slashes is fine.
/// \returns one wide character for each character, and for each byte that is part of none.
inline std::wstring wideFromFileName(std::string_view bytes)
{
    using namespace filename_detail;
    std::wstring wide;
    wide.reserve(bytes.size());
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0)
            wide.push_back(static_cast<wchar_t>(escapeOfByte0 + static_cast<unsigned char>(bytes[0])));
        else
            wide.push_back(character(bytes.substr(0, length)));
        bytes.remove_prefix(length == 0 ? 1 : length);
    }
    return wide;
}

/// The bytes that a wide string stands for, also of names that the library gives. Every string that
/// `wideFromFileName` makes comes back whole; of other strings, what is no character (a lone surrogate, a
/// number beyond Unicode) becomes U+FFFD.
inline std::string fileNameFromWide(std::wstring_view wide)
{
    using namespace filename_detail;
    std::string bytes;
    bytes.reserve(wide.size() * 4); // as much as UTF-8 takes, for passwords must not be moved about
    for (const wchar_t each : wide) {
        const auto code = static_cast<char32_t>(each);
        if (code >= escapeOfByte0 + 0x80 && code <= escapeOfByte0 + 0xff)
            bytes.push_back(static_cast<char>(code - escapeOfByte0));
        else if (code > 0x10ffff || (code >= 0xd800 && code <= 0xdfff))
            appendUtf8(bytes, 0xfffd);
        else
            appendUtf8(bytes, code);
    }
    return bytes;
}

} // namespace engine
