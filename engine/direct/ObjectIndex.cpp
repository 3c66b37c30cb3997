#include "ObjectIndex.h"

#include "engine/syntax/TableScanner.h"

#include <algorithm>
#include <charconv>

namespace engine {

namespace {

const std::size_t mostSections = 256;

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
    std::size_t decoded = 0;
    bool isLarge = false;
    while (offset >= 0) {
        if (!m_offsets.insert(offset).second || m_offsets.size() > mostSections)
            return false;
        auto section = readSection(offset);
        if (!section)
            return false;
        offset = section->previous;
        decoded += section->entries ? section->entries->size() : 0;
        if (decoded > largestDecoded)
            return false;
        isLarge = isLarge || (section->entries && section->entries->isLarge());
        m_sections.push_back(std::move(*section));
    }
    // Each section in a stream lists itself. A large one is not decoded for this: what is odd in it shows when
    // it is asked for an entry.
    return isLarge || std::all_of(m_sections.begin(), m_sections.end(), [this](const IndexSection& section) {
               return !section.entries || find(section.section.number);
           });
}

std::optional<ObjectIndex::IndexSection> ObjectIndex::readSection(std::int64_t offset)
{
    auto section = SectionReader(m_file).read(offset);
    if (!section)
        return std::nullopt;
    IndexSection result;
    result.section = std::move(*section);
    const bool read = (!result.section.isStream || readEntries(result)) && readDictionary(result);
    return read ? std::optional(std::move(result)) : std::nullopt;
}

bool ObjectIndex::readEntries(IndexSection& section)
{
    ObjectReader::Stream stream;
    if (!ObjectReader(m_file).readStream(section.section.offset, section.section.number, stream))
        return false;
    section.entries = StreamEntries::read(stream);
    if (!section.entries || !m_budget.spend(stream.data.size() + section.entries->size()))
        return false;
    section.section.runs = section.entries->runs();
    return true;
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

std::optional<ObjectPlace> ObjectIndex::find(int number)
{
    for (const IndexSection& section : m_sections) {
        const auto& runs = section.section.runs;
        const auto run = std::partition_point(runs.begin(), runs.end(), [&](const Section::Run& candidate) {
            return number - candidate.first >= candidate.count;
        });
        if (run == runs.end() || number < run->first)
            continue;
        const auto place = section.entries ? section.entries->find(*run, number) : tableEntry(*run, number);
        return place && isPossible(number, *place) ? place : std::nullopt;
    }
    return ObjectPlace();
}

/// Other readers take the number that stands before a section for the section's, whatever the entries say.
bool ObjectIndex::isPossible(int number, const ObjectPlace& place) const
{
    const bool isOfSection =
        std::any_of(m_sections.begin(), m_sections.end(), [&](const IndexSection& section) {
            return section.entries && section.section.number == number;
        });
    return !isOfSection || place.kind == ObjectPlace::Kind::Free ||
           (place.kind == ObjectPlace::Kind::Plain && m_offsets.contains(place.position));
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

} // namespace engine
