#include "ObjectStreamCache.h"

#include "StreamDecoder.h"

#include <algorithm>

namespace engine {

namespace {

// Limits of what is decoded of a stream's objects before it is known how much is needed.
const std::size_t leastExpected = 512;
const std::size_t mostExpected = 4096;
const std::size_t behindObject = 64; // decoded as well: an object's end shows in what follows
const std::size_t mostMemory = 32 << 20;

} // namespace

std::optional<std::string_view> ObjectStreamCache::object(int stream, int place, int number)
{
    const auto kept = m_streams.find(stream);
    const Decoded* source = kept != m_streams.end() ? &kept->second : decoded(stream, nextSize(nullptr, 0));
    while (source != nullptr && source->holds(place, number)) {
        const std::size_t start = source->objects[static_cast<std::size_t>(place)].second;
        SyntaxScanner scanner(source->text, std::min(start, source->text.size()));
        scanner.skipSpace();
        const std::size_t begin = scanner.position();
        const auto outcome = scanner.skipValue();
        if (outcome == SyntaxScanner::Outcome::Complete) {
            const std::size_t needed = scanner.position() - source->bodies;
            m_expected = std::clamp(needed + needed / 4, leastExpected, mostExpected);
            return std::string_view(source->text).substr(begin, scanner.position() - begin);
        }
        if (outcome == SyntaxScanner::Outcome::Odd || source->complete)
            return std::nullopt;
        source = decoded(stream, nextSize(source, start));
    }
    return std::nullopt;
}

/// How much of a stream's objects is decoded next. Of a stream that is not known yet it is as much as was
/// needed of the last one. Where that does not hold all of the object at `start`, it is four times as much,
/// and at least up to where the object ends.
std::size_t ObjectStreamCache::nextSize(const Decoded* known, std::size_t start) const
{
    if (known == nullptr)
        return m_expected;
    return std::max(4 * known->bodySize(), known->endOf(start) - known->bodies + behindObject);
}

bool ObjectStreamCache::Decoded::holds(int place, int number) const
{
    const auto index = static_cast<std::size_t>(place);
    return place >= 0 && index < objects.size() && objects[index].first == number;
}

/// Where the object that begins at an offset ends at the latest.
std::size_t ObjectStreamCache::Decoded::endOf(std::size_t start) const
{
    std::size_t end = largestDecoded;
    for (const auto& [number, other] : objects)
        if (other > start)
            end = std::min(end, other);
    return end == largestDecoded ? start : end;
}

/// \param size how many bytes of its objects are wanted; all of them when it has fewer.
const ObjectStreamCache::Decoded* ObjectStreamCache::decoded(int number, std::size_t size)
{
    const auto known = m_streams.find(number);
    if (known != m_streams.end() && (known->second.complete || known->second.bodySize() >= size))
        return &known->second;
    Decoded stream;
    return decode(number, size, stream) ? keep(number, std::move(stream)) : nullptr;
}

bool ObjectStreamCache::decode(int number, std::size_t size, Decoded& stream)
{
    const auto place = m_index.find(number);
    if (!place || place->kind != ObjectPlace::Kind::Plain || place->detail != 0)
        return false;
    ObjectReader::Stream stored;
    if (!m_objects.readStream(place->position, number, stored) || !stored.entries.contains("Type") ||
        stored.entries.at("Type") != "/ObjStm")
        return false;
    const auto count = integerOf(stored.entries, "N");
    const auto first = integerOf(stored.entries, "First");
    if (!isNumberInRange(count, INT32_MAX) || !isNumberInRange(first, largestDecoded))
        return false;
    stream.bodies = static_cast<std::size_t>(*first);
    const std::size_t wanted = std::min(stream.bodies + size, largestDecoded);
    auto content = decodedStream(stored.entries, stored.data, wanted);
    if (!content || content->size() >= largestDecoded ||
        !m_budget.spend(stored.data.size() + content->size()))
        return false;
    stream.complete = content->size() < wanted;
    if (stream.bodies > content->size() || !readHeader(*content, *count, stream))
        return false;
    if (stream.complete)
        content->push_back('\n'); // ends a last word
    stream.text = std::move(*content);
    return true;
}

/// Puts a stream in the place of what was decoded of it before. All others go when memory is short.
const ObjectStreamCache::Decoded* ObjectStreamCache::keep(int number, Decoded stream)
{
    if (const auto known = m_streams.find(number); known != m_streams.end()) {
        m_memory -= known->second.memory();
        m_streams.erase(known);
    }
    m_memory += stream.memory();
    if (m_memory > mostMemory) {
        m_streams.clear();
        m_memory = stream.memory();
    }
    return &m_streams.emplace(number, std::move(stream)).first->second;
}

/// Reads which objects a stream holds and where. One that holds an object twice is odd.
bool ObjectStreamCache::readHeader(std::string_view text, std::int64_t count, Decoded& stream)
{
    SyntaxScanner scanner(text.substr(0, stream.bodies));
    // A count that lies must not cost memory: no entry is shorter.
    const std::size_t most = stream.bodies / std::string_view("1 0 ").size();
    stream.objects.reserve(std::min(static_cast<std::size_t>(count), most));
    bool ascending = true; // fast path: then none is there twice
    int last = -1;
    for (std::int64_t object = 0; object < count; ++object) {
        scanner.skipSpace();
        const auto number = scanner.integer();
        scanner.skipSpace();
        const auto start = scanner.integer();
        if (!isNumberInRange(number, INT32_MAX) || !isNumberInRange(start, INT32_MAX))
            return false;
        ascending = ascending && *number > last;
        last = static_cast<int>(*number);
        stream.objects.emplace_back(last, stream.bodies + static_cast<std::size_t>(*start));
    }
    if (ascending)
        return true;
    std::vector<int> numbers;
    numbers.reserve(stream.objects.size());
    for (const auto& [number, start] : stream.objects)
        numbers.push_back(number);
    std::sort(numbers.begin(), numbers.end());
    return std::adjacent_find(numbers.begin(), numbers.end()) == numbers.end();
}

} // namespace engine
