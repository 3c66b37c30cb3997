#include "ObjectReader.h"

namespace engine {

namespace {

const std::size_t firstWindow = 4096;
const std::size_t largestWindow = 16 << 20;
const std::size_t behindValue = 40;          // the longest that is looked at behind a value
const std::int64_t largestStream = 64 << 20; // as it is stored

} // namespace

std::optional<ObjectReader::Value> ObjectReader::boundedValue(std::int64_t offset, std::size_t skipped)
{
    for (std::size_t window = firstWindow; window <= largestWindow; window *= 4) {
        const std::string_view text = m_file.bytes(offset, window);
        SyntaxScanner scanner(text, skipped);
        scanner.skipSpace();
        const std::size_t start = scanner.position();
        const auto outcome = scanner.skipValue();
        const std::size_t end = scanner.position();
        scanner.skipSpace();
        const bool cutOff = outcome == SyntaxScanner::Outcome::CutOff || end + behindValue > text.size();
        if (cutOff && text.size() == window)
            continue;
        if (outcome != SyntaxScanner::Outcome::Complete)
            return std::nullopt;
        return Value{text.substr(start, end - start), text.substr(scanner.position()),
                     offset + static_cast<std::int64_t>(scanner.position())};
    }
    return std::nullopt;
}

std::optional<ObjectReader::Value> ObjectReader::valueOfObject(std::int64_t offset, int number,
                                                               int generation)
{
    SyntaxScanner header(m_file.bytes(offset, firstWindow));
    const auto foundNumber = header.integer();
    header.skipSpace();
    const auto foundGeneration = header.integer();
    header.skipSpace();
    const bool isWanted = foundNumber == number && foundGeneration == generation && header.keyword("obj");
    return isWanted ? boundedValue(offset, header.position()) : std::nullopt;
}

std::optional<std::string_view> ObjectReader::object(std::int64_t offset, int number, int generation)
{
    const auto value = valueOfObject(offset, number, generation);
    return value && value->isFollowedBy("endobj") ? std::optional(value->text) : std::nullopt;
}

bool ObjectReader::readStream(std::int64_t offset, int number, Stream& stream)
{
    const auto value = valueOfObject(offset, number, 0);
    const auto start = value ? streamDataOffset(*value) : std::nullopt;
    if (!start)
        return false;
    stream.dictionary = value->text;
    auto entries = dictionaryEntries(stream.dictionary);
    const auto length = entries ? integerOf(*entries, "Length") : std::nullopt;
    if (!isNumberInRange(length, largestStream))
        return false;
    stream.entries = std::move(*entries);
    const auto size = static_cast<std::size_t>(*length);
    const std::string_view data = m_file.bytes(*start, size + behindValue);
    if (data.size() < size)
        return false;
    stream.data = data.substr(0, size);
    SyntaxScanner behind(data, size);
    behind.skipSpace();
    if (!behind.keyword("endstream"))
        return false;
    behind.skipSpace();
    return behind.keyword("endobj");
}

std::optional<std::int64_t> streamDataOffset(const ObjectReader::Value& dictionary)
{
    SyntaxScanner scanner(dictionary.behind);
    if (!scanner.keyword("stream"))
        return std::nullopt;
    const std::string_view data = dictionary.behind.substr(scanner.position());
    const std::size_t lineEnd = data.starts_with("\n") ? 1 : data.starts_with("\r\n") ? 2 : 0;
    if (lineEnd == 0)
        return std::nullopt;
    return dictionary.behindOffset + static_cast<std::int64_t>(scanner.position() + lineEnd);
}

std::optional<std::int64_t> integerOf(const DictionaryEntries& entries, std::string_view key)
{
    const auto found = entries.find(key);
    return found == entries.end() ? std::nullopt : wholeInteger(found->second);
}

} // namespace engine
