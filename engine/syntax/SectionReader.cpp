#include "SectionReader.h"

#include "TableScanner.h"

#include <algorithm>
#include <array>

namespace engine {

namespace {

const std::size_t mostRuns = 100'000;
const std::size_t spaceBefore = 64;
const std::size_t longestHeader = 4096;
const std::size_t longestKeyword = 4096; // behind a dictionary, with comments before it

constexpr std::array<std::string_view, 13> sectionKeys{"Prev",        "XRefStm", "Size",        "Type",   "W",
                                                       "Index",       "Length",  "DL",          "Filter", "F",
                                                       "DecodeParms", "FFilter", "FDecodeParms"};

} // namespace

bool describesSection(std::string_view key)
{
    return std::find(sectionKeys.begin(), sectionKeys.end(), key) != sectionKeys.end();
}

bool SectionReader::fail(const char* why)
{
    m_why = why;
    return false;
}

std::optional<Section> SectionReader::read(std::int64_t offset)
{
    Section section;
    section.offset = offset;
    if (m_tolerant) {
        const std::string_view text = m_file.bytes(offset, spaceBefore);
        const auto found = std::find_if_not(text.begin(), text.end(), isSpace);
        section.offset += found == text.end() ? 0 : found - text.begin();
    }
    const std::string_view start = m_file.bytes(section.offset, 5);
    section.isStream = start.size() < 5 || !start.starts_with("xref") || !isSpace(start[4]);
    const bool read = section.isStream ? readStream(section) : readTable(section);
    return read ? std::optional(std::move(section)) : std::nullopt;
}

bool SectionReader::readTable(Section& section)
{
    TableScanner scanner(m_file, section.offset + 4, !m_tolerant);
    std::size_t subsections = 0;
    while (const auto subsection = scanner.nextSubsection()) {
        ++subsections;
        if (!addRun(section, subsection->first, subsection->count, subsection->entries))
            return false;
    }
    if (scanner.damaged() || (!m_tolerant && subsections == 0))
        return fail("the cross-reference table is damaged");
    const auto behind = readDictionary(section, scanner.behindTrailerKeyword());
    return behind && (m_tolerant || SyntaxScanner(*behind).keyword("startxref"));
}

bool SectionReader::addRun(Section& section, long long first, long long count, std::int64_t offset)
{
    if (first < 0 || count < 0 || first > largestSize || count > largestSize - first)
        return fail("the cross-reference has impossible object numbers");
    if (count > 0)
        section.runs.push_back({static_cast<int>(first), static_cast<int>(count), offset});
    return m_tolerant || section.runs.size() <= mostRuns || fail("the cross-reference has too many parts");
}

bool SectionReader::readStream(Section& section)
{
    SyntaxScanner header(m_file.bytes(section.offset, longestHeader));
    const auto number = header.integer();
    header.skipSpaceAndComments();
    const auto generation = number ? header.integer() : std::nullopt;
    header.skipSpaceAndComments();
    if (!generation || !header.keyword("obj"))
        return fail("there is no cross-reference where the document says");
    if (!isNumberInRange(number, largestSize) || *number < 1)
        return fail("a cross-reference stream has an impossible number");
    section.number = static_cast<int>(*number);
    const auto behind =
        readDictionary(section, section.offset + static_cast<std::int64_t>(header.position()));
    if (!behind)
        return false;
    SyntaxScanner scanner(*behind);
    scanner.skipSpaceAndComments();
    return scanner.keyword("stream") || fail("there is no cross-reference stream where the document says");
}

/// Reads the dictionary at an offset. \returns what stands behind it, nothing when there is none.
std::optional<std::string_view> SectionReader::readDictionary(Section& section, std::int64_t offset)
{
    const auto value = m_objects.boundedValue(offset);
    if (value && (!m_tolerant || value->text.starts_with("<<"))) {
        section.dictionary = value->text;
        return value->behind;
    }
    if (!m_tolerant) {
        fail("a section of the cross-reference has no plain dictionary");
        return std::nullopt;
    }
    const std::int64_t end = m_tolerant(offset);
    section.dictionary = m_file.bytes(offset, static_cast<std::size_t>(end - offset));
    return m_file.bytes(end, longestKeyword);
}

} // namespace engine
