#include "TableScanner.h"

#include "CharacterClass.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <utility>

namespace engine {

namespace {

const std::int64_t entriesAtOnce = 4096;
const long long longSubsection = 4096; // entries
const long long lookedAt = 512;        // at either end of a long one
const std::size_t longestHeader = 40;
const std::int64_t mostSpace = 4096; // with a header
const std::size_t longestWord = 20;
const std::size_t spaceAtOnce = 64;

bool areDigits(const char* text, std::size_t count)
{
    bool all = true;
    for (std::size_t index = 0; index < count; ++index) // without a branch: it is vectorised
        all &= static_cast<unsigned char>(text[index] - '0') < 10;
    return all;
}

/// Whether libqpdf reads the same numbers: from one short line, which begins where it looks and ends
/// once, without NUL.
/// \param text from the end of what stands before the subsection to its first entry.
bool isUsualHeader(std::string_view text, bool isFirst)
{
    if (isFirst)
        text.remove_prefix(std::min(text.find_first_not_of("\r\n "), text.size()));
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view lineEnd = text.substr(end);
    return end <= longestHeader && text.substr(0, end).find_first_not_of("0123456789 ") == text.npos &&
           (lineEnd == "\n" || lineEnd == "\r\n" || lineEnd == "\r");
}

bool isWordCharacter(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0;
}

} // namespace

bool isUsualTableEntry(std::string_view text)
{
    return text.size() == tableEntrySize && areDigits(text.data(), 10) && text[10] == ' ' &&
           areDigits(text.data() + 11, 5) && text[16] == ' ' && (text[17] == 'n' || text[17] == 'f') &&
           (text[18] == ' ' || text[18] == '\r') && (text[19] == '\n' || text[19] == '\r');
}

TableScanner::TableScanner(FileWindows& file, std::int64_t position, bool usualOnly)
    : m_file(file), m_position(position), m_usualOnly(usualOnly)
{}

std::optional<TableScanner::Subsection> TableScanner::nextSubsection()
{
    const std::int64_t begin = m_position;
    skipSpace();
    const std::string_view start = word();
    if (start == "trailer") {
        m_position += static_cast<std::int64_t>(start.size());
        return std::nullopt;
    }
    const auto first = number();
    skipSpace();
    const auto count = first ? number() : std::nullopt;
    if (!count)
        return fail();
    skipSpace();
    const auto size = static_cast<std::size_t>(std::min(m_position - begin, mostSpace));
    if (m_usualOnly && !isUsualHeader(m_file.bytes(begin, size), !std::exchange(m_isBehindFirst, true)))
        return fail();
    Subsection subsection{*first, *count, m_position, true};
    const long long usual = m_usualOnly ? skipLikelyEntries(*count) : skipUsualEntries(*count);
    subsection.usual = usual == *count;
    if (m_usualOnly && !subsection.usual)
        return fail();
    for (long long entry = usual; entry < *count; ++entry)
        if (!skipEntry())
            return fail();
    return subsection;
}

/// Steps over the entries of the usual 20 bytes; the middle of a long subsection is skipped unread.
/// \returns how many there are as far as it looked.
long long TableScanner::skipLikelyEntries(long long count)
{
    if (count <= longSubsection || count > m_file.size() / tableEntrySize)
        return skipUsualEntries(count);
    const long long first = skipUsualEntries(lookedAt);
    if (first < lookedAt)
        return first;
    const long long passedOver = count - 2 * lookedAt;
    m_position += passedOver * tableEntrySize;
    return first + passedOver + skipUsualEntries(lookedAt);
}

/// Steps over as many entries of the usual 20 bytes as there are.
long long TableScanner::skipUsualEntries(long long count)
{
    for (long long done = 0; done < count;) {
        const std::int64_t part = std::min<std::int64_t>(entriesAtOnce, count - done);
        const auto size = static_cast<std::size_t>(part * tableEntrySize);
        const std::string_view entries = m_file.bytes(m_position, size);
        std::size_t at = 0;
        while (at < entries.size() && isUsualTableEntry(entries.substr(at, tableEntrySize)))
            at += tableEntrySize;
        m_position += static_cast<std::int64_t>(at);
        done += static_cast<long long>(at / tableEntrySize);
        if (at < size)
            return done;
    }
    return count;
}

/// Steps over an entry of any length: two numbers and a letter.
bool TableScanner::skipEntry()
{
    for (int field = 0; field < 2; ++field) {
        skipSpace();
        if (!number())
            return false;
    }
    skipSpace();
    const std::string_view kind = word();
    m_position += static_cast<std::int64_t>(kind.size());
    return kind == "n" || kind == "f";
}

void TableScanner::skipSpace()
{
    for (;;) {
        const std::string_view text = m_file.bytes(m_position, spaceAtOnce);
        const auto end = std::find_if_not(text.begin(), text.end(), isSpace);
        m_position += end - text.begin();
        if (text.empty() || end != text.end())
            return;
    }
}

/// The word at the position, which stays; empty when it is too long for a table.
std::string_view TableScanner::word()
{
    const std::string_view text = m_file.bytes(m_position, longestWord + 1);
    const auto end = std::find_if_not(text.begin(), text.end(), isWordCharacter);
    const auto size = static_cast<std::size_t>(end - text.begin());
    return size > longestWord ? std::string_view() : text.substr(0, size);
}

std::optional<long long> TableScanner::number()
{
    const std::string_view text = word();
    long long value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    m_position += static_cast<std::int64_t>(text.size());
    return value;
}

std::nullopt_t TableScanner::fail()
{
    m_damaged = true;
    return std::nullopt;
}

} // namespace engine
