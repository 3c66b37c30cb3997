#include "SyntaxScanner.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

const std::size_t deepestNesting = 100;

bool isNumber(std::string_view word, std::size_t mostDigits)
{
    if (!word.empty() && (word.front() == '+' || word.front() == '-'))
        word.remove_prefix(1);
    std::size_t digits = 0;
    std::size_t points = 0;
    for (const char character : word) {
        digits += isDigit(character) ? 1U : 0U;
        points += character == '.' ? 1U : 0U;
    }
    const bool fits = points == 1 || digits <= mostDigits;
    return digits > 0 && points <= 1 && digits + points == word.size() && fits;
}

} // namespace

bool SyntaxScanner::keyword(std::string_view word)
{
    if (m_text.substr(m_at, word.size()) != word)
        return false;
    const std::size_t end = m_at + word.size();
    if (end < m_text.size() && isRegular(m_text[end]))
        return false;
    m_at = end;
    return true;
}

void SyntaxScanner::skipSpaceAndComments()
{
    for (skipSpace(); !atEnd() && m_text[m_at] == '%'; skipSpace())
        m_at = std::min(m_text.find_first_of("\r\n", m_at), m_text.size());
}

/// Fast path for what long arrays consist of: skips whole numbers and references up to the first thing that
/// is neither. \returns whether there was any.
bool SyntaxScanner::skipReferences()
{
    const std::size_t before = m_at;
    int numbers = 0; // since the last reference, and the one that may begin here
    const char* const begin = m_text.data();
    const char* const end = begin + m_text.size();
    const char* next = begin + m_at;
    for (;;) {
        while (next < end && isSpace(*next))
            ++next;
        const char* const start = next;
        if (const char* const behind = behindUsualReference(next, end)) {
            next = behind;
            numbers = 0;
            continue;
        }
        while (next < end && isDigit(*next))
            ++next;
        ++numbers;
        const bool isTooLong = next - start > static_cast<std::ptrdiff_t>(mostDigits);
        if (next == start && next < end && *next == 'R' && numbers > 2) {
            ++next;
            numbers = 0;
        }
        if (isTooLong || next == start || next == end || isRegular(*next)) {
            m_at = static_cast<std::size_t>(start - begin);
            return m_at > before;
        }
    }
}

std::optional<SyntaxScanner::Reference> SyntaxScanner::reference()
{
    const auto number = integer();
    skipSpace();
    const auto generation = integer();
    skipSpace();
    if (!number || *number < 1 || *number > INT32_MAX || !generation || *generation > UINT16_MAX ||
        !keyword("R"))
        return std::nullopt;
    return Reference{static_cast<int>(*number), static_cast<int>(*generation)};
}

struct SyntaxScanner::Brackets
{
    std::array<char, deepestNesting> kinds;
    std::size_t depth = 0;
};

// value     = token | "[" item* "]" | "<<" item* ">>"      which items are keys is for DictionaryScanner
// item      = value | reference
// reference = integer integer "R"
// token     = name | string | number | "true" | "false" | "null" | "R"      "R" only outside brackets
SyntaxScanner::Outcome SyntaxScanner::skipValue()
{
    Brackets open;
    do {
        skipSpace();
        if (atEnd())
            return Outcome::CutOff;
        const char first = m_text[m_at];
        if (open.depth > 0 && isDigit(first) && skipReferences())
            continue;
        // An R that ends a reference was consumed with its numbers; this one stands alone.
        if (open.depth > 0 && first == 'R')
            return m_at + 1 < m_text.size() ? Outcome::Odd : Outcome::CutOff;
        const Outcome outcome = standsAtBracket() ? skipBracket(open) : skipToken();
        if (outcome != Outcome::Complete)
            return outcome;
    } while (open.depth > 0);
    return Outcome::Complete;
}

bool SyntaxScanner::standsAtBracket() const
{
    const char first = m_text[m_at];
    return first == '[' || first == ']' || first == '>' ||
           (first == '<' && m_at + 1 < m_text.size() && m_text[m_at + 1] == '<');
}

SyntaxScanner::Outcome SyntaxScanner::skipBracket(Brackets& open)
{
    const char bracket = m_text[m_at];
    const bool isAngle = bracket == '<' || bracket == '>';
    if (bracket == '>' && m_at + 1 == m_text.size())
        return Outcome::CutOff;
    if (bracket == '>' && m_text[m_at + 1] != '>')
        return Outcome::Odd;
    if (bracket == '[' || bracket == '<') {
        if (open.depth == open.kinds.size())
            return Outcome::Odd;
        open.kinds[open.depth++] = bracket;
    } else {
        if (open.depth == 0 || open.kinds[open.depth - 1] != (isAngle ? '<' : '['))
            return Outcome::Odd;
        --open.depth;
    }
    m_at += isAngle ? 2 : 1;
    return Outcome::Complete;
}

SyntaxScanner::Outcome SyntaxScanner::skipToken()
{
    switch (m_text[m_at]) {
    case '/':
        return skipName();
    case '(':
        return skipLiteralString();
    case '<':
        return m_at + 1 < m_text.size() ? skipHexString() : Outcome::CutOff;
    default:
        return skipWord();
    }
}

SyntaxScanner::Outcome SyntaxScanner::skipName()
{
    std::size_t at = m_at + 1;
    while (at < m_text.size() && isRegular(m_text[at]))
        ++at;
    m_at = at;
    return atEnd() ? Outcome::CutOff : Outcome::Complete;
}

SyntaxScanner::Outcome SyntaxScanner::skipLiteralString()
{
    std::size_t depth = 0;
    for (; !atEnd(); ++m_at) {
        const char character = m_text[m_at];
        if (character == '\\')
            ++m_at;
        else if (character == '(')
            ++depth;
        else if (character == ')' && --depth == 0) {
            ++m_at;
            return Outcome::Complete;
        }
    }
    return Outcome::CutOff;
}

SyntaxScanner::Outcome SyntaxScanner::skipHexString()
{
    for (++m_at; !atEnd(); ++m_at) {
        const char character = m_text[m_at];
        if (character == '>') {
            ++m_at;
            return Outcome::Complete;
        }
        if (!isSpace(character) && std::strchr("0123456789abcdefABCDEF", character) == nullptr)
            return Outcome::Odd;
    }
    return Outcome::CutOff;
}

SyntaxScanner::Outcome SyntaxScanner::skipWord()
{
    const std::size_t start = m_at;
    while (!atEnd() && isDigit(m_text[m_at])) // fast path: most words are whole numbers
        ++m_at;
    if (m_at > start && m_at - start <= mostDigits && !atEnd() && !isRegular(m_text[m_at]))
        return Outcome::Complete;
    while (!atEnd() && isRegular(m_text[m_at]))
        ++m_at;
    if (atEnd())
        return Outcome::CutOff;
    const std::string_view word = m_text.substr(start, m_at - start);
    if (word == "true" || word == "false" || word == "null" || word == "R" || isNumber(word, mostDigits))
        return Outcome::Complete;
    return Outcome::Odd;
}

DictionaryScanner::DictionaryScanner(std::string_view text)
    : m_inside(text.substr(0, text.size() < 4 ? 0 : text.size() - 2)), m_scanner(text, 2),
      m_odd(!text.starts_with("<<") || !text.ends_with(">>") || text.size() < 4)
{
    if (!m_odd)
        advance();
}

/// Steps to the next object inside and notes where it lies.
void DictionaryScanner::advance()
{
    m_scanner.skipSpace();
    m_start = m_scanner.position();
    if (m_start >= m_inside.size())
        return;
    if (m_scanner.skipValue() != SyntaxScanner::Outcome::Complete || m_scanner.position() > m_inside.size())
        m_odd = true;
    m_end = m_scanner.position();
}

std::optional<DictionaryScanner::Entry> DictionaryScanner::next()
{
    if (m_odd || m_start >= m_inside.size())
        return std::nullopt;
    Entry entry{m_inside.substr(m_start, m_end - m_start), {}};
    m_odd = entry.key.size() < 2 || !entry.key.starts_with('/') || entry.key.find('#') != entry.key.npos;
    if (m_odd)
        return std::nullopt;
    entry.key.remove_prefix(1);
    advance();
    if (m_odd || m_start >= m_inside.size()) {
        m_odd = true;
        return std::nullopt;
    }
    const std::size_t start = m_start;
    const std::size_t firstEnd = m_end;
    std::size_t end = m_end;
    // A value that is not a name ends where the next key begins; so references need no looking ahead.
    for (advance(); !m_odd && m_start < m_inside.size() && m_inside[m_start] != '/'; advance())
        end = m_end;
    entry.value = m_inside.substr(start, end - start);
    if (end != firstEnd) {
        SyntaxScanner value(entry.value);
        m_odd = m_odd || !value.reference() || !value.atEnd();
    }
    return m_odd ? std::nullopt : std::optional(entry);
}

std::optional<DictionaryEntries> dictionaryEntries(std::string_view text)
{
    DictionaryEntries entries;
    DictionaryScanner scanner(text);
    while (const auto entry = scanner.next())
        if (!entries.emplace(entry->key, entry->value).second)
            return std::nullopt;
    return scanner.odd() ? std::nullopt : std::optional(std::move(entries));
}

std::optional<std::int64_t> wholeInteger(std::string_view text)
{
    SyntaxScanner scanner(text);
    const auto number = scanner.integer();
    return number && scanner.atEnd() ? number : std::nullopt;
}

} // namespace engine
