#include "TableScanner.h"

#include "CharacterClass.h"
#include "engine/files/EngineError.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace engine {

namespace {

constexpr std::size_t chunkSize = 65536;
constexpr std::size_t longestWord = 20;
constexpr std::size_t usualEntrySize = 20;

[[noreturn]] void refuse()
{
    throw EngineError(ErrorCode::CannotAppend, "the cross-reference table is damaged");
}

bool areDigits(const char* text, std::size_t count)
{
    bool all = true;
    for (std::size_t index = 0; index < count; ++index) // without a branch: it is vectorised
        all &= static_cast<unsigned char>(text[index] - '0') < 10;
    return all;
}

} // namespace

bool isUsualTableEntry(std::string_view text)
{
    return text.size() == usualEntrySize && areDigits(text.data(), 10) && text[10] == ' ' &&
           areDigits(text.data() + 11, 5) && text[16] == ' ' && (text[17] == 'n' || text[17] == 'f') &&
           isSpace(text[18]) && (text[19] == '\n' || text[19] == '\r');
}

TableScanner::TableScanner(const ByteSource& source, std::uint64_t position)
    : m_source(source), m_chunkStart(position)
{}

std::optional<TableScanner::Subsection> TableScanner::nextSubsection()
{
    const std::string_view start = word();
    if (start == "trailer")
        return std::nullopt;
    Subsection subsection = {number(start), 0};
    subsection.count = number(word());
    for (long long entry = skipUsualEntries(subsection.count); entry < subsection.count; ++entry) {
        number(word());
        number(word());
        const std::string_view kind = word();
        if (kind != "n" && kind != "f")
            refuse();
    }
    return subsection;
}

/// Steps over as many entries of the usual 20 bytes as there are.
long long TableScanner::skipUsualEntries(long long count)
{
    while (isSpace(static_cast<char>(peek()))) // the end is none
        ++m_next;
    long long skipped = 0;
    for (; skipped < count; ++skipped) {
        if (m_chunk.size() - m_next < usualEntrySize) {
            m_chunkStart += m_next;
            m_chunk = m_source.text(m_chunkStart, chunkSize);
            m_next = 0;
        }
        if (!isUsualTableEntry(std::string_view(m_chunk).substr(m_next, usualEntrySize)))
            break;
        m_next += usualEntrySize;
    }
    return skipped;
}

int TableScanner::peek()
{
    if (m_next == m_chunk.size()) {
        m_chunkStart += m_chunk.size();
        m_chunk = m_source.text(m_chunkStart, chunkSize);
        m_next = 0;
    }
    return m_chunk.empty() ? -1 : static_cast<unsigned char>(m_chunk[m_next]);
}

std::string_view TableScanner::word()
{
    while (isSpace(static_cast<char>(peek()))) // the end is none
        ++m_next;
    m_word.clear();
    for (int character = peek(); character >= 0 && std::isalnum(character); character = peek()) {
        if (m_word.size() == longestWord)
            refuse();
        m_word.push_back(static_cast<char>(character));
        ++m_next;
    }
    return m_word;
}

long long TableScanner::number(std::string_view text) const
{
    long long value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        refuse();
    return value;
}

} // namespace engine
