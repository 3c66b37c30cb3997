#pragma once

#include <optional>
#include <string>

namespace host {

/// Words that come a line each from a pipe, taken without waiting for any. A line may be anything and of any
/// length: no more of it is kept than the longest word has.
class ControlWords
{
public:
    static constexpr std::size_t longestWord = 64;

    /// \param descriptor stays open; nobody else may read it.
    explicit ControlWords(int descriptor) : m_descriptor(descriptor) {}

    /// Becomes readable when there is something to take; to be asked only before the end.
    int descriptor() const { return m_descriptor; }
    /// The next word, cut off after the longest; nothing when none has come yet, or at the end.
    std::optional<std::string> next();
    /// Nothing will come any more.
    bool isAtEnd() const { return m_isAtEnd; }

private:
    bool fill();

    int m_descriptor;
    std::string m_bytes;
    std::string m_word;
    bool m_isAtEnd = false;
};

} // namespace host
