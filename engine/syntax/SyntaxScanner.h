#pragma once

#include "CharacterClass.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <optional>
#include <string_view>

namespace engine {

/// Steps through PDF syntax strictly: comments, unknown keywords and unbalanced brackets are odd.
class SyntaxScanner
{
public:
    enum class Outcome {
        Complete,
        CutOff, // the text ends too early: more of it may make it complete
        Odd,
    };

    explicit SyntaxScanner(std::string_view text, std::size_t at = 0) : m_text(text), m_at(at) {}

    std::size_t position() const { return m_at; }
    bool atEnd() const { return m_at >= m_text.size(); }
    void skipSpace()
    {
        std::size_t at = m_at; // in a register: as a member it would be stored for each character
        while (at < m_text.size() && isSpace(m_text[at]))
            ++at;
        m_at = at;
    }

    void skipSpaceAndComments();

    /// Skips `word` when it stands here and ends here. \returns whether it did.
    bool keyword(std::string_view word);

    /// Reads an unsigned decimal number of at most 18 digits, which ends here.
    std::optional<std::int64_t> integer();

    struct Reference
    {
        int number;
        int generation;
    };

    /// Where a reference ends that is written as nearly all are: a number from 1 of up to nine digits, " 0 R".
    /// \returns null at anything else.
    static const char* behindUsualReference(const char* at, const char* end);

    /// Reads a reference to an object. After a failure the position is anywhere inside it.
    std::optional<Reference> reference();

    /// Skips one object: a number, name, string, array, dictionary, boolean or null, or a reference.
    Outcome skipValue();

private:
    static constexpr std::size_t mostDigits = 18;

    /// The brackets that are open, '[' or '<'.
    struct Brackets;

    bool standsAtBracket() const;
    Outcome skipBracket(Brackets& open);
    bool skipReferences();
    Outcome skipToken();
    Outcome skipName();
    Outcome skipLiteralString();
    Outcome skipHexString();
    Outcome skipWord();

    std::string_view m_text;
    std::size_t m_at;
};

/// Goes through the entries of a dictionary's text, in the order in which they stand.
class DictionaryScanner
{
public:
    struct Entry
    {
        std::string_view key; // without its slash
        std::string_view value;
    };

    explicit DictionaryScanner(std::string_view text);

    /// \returns nothing at the end and at the first oddity.
    std::optional<Entry> next();

    /// True once it is known that the text is not exactly one dictionary, or when a key is escaped.
    bool odd() const { return m_odd; }

private:
    void advance();

    std::string_view m_inside; // with the brackets that open the dictionary
    SyntaxScanner m_scanner;
    std::size_t m_start = 0;
    std::size_t m_end = 0;
    bool m_odd;
};

using DictionaryEntries = std::map<std::string_view, std::string_view>;

/// The entries of a dictionary's text, keys without their slash.
/// \returns nothing for text that is not exactly one dictionary, and for repeated or escaped keys.
std::optional<DictionaryEntries> dictionaryEntries(std::string_view text);

/// The number that a text consists of.
std::optional<std::int64_t> wholeInteger(std::string_view text);

inline const char* SyntaxScanner::behindUsualReference(const char* at, const char* end)
{
    const char* next = at;
    while (next < end && isDigit(*next))
        ++next;
    const bool isNumber = next - at > 0 && next - at < 10 && *at != '0';
    const bool isUsual = isNumber && end - next > 4 && std::memcmp(next, " 0 R", 4) == 0;
    return isUsual && !isRegular(next[4]) ? next + 4 : nullptr;
}

inline std::optional<std::int64_t> SyntaxScanner::integer()
{
    const char* const start = m_text.data() + m_at;
    const char* const end = m_text.data() + m_text.size();
    const char* next = start;
    std::uint64_t value = 0; // more digits than are allowed do no harm
    for (; next < end && isDigit(*next); ++next)
        value = value * 10 + static_cast<unsigned char>(*next - '0');
    const auto digits = static_cast<std::size_t>(next - start);
    if (digits == 0 || digits > mostDigits || (next < end && isRegular(*next)))
        return std::nullopt;
    m_at += digits;
    return static_cast<std::int64_t>(value);
}

} // namespace engine
