#include "engine/SyntaxScanner.h"

#include <cstring>
#include <string>

namespace engine {

namespace {

const std::size_t deepestNesting = 100;
const std::size_t mostDigits = 18;

bool isDelimiter(char character)
{
    return std::strchr("()<>[]{}/%", character) != nullptr && character != '\0';
}

bool isRegular(char character)
{
    return !isSpace(character) && !isDelimiter(character);
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isNumber(std::string_view word)
{
    if (!word.empty() && (word.front() == '+' || word.front() == '-'))
        word.remove_prefix(1);
    std::size_t digits = 0;
    std::size_t points = 0;
    for (const char character : word) {
        digits += isDigit(character) ? 1 : 0;
        points += character == '.' ? 1 : 0;
    }
    return digits > 0 && points <= 1 && digits + points == word.size();
}

} // namespace

bool isSpace(char character)
{
    return character == ' ' || character == '\n' || character == '\r' || character == '\t' ||
           character == '\f' || character == '\0';
}

void SyntaxScanner::skipSpace()
{
    while (!atEnd() && isSpace(m_text[m_at]))
        ++m_at;
}

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

std::optional<std::int64_t> SyntaxScanner::integer()
{
    std::size_t end = m_at;
    while (end < m_text.size() && isDigit(m_text[end]))
        ++end;
    const std::size_t digits = end - m_at;
    if (digits == 0 || digits > mostDigits || (end < m_text.size() && isRegular(m_text[end])))
        return std::nullopt;
    const std::int64_t value = std::stoll(std::string(m_text.substr(m_at, digits)));
    m_at = end;
    return value;
}

SyntaxScanner::Outcome SyntaxScanner::skipValue()
{
    std::string open;
    do {
        skipSpace();
        if (atEnd())
            return Outcome::CutOff;
        const char first = m_text[m_at];
        const bool doubled = m_at + 1 < m_text.size() && m_text[m_at + 1] == first;
        if (first == '[' || (first == '<' && doubled)) {
            open.push_back(first);
            m_at += first == '<' ? 2 : 1;
        } else if (first == ']' || first == '>') {
            if (first == '>' && m_at + 1 >= m_text.size())
                return Outcome::CutOff;
            if (open.empty() || open.back() != (first == ']' ? '[' : '<') || (first == '>' && !doubled))
                return Outcome::Odd;
            open.pop_back();
            m_at += first == '>' ? 2 : 1;
        } else if (const Outcome outcome = skipToken(); outcome != Outcome::Complete) {
            return outcome;
        }
        if (open.size() > deepestNesting)
            return Outcome::Odd;
    } while (!open.empty());
    return Outcome::Complete;
}

SyntaxScanner::Outcome SyntaxScanner::skipToken()
{
    switch (m_text[m_at]) {
    case '(':
        return skipLiteralString();
    case '<':
        return m_at + 1 < m_text.size() ? skipHexString() : Outcome::CutOff;
    case '/':
        ++m_at;
        while (!atEnd() && isRegular(m_text[m_at]))
            ++m_at;
        return atEnd() ? Outcome::CutOff : Outcome::Complete;
    default:
        return skipWord();
    }
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
    while (!atEnd() && isRegular(m_text[m_at]))
        ++m_at;
    if (atEnd())
        return Outcome::CutOff;
    const std::string_view word = m_text.substr(start, m_at - start);
    if (word == "true" || word == "false" || word == "null" || word == "R" || isNumber(word))
        return Outcome::Complete;
    return Outcome::Odd;
}

std::optional<std::map<std::string_view, std::string_view>> dictionaryEntries(std::string_view text)
{
    if (!text.starts_with("<<") || !text.ends_with(">>") || text.size() < 4)
        return std::nullopt;
    std::map<std::string_view, std::string_view> entries;
    const std::string_view inside = text.substr(0, text.size() - 2);
    SyntaxScanner scanner(text, 2);
    std::string_view key;
    std::size_t valueStart = 0;
    std::size_t valueEnd = 0;
    const auto store = [&] {
        return key.empty() || entries.emplace(key, inside.substr(valueStart, valueEnd - valueStart)).second;
    };
    // A value that is not a name ends where the next key begins; so references need no looking ahead.
    bool valueComplete = true;
    for (;;) {
        scanner.skipSpace();
        if (scanner.position() >= inside.size())
            break;
        const std::size_t start = scanner.position();
        const bool name = text[start] == '/';
        if (scanner.skipValue() != SyntaxScanner::Outcome::Complete || scanner.position() > inside.size())
            return std::nullopt;
        if (name && valueComplete) {
            if (!store())
                return std::nullopt;
            key = inside.substr(start + 1, scanner.position() - start - 1);
            if (key.empty() || key.find('#') != std::string_view::npos)
                return std::nullopt;
            valueStart = valueEnd = start;
            valueComplete = false;
            continue;
        }
        if (key.empty())
            return std::nullopt;
        if (!valueComplete)
            valueStart = start;
        valueEnd = scanner.position();
        valueComplete = true;
    }
    if (!valueComplete || !store())
        return std::nullopt;
    return entries;
}

std::optional<std::int64_t> wholeInteger(std::string_view text)
{
    SyntaxScanner scanner(text);
    const auto number = scanner.integer();
    return number && scanner.atEnd() ? number : std::nullopt;
}

} // namespace engine
