#include "ObjectIndex.h"

#include "StreamDecoder.h"
#include "engine/syntax/TableScanner.h"

#include <algorithm>
#include <charconv>

namespace engine {

namespace {

const std::size_t mostSections = 256;

/// The numbers that an array consists of.
std::optional<std::vector<std::int64_t>> integerArray(std::string_view text)
{
    if (!text.starts_with("[") || !text.ends_with("]"))
        return std::nullopt;
    std::vector<std::int64_t> numbers;
    SyntaxScanner scanner(text.substr(0, text.size() - 1), 1);
    for (scanner.skipSpace(); !scanner.atEnd(); scanner.skipSpace()) {
        const auto number = scanner.integer();
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
    }
    return numbers;
}

/// The number that a table's entry has in digits and nothing else.
std::int64_t fixedNumber(std::string_view digits)
{
    std::int64_t value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

} // namespace

bool ObjectIndex::read(std::int64_t offset)
{
    std::set<std::int64_t> offsets;
    std::size_t decoded = 0;
    while (offset >= 0) {
        if (!offsets.insert(offset).second || offsets.size() > mostSections)
            return false;
        auto section = readSection(offset);
        if (!section)
            return false;
        offset = section->previous;
        decoded += section->entries.size();
        if (decoded > largestDecoded)
            return false;
        m_sections.push_back(std::move(*section));
    }
    return streamsHaveTheirNumbers(offsets);
}

/// Other readers take the number that stands before a section for the section's, whatever the entries say.
bool ObjectIndex::streamsHaveTheirNumbers(const std::set<std::int64_t>& offsets)
{
    return std::all_of(m_sections.begin(), m_sections.end(), [&](const IndexSection& section) {
        const auto place = section.section.isStream ? find(section.section.number) : ObjectPlace();
        return place && (place->kind == ObjectPlace::Kind::Free ||
                         (place->kind == ObjectPlace::Kind::Plain && offsets.contains(place->position)));
    });
}

/// Every entry is looked at: one bad entry, of whatever object, makes other readers search the whole file.
std::optional<ObjectIndex::IndexSection> ObjectIndex::readSection(std::int64_t offset)
{
    auto section = SectionReader(m_file).read(offset);
    if (!section)
        return std::nullopt;
    IndexSection result;
    result.section = std::move(*section);
    if (result.section.isStream && !decode(result))
        return std::nullopt;
    if (!readDictionary(result) || (result.section.isStream && !hasGoodEntries(result)))
        return std::nullopt;
    return result;
}

/// Reads what both kinds of section state in their dictionary.
bool ObjectIndex::readDictionary(IndexSection& section)
{
    const auto entries = dictionaryEntries(section.section.dictionary);
    if (!entries || entries->contains("Encrypt") || entries->contains("XRefStm"))
        return false;
    const auto size = integerOf(*entries, "Size");
    if (!isNumberInRange(size, largestSize) || *size < 1)
        return false;
    if (entries->contains("Prev")) {
        const auto previous = integerOf(*entries, "Prev");
        if (!isNumberInRange(previous, m_file.size() - 1))
            return false;
        section.previous = *previous;
    }
    m_size = std::max(m_size, static_cast<int>(*size));
    std::int64_t end = 0;
    for (const Section::Run& run : section.section.runs) {
        if (run.first < end)
            return false;
        end = run.first + static_cast<std::int64_t>(run.count);
    }
    return end <= *size;
}

bool ObjectIndex::decode(IndexSection& section)
{
    ObjectReader::Stream stream;
    if (!ObjectReader(m_file).readStream(section.section.offset, section.section.number, stream))
        return false;
    const DictionaryEntries& entries = stream.entries;
    if (!entries.contains("Type") || entries.at("Type") != "/XRef" || !entries.contains("W"))
        return false;
    auto content = decodedStream(entries, stream.data, largestDecoded);
    if (!content || !m_budget.spend(stream.data.size() + content->size()))
        return false;
    section.entries = std::move(*content);
    return readWidths(section, entries.at("W")) && readRuns(section, entries);
}

bool ObjectIndex::readWidths(IndexSection& section, std::string_view widths)
{
    const auto numbers = integerArray(widths);
    if (!numbers || numbers->size() != section.widths.size())
        return false;
    for (std::size_t field = 0; field < section.widths.size(); ++field) {
        if ((*numbers)[field] > 8)
            return false;
        section.widths[field] = static_cast<int>((*numbers)[field]);
    }
    return true;
}

bool ObjectIndex::readRuns(IndexSection& section, const DictionaryEntries& entries)
{
    const auto size = integerOf(entries, "Size");
    const auto index = entries.contains("Index")
                           ? integerArray(entries.at("Index"))
                           : std::optional(std::vector<std::int64_t>{0, size.value_or(0)});
    if (!size || !index || index->size() % 2 != 0)
        return false;
    std::int64_t offset = 0;
    for (std::size_t pair = 0; pair < index->size(); pair += 2) {
        const std::int64_t first = (*index)[pair];
        const std::int64_t count = (*index)[pair + 1];
        if (first > INT32_MAX || count > INT32_MAX)
            return false;
        section.section.runs.push_back({static_cast<int>(first), static_cast<int>(count), offset});
        offset += count * section.entryWidth();
    }
    return section.entryWidth() > 0 && offset == static_cast<std::int64_t>(section.entries.size());
}

bool ObjectIndex::hasGoodEntries(const IndexSection& section)
{
    const auto [kind, second, third] = section.widths;
    if (kind == 1 && second < 8 && third < 4) { // fast path: only the kind can be out of range
        const auto width = static_cast<std::size_t>(section.entryWidth());
        for (std::size_t at = 0; at < section.entries.size(); at += width)
            if (static_cast<unsigned char>(section.entries[at]) > 2)
                return false;
        return true;
    }
    for (const Section::Run& run : section.section.runs)
        for (int number = 0; number < run.count; ++number)
            if (!streamEntry(section, run, run.first + number))
                return false;
    return true;
}

std::optional<ObjectPlace> ObjectIndex::find(int number)
{
    for (const IndexSection& section : m_sections) {
        const auto& runs = section.section.runs;
        const auto run = std::partition_point(runs.begin(), runs.end(), [&](const Section::Run& candidate) {
            return number - candidate.first >= candidate.count;
        });
        if (run != runs.end() && number >= run->first)
            return section.section.isStream ? streamEntry(section, *run, number) : tableEntry(*run, number);
    }
    return ObjectPlace();
}

std::optional<ObjectPlace> ObjectIndex::tableEntry(const Section::Run& run, int number)
{
    const std::string_view text =
        m_file.bytes(run.offset + (number - run.first) * tableEntrySize, tableEntrySize);
    if (!isUsualTableEntry(text))
        return std::nullopt;
    const auto kind = text[17] == 'n' ? ObjectPlace::Kind::Plain : ObjectPlace::Kind::Free;
    return ObjectPlace{kind, fixedNumber(text.substr(0, 10)),
                       static_cast<int>(fixedNumber(text.substr(11, 5)))};
}

std::optional<ObjectPlace> ObjectIndex::streamEntry(const IndexSection& section, const Section::Run& run,
                                                    int number)
{
    auto at = static_cast<std::size_t>(run.offset +
                                       static_cast<std::int64_t>(number - run.first) * section.entryWidth());
    // A kind that is not stored is 1.
    std::array<std::uint64_t, 3> fields{section.widths[0] == 0 ? 1U : 0U, 0, 0};
    for (std::size_t field = 0; field < 3; ++field)
        for (int byte = 0; byte < section.widths[field]; ++byte)
            fields[field] = fields[field] << 8 | static_cast<unsigned char>(section.entries[at++]);
    if (fields[0] > 2 || fields[1] > INT64_MAX || fields[2] > INT32_MAX)
        return std::nullopt;
    return ObjectPlace{static_cast<ObjectPlace::Kind>(fields[0]), static_cast<std::int64_t>(fields[1]),
                       static_cast<int>(fields[2])};
}

} // namespace engine
