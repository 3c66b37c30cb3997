#include "FileScan.h"

#include "engine/files/ByteSource.h"
#include "engine/syntax/CharacterClass.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <optional>
#include <string>

namespace engine {

namespace {

constexpr std::size_t step = 1 << 20;
// Bytes looked at before and behind a word. An object's number that stands further before it counts as odd.
constexpr std::size_t margin = 128;

constexpr std::string_view objectWord = "obj";
constexpr std::string_view trailerWord = "trailer";
constexpr std::string_view endWord = "startxref";
constexpr std::string_view names[] = {"/Encrypt", "/XRef", "/XRefStm", "/ObjStm", "/ByteRange"};

bool isSpaceAt(std::string_view text, std::size_t position)
{
    return position < text.size() && isSpace(text[position]);
}

bool endsWord(std::string_view text, std::size_t position)
{
    return position >= text.size() || !isRegular(text[position]);
}

/// The number whose digits end before `end`, which is moved to where they begin.
std::optional<long long> numberBefore(std::string_view text, std::size_t& end)
{
    std::size_t begin = end;
    while (begin > 0 && isDigit(text[begin - 1]))
        --begin;
    long long number = 0;
    const auto [last, error] = std::from_chars(text.data() + begin, text.data() + end, number);
    if (error != std::errc() || begin == end)
        return std::nullopt;
    end = begin;
    return number;
}

/// Moves `end` before the white space there. \returns whether there was any.
bool skipSpaceBefore(std::string_view text, std::size_t& end)
{
    const std::size_t old = end;
    while (end > 0 && isSpace(text[end - 1]))
        --end;
    return end != old;
}

bool beginsDictionary(std::string_view text, std::size_t position)
{
    if (position < text.size() && isRegular(text[position]))
        return false;
    while (isSpaceAt(text, position))
        ++position;
    return position >= text.size() || text[position] == '<' || text[position] == '%';
}

} // namespace

FileScan::FileScan(const ByteSource& source)
{
    for (std::uint64_t base = 0; base < source.size(); base += step) {
        const std::size_t before = base == 0 ? 0 : margin;
        const std::string text = source.text(base - before, before + step + margin);
        const std::size_t end = std::min(before + step, text.size());
        // All that is looked for begins with one of these.
        constexpr std::string_view anchors = "/ots";
        for (std::size_t at = text.find_first_of(anchors, before); at < end;
             at = text.find_first_of(anchors, at + 1))
            lookAt(text, at, base - before);
    }
}

bool FileScan::hasOddObjects() const
{
    return m_oddObjects || static_cast<long long>(m_definitions.size()) != m_objectEnds;
}

void FileScan::lookAt(std::string_view text, std::size_t position, std::uint64_t base)
{
    const std::string_view rest = text.substr(position);
    if (rest.front() == '/')
        lookAtName(rest);
    else if (rest.starts_with(objectWord) && endsWord(rest, objectWord.size()))
        lookAtObject(text, position, base);
    else if (rest.starts_with(trailerWord) && beginsDictionary(rest, trailerWord.size()))
        ++m_trailers;
    else if (rest.starts_with(endWord))
        ++m_ends;
}

void FileScan::lookAtName(std::string_view text)
{
    for (const std::string_view name : names) {
        if (!text.starts_with(name) || !endsWord(text, name.size()))
            continue;
        m_encryptions += name == "/Encrypt" ? 1 : 0;
        m_byteRanges = m_byteRanges || name == "/ByteRange";
        m_compressedParts = m_compressedParts || name == "/XRef" || name == "/XRefStm" || name == "/ObjStm";
    }
}

void FileScan::lookAtObject(std::string_view text, std::size_t position, std::uint64_t base)
{
    if (text.substr(0, position).ends_with("end")) {
        ++m_objectEnds;
        return;
    }
    std::size_t begin = position;
    const bool apart = skipSpaceBefore(text, begin);
    const auto generation = numberBefore(text, begin);
    if (!generation) // a word of a text or a script
        return;
    const bool apartToo = skipSpaceBefore(text, begin);
    const auto number = numberBefore(text, begin);
    const bool whole = begin == 0 ? base == 0 : !isRegular(text[begin - 1]);
    if (apart && apartToo && number && whole)
        define(*number, *generation, base + begin);
    else
        m_oddObjects = true;
}

void FileScan::define(long long number, long long generation, std::uint64_t offset)
{
    const bool possible = number > 0 && number < INT_MAX && generation <= 65535;
    const bool first =
        possible &&
        m_definitions.try_emplace(static_cast<int>(number), Definition{static_cast<int>(generation), offset})
            .second;
    m_oddObjects = m_oddObjects || !first;
}

} // namespace engine
