#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace host {

/// Lines that come from a pipe, taken without waiting for any. They may be anything: of a line that is too
/// long no more than its beginning is kept.
class PipeLines
{
public:
    /// \param descriptor stays open; nobody else may read it. \param longest what is kept of a line, in bytes.
    PipeLines(int descriptor, std::size_t longest) : m_descriptor(descriptor), m_longest(longest) {}

    /// Becomes readable when there is something to take; to be asked only before the end.
    int descriptor() const { return m_descriptor; }
    /// The next line without its line feed; nothing when none has come yet, or at the end.
    std::optional<std::string> next();
    /// Nothing will come any more.
    bool isAtEnd() const { return m_isAtEnd; }

private:
    bool fill();

    int m_descriptor;
    std::size_t m_longest;
    std::string m_bytes;
    std::string m_line;
    bool m_isAtEnd = false;
};

} // namespace host
