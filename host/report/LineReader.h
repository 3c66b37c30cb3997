#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// Reads an open file line by line, with bounded memory. A last line without its line feed may have been cut
/// off and is no line.
class LineReader
{
public:
    /// \param file stays open and the caller's. \param longest the size of a line, in bytes, above which the
    /// file is refused.
    LineReader(int file, std::size_t longest) : m_file(file), m_longest(longest) {}

    /// The next line with its line feed, valid until the next call; nothing at the end. Throws
    /// std::runtime_error when the file cannot be read or a line is too long.
    std::optional<std::string_view> next();

    /// Once there is no next line, what stands behind the last line feed.
    std::string_view rest() const { return std::string_view(m_waiting).substr(m_begin); }

    /// The number of the line that came last, from 1.
    std::size_t number() const { return m_number; }

private:
    /// \returns false at the end of the file.
    bool readMore();

    int m_file;
    std::size_t m_longest;
    std::string m_waiting;
    std::size_t m_begin = 0; ///< Of the next line among what waits.
    std::size_t m_number = 0;
};

} // namespace host
