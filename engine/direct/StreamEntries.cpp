#include "StreamEntries.h"

#include <algorithm>
#include <cstdint>

namespace engine {

namespace {

const std::size_t largeSize = 64 << 10;
const std::size_t decodedAtOnce = 16 << 10;

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

} // namespace

std::unique_ptr<StreamEntries> StreamEntries::read(const ObjectReader::Stream& stream)
{
    const DictionaryEntries& dictionary = stream.entries;
    if (!dictionary.contains("Type") || dictionary.at("Type") != "/XRef" || !dictionary.contains("W"))
        return nullptr;
    auto entries = std::make_unique<StreamEntries>();
    entries->m_data = stream.data;
    entries->m_decoder = StreamDecoder::create(dictionary, entries->m_data);
    const bool readable = entries->m_decoder && entries->readWidths(dictionary.at("W")) &&
                          entries->readRuns(dictionary) && (entries->isLarge() || entries->isSound());
    return readable ? std::move(entries) : nullptr;
}

bool StreamEntries::isLarge() const
{
    return m_size > largeSize;
}

bool StreamEntries::readWidths(std::string_view widths)
{
    const auto numbers = integerArray(widths);
    if (!numbers || numbers->size() != m_widths.size())
        return false;
    for (std::size_t field = 0; field < m_widths.size(); ++field) {
        if ((*numbers)[field] > 8)
            return false;
        m_widths[field] = static_cast<int>((*numbers)[field]);
    }
    return entrySize() > 0;
}

bool StreamEntries::readRuns(const DictionaryEntries& entries)
{
    const auto size = integerOf(entries, "Size");
    const auto index = entries.contains("Index")
                           ? integerArray(entries.at("Index"))
                           : std::optional(std::vector<std::int64_t>{0, size.value_or(0)});
    if (!size || !index || index->size() % 2 != 0)
        return false;
    for (std::size_t pair = 0; pair < index->size(); pair += 2) {
        const std::int64_t first = (*index)[pair];
        const std::int64_t count = (*index)[pair + 1];
        if (first > INT32_MAX || count > INT32_MAX)
            return false;
        m_runs.push_back(
            {static_cast<int>(first), static_cast<int>(count), static_cast<std::int64_t>(m_size)});
        m_size += static_cast<std::size_t>(count) * entrySize();
        if (m_size >= largestDecoded)
            return false;
    }
    return true;
}

/// One bad entry, of whatever object, makes other readers distrust all of them: so each is looked at.
bool StreamEntries::isSound()
{
    if (!m_decoder->reach(m_size + 1) || m_decoder->text().size() != m_size || !m_decoder->hasRightChecksum())
        return false;
    const auto [kind, second, third] = m_widths;
    if (kind == 1 && second < 8 && third < 4) // fast path: only the kind can be out of range
        return hasGoodKinds();
    return std::all_of(m_runs.begin(), m_runs.end(), [this](const Section::Run& run) {
        for (int number = 0; number < run.count; ++number)
            if (!find(run, run.first + number))
                return false;
        return true;
    });
}

bool StreamEntries::hasGoodKinds() const
{
    const std::string& entries = m_decoder->text();
    for (std::size_t at = 0; at < entries.size(); at += entrySize())
        if (static_cast<unsigned char>(entries[at]) > 2)
            return false;
    return true;
}

std::optional<ObjectPlace> StreamEntries::find(const Section::Run& run, int number)
{
    auto at =
        static_cast<std::size_t>(run.offset) + static_cast<std::size_t>(number - run.first) * entrySize();
    const std::size_t end = at + entrySize();
    if (m_decoder->text().size() < end &&
        (!m_decoder->reach(std::min(m_size, end + decodedAtOnce)) || m_decoder->text().size() < end))
        return std::nullopt;
    // A kind that is not stored is 1.
    std::array<std::uint64_t, 3> fields{m_widths[0] == 0 ? 1U : 0U, 0, 0};
    for (std::size_t field = 0; field < 3; ++field)
        for (int byte = 0; byte < m_widths[field]; ++byte)
            fields[field] = fields[field] << 8 | static_cast<unsigned char>(m_decoder->text()[at++]);
    if (fields[0] > 2 || fields[1] > INT64_MAX || fields[2] > INT32_MAX)
        return std::nullopt;
    return ObjectPlace{static_cast<ObjectPlace::Kind>(fields[0]), static_cast<std::int64_t>(fields[1]),
                       static_cast<int>(fields[2])};
}

} // namespace engine
