#include "engine/TableScanner.h"

#include "engine/EngineError.h"

#include <cctype>
#include <charconv>

namespace engine {

namespace {

constexpr std::size_t chunkSize = 65536;
constexpr std::size_t longestWord = 20;

[[noreturn]] void refuse()
{
    throw EngineError(ErrorCode::CannotAppend, "the cross-reference table is damaged");
}

bool isSpace(int character)
{
    return character == ' ' || character == '\n' || character == '\r' || character == '\t' ||
           character == '\f' || character == '\0';
}

} // namespace

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
    for (long long entry = 0; entry < subsection.count; ++entry) {
        number(word());
        number(word());
        const std::string_view kind = word();
        if (kind != "n" && kind != "f")
            refuse();
    }
    return subsection;
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
    while (isSpace(peek()))
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
