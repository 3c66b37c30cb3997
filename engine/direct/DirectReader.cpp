#include "DirectReader.h"

#include "StreamDecoder.h"
#include "engine/syntax/TableScanner.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <set>

namespace engine {

namespace {

const std::size_t tailSize = 1024;
const std::size_t readAtOnce = 16384;
const std::size_t mostReadAhead = 262144;
const std::int64_t pageSize = 4096; // of memory, in which files are kept
const std::size_t firstWindow = 4096;
const std::size_t largestWindow = 4 << 20;
// Of an object stream's objects, before it is known how much is needed.
const std::size_t leastDecoded = 512;
const std::size_t mostDecodedFirst = 4096;
const std::size_t behindObject = 64; // decoded as well: an object's end shows in what follows
const std::size_t mostContainerBytes = 32 << 20;
const std::size_t mostSections = 256;
const std::size_t mostRuns = 100'000;
const std::int64_t entriesAtOnce = 4096;
const std::int64_t entrySize = 20; // of a table
const std::size_t longestObjectHeader = 40;
const std::int64_t largestSize = 0x7ffffff0; // readers stop at object numbers far above
// A file is made to keep a reader busy when it needs more than this, and reading all of it costs less then.
const std::uint64_t mostEffort = 512 << 20;
const std::uint64_t mostEffortPerByte = 8;

// Of a trailer these describe its section; all other entries belong to the document.
const std::string_view sectionKeys[] = {"Prev",  "Size",   "Type",   "W",
                                        "Index", "Length", "Filter", "DecodeParms"};

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

std::optional<std::int64_t> integerOf(const DictionaryEntries& entries, std::string_view key)
{
    const auto found = entries.find(key);
    return found == entries.end() ? std::nullopt : wholeInteger(found->second);
}

std::optional<std::int64_t> fixedNumber(std::string_view digits)
{
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    const bool whole = error == std::errc() && end == digits.data() + digits.size();
    return whole && value >= 0 ? std::optional(value) : std::nullopt;
}

std::optional<SyntaxScanner::Reference> wholeReference(std::string_view text)
{
    SyntaxScanner scanner(text);
    const auto id = scanner.reference();
    return scanner.atEnd() ? id : std::nullopt;
}

bool isNumberInRange(std::optional<std::int64_t> number, std::int64_t largest)
{
    return number && *number <= largest;
}

} // namespace

std::unique_ptr<DirectReader> DirectReader::open(std::shared_ptr<ByteSource> source)
{
    std::unique_ptr<DirectReader> reader(new DirectReader(std::move(source)));
    const std::string_view header = reader->bytes(0, 9);
    if (!header.starts_with("%PDF-1.") || header.size() < 9 || !isSpace(header[8]))
        return nullptr;
    const auto last = reader->lastStartXref();
    return last && reader->readSections(*last) ? std::move(reader) : nullptr;
}

std::string_view DirectReader::bytes(std::int64_t offset, std::size_t count)
{
    const auto total = static_cast<std::int64_t>(m_source->size());
    if (offset < 0 || offset >= total)
        return {};
    count = std::min(count, static_cast<std::size_t>(total - offset));
    for (const Window& window : m_windows) {
        const std::int64_t skipped = offset - window.offset;
        if (skipped >= 0 && static_cast<std::size_t>(skipped) + count <= window.size)
            return window.text().substr(static_cast<std::size_t>(skipped), count);
    }
    Window& window = m_windows[m_oldestWindow];
    m_oldestWindow = (m_oldestWindow + 1) % m_windows.size();
    // Objects that are asked for one after the other are often written so, with something between them.
    const std::int64_t gap = offset - m_lastRead;
    m_readAhead = gap >= 0 && gap <= static_cast<std::int64_t>(2 * m_readAhead)
                      ? std::min(2 * m_readAhead, mostReadAhead)
                      : readAtOnce;
    // Others lie a little before.
    const auto before = static_cast<std::size_t>(offset % pageSize);
    const std::int64_t start =
        std::min(offset - static_cast<std::int64_t>(before),
                 std::max<std::int64_t>(0, total - static_cast<std::int64_t>(readAtOnce)));
    const auto skipped = static_cast<std::size_t>(offset - start);
    const std::size_t wanted = std::max(skipped + count, m_readAhead);
    window.size = 0; // reading may fail
    if (window.capacity < wanted) {
        window.bytes = std::make_unique_for_overwrite<char[]>(wanted);
        window.capacity = wanted;
    }
    window.size = m_source->read(static_cast<std::uint64_t>(start), window.bytes.get(), wanted);
    window.offset = start;
    m_lastRead = start + static_cast<std::int64_t>(window.size);
    return window.text().substr(std::min(skipped, window.size), count);
}

/// The number behind the last "startxref", when nothing but the end-of-file marker follows it.
std::optional<std::int64_t> DirectReader::lastStartXref()
{
    const auto total = static_cast<std::int64_t>(m_source->size());
    // With the tail comes what it points to, if the document is small.
    const std::int64_t start = std::max<std::int64_t>(0, total - static_cast<std::int64_t>(readAtOnce));
    const std::string_view end = bytes(start, readAtOnce);
    const std::string_view tail = end.substr(end.size() - std::min(end.size(), tailSize));
    const std::size_t found = tail.rfind("startxref");
    if (found == tail.npos)
        return std::nullopt;
    SyntaxScanner scanner(tail, found);
    if (!scanner.keyword("startxref"))
        return std::nullopt;
    scanner.skipSpace();
    const auto offset = scanner.integer();
    scanner.skipSpace();
    std::string_view rest = tail.substr(scanner.position());
    if (!offset || *offset >= total || !rest.starts_with("%%EOF"))
        return std::nullopt;
    rest.remove_prefix(std::string_view("%%EOF").size());
    return std::all_of(rest.begin(), rest.end(), isSpace) ? offset : std::nullopt;
}

bool DirectReader::readSections(std::int64_t offset)
{
    std::set<std::int64_t> seen;
    std::size_t entryBytes = 0;
    while (offset >= 0) {
        if (!seen.insert(offset).second || seen.size() > mostSections)
            return false;
        auto section = readSection(offset);
        if (!section)
            return false;
        offset = section->previous;
        entryBytes += section->entries.size();
        if (entryBytes > largestDecoded)
            return false;
        m_sections.push_back(std::move(*section));
    }
    // Other readers take the number that stands before a section for the section's, whatever the entries say.
    return std::all_of(m_sections.begin(), m_sections.end(), [&](const Section& section) {
        const auto entry = section.isStream ? find(section.number) : Entry{EntryKind::Free, 0, 0};
        return entry && (entry->kind == EntryKind::Free ||
                         (entry->kind == EntryKind::Plain && seen.contains(entry->position)));
    });
}

std::optional<DirectReader::Section> DirectReader::readSection(std::int64_t offset)
{
    auto section = bytes(offset, 4) == "xref" ? readTable(offset) : readStream(offset);
    if (!section || !complete(*section) || (section->isStream && !hasGoodEntries(*section)))
        return std::nullopt;
    section->offset = offset;
    return section;
}

/// Reads what both kinds of section state in their dictionary.
bool DirectReader::complete(Section& section)
{
    const auto entries = dictionaryEntries(section.dictionary);
    if (!entries || entries->contains("Encrypt") || entries->contains("XRefStm"))
        return false;
    const auto size = integerOf(*entries, "Size");
    if (!isNumberInRange(size, largestSize) || *size < 1)
        return false;
    if (entries->contains("Prev")) {
        const auto previous = integerOf(*entries, "Prev");
        if (!isNumberInRange(previous, static_cast<std::int64_t>(m_source->size()) - 1))
            return false;
        section.previous = *previous;
    }
    m_size = std::max(m_size, static_cast<int>(*size));
    std::int64_t end = 0;
    for (const Run& run : section.runs) {
        if (run.first < end)
            return false;
        end = run.first + static_cast<std::int64_t>(run.count);
    }
    return end <= *size;
}

std::optional<DirectReader::Section> DirectReader::readTable(std::int64_t offset)
{
    Section section;
    std::int64_t at = offset + 4;
    if (const std::string_view space = bytes(at, 1); space.empty() || !isSpace(space.front()))
        return std::nullopt;
    for (;;) {
        const std::string_view head = bytes(at, 64);
        SyntaxScanner scanner(head);
        scanner.skipSpace();
        if (!section.runs.empty() && scanner.keyword("trailer")) {
            at += static_cast<std::int64_t>(scanner.position());
            break;
        }
        const auto first = scanner.integer();
        scanner.skipSpace();
        const auto count = scanner.integer();
        scanner.skipSpace();
        if (!isNumberInRange(first, INT32_MAX) || !isNumberInRange(count, INT32_MAX))
            return std::nullopt;
        at += static_cast<std::int64_t>(scanner.position());
        section.runs.push_back({static_cast<int>(*first), static_cast<int>(*count), at});
        at += *count * entrySize;
        if (at >= static_cast<std::int64_t>(m_source->size()) || section.runs.size() > mostRuns ||
            !hasGoodEntries(section.runs.back()))
            return std::nullopt;
    }
    const auto dictionary = valueAt(at, -1, 0, nullptr);
    if (!dictionary)
        return std::nullopt;
    section.dictionary = *dictionary;
    return section;
}

/// One bad entry, of whatever object, makes other readers distrust all of them.
bool DirectReader::hasGoodEntries(const Run& run)
{
    for (std::int64_t done = 0; done < run.count; done += entriesAtOnce) {
        const std::int64_t count = std::min(entriesAtOnce, run.count - done);
        const auto size = static_cast<std::size_t>(count * entrySize);
        const std::string_view entries = bytes(run.offset + done * entrySize, size);
        for (std::size_t at = 0; at < size; at += entrySize)
            if (at > entries.size() || !isUsualTableEntry(entries.substr(at, entrySize)))
                return false;
    }
    return true;
}

std::optional<DirectReader::Section> DirectReader::readStream(std::int64_t offset)
{
    Section section;
    section.isStream = true;
    const auto number = SyntaxScanner(bytes(offset, longestObjectHeader)).integer();
    if (!isNumberInRange(number, largestSize) || *number < 1)
        return std::nullopt;
    section.number = static_cast<int>(*number);
    DictionaryEntries entries;
    const auto stored = streamAt(offset, section.number, section.dictionary, entries);
    if (!stored || !entries.contains("Type") || entries.at("Type") != "/XRef" || !entries.contains("W"))
        return std::nullopt;
    auto data = decodedStream(entries, *stored, largestDecoded);
    const auto widths = integerArray(entries.at("W"));
    if (!data || !allows(stored->size() + data->size()))
        return std::nullopt;
    if (!widths || widths->size() != 3)
        return std::nullopt;
    for (std::size_t field = 0; field < 3; ++field) {
        if ((*widths)[field] > 8)
            return std::nullopt;
        section.widths[field] = static_cast<int>((*widths)[field]);
    }
    const auto size = integerOf(entries, "Size");
    const auto index = entries.contains("Index")
                           ? integerArray(entries.at("Index"))
                           : std::optional(std::vector<std::int64_t>{0, size.value_or(0)});
    if (!size || !index || index->size() % 2 != 0)
        return std::nullopt;
    const std::int64_t width = section.widths[0] + section.widths[1] + section.widths[2];
    std::int64_t at = 0;
    for (std::size_t pair = 0; pair < index->size(); pair += 2) {
        const std::int64_t first = (*index)[pair];
        const std::int64_t count = (*index)[pair + 1];
        if (first > INT32_MAX || count > INT32_MAX)
            return std::nullopt;
        section.runs.push_back({static_cast<int>(first), static_cast<int>(count), at});
        at += count * width;
    }
    if (width == 0 || at != static_cast<std::int64_t>(data->size()))
        return std::nullopt;
    section.entries = std::move(*data);
    return section;
}

bool DirectReader::hasGoodEntries(const Section& section) const
{
    const auto [kind, second, third] = section.widths;
    if (kind == 1 && second < 8 && third < 4) { // no value of the other fields is too large
        const int width = kind + second + third;
        for (std::size_t at = 0; at < section.entries.size(); at += static_cast<std::size_t>(width))
            if (static_cast<unsigned char>(section.entries[at]) > 2)
                return false;
        return true;
    }
    for (const Run& run : section.runs)
        for (int number = 0; number < run.count; ++number)
            if (!streamEntry(section, run, run.first + number))
                return false;
    return true;
}

std::optional<DirectReader::Entry> DirectReader::find(int number)
{
    for (const Section& section : m_sections) {
        const auto run = std::partition_point(section.runs.begin(), section.runs.end(), [&](const Run& run) {
            return number - run.first >= run.count;
        });
        if (run != section.runs.end() && number >= run->first)
            return section.isStream ? streamEntry(section, *run, number) : tableEntry(*run, number);
    }
    return Entry{EntryKind::Free, 0, 0};
}

std::optional<DirectReader::Entry> DirectReader::tableEntry(const Run& run, int number)
{
    const std::string_view text = bytes(run.offset + (number - run.first) * entrySize, entrySize);
    if (!isUsualTableEntry(text))
        return std::nullopt;
    const auto kind = text[17] == 'n' ? EntryKind::Plain : EntryKind::Free;
    return Entry{kind, *fixedNumber(text.substr(0, 10)), static_cast<int>(*fixedNumber(text.substr(11, 5)))};
}

std::optional<DirectReader::Entry> DirectReader::streamEntry(const Section& section, const Run& run,
                                                             int number) const
{
    const int width = section.widths[0] + section.widths[1] + section.widths[2];
    std::size_t at =
        static_cast<std::size_t>(run.offset + static_cast<std::int64_t>(number - run.first) * width);
    std::array<std::uint64_t, 3> fields{section.widths[0] == 0 ? 1U : 0U, 0, 0};
    for (std::size_t field = 0; field < 3; ++field)
        for (int byte = 0; byte < section.widths[field]; ++byte)
            fields[field] = fields[field] << 8 | static_cast<unsigned char>(section.entries[at++]);
    if (fields[0] > 2 || fields[1] > INT64_MAX || fields[2] > INT32_MAX)
        return std::nullopt;
    return Entry{static_cast<EntryKind>(fields[0]), static_cast<std::int64_t>(fields[1]),
                 static_cast<int>(fields[2])};
}

std::string DirectReader::skeletonTrailer() const
{
    const auto entries = dictionaryEntries(trailer());
    std::string text = "<<";
    for (const auto& [key, value] : *entries)
        if (std::find(std::begin(sectionKeys), std::end(sectionKeys), key) == std::end(sectionKeys))
            text.append("/").append(key).append(" ").append(value).append("\n");
    return text + "/Size " + std::to_string(m_size) + " >>";
}

std::optional<std::string> DirectReader::skeleton()
{
    const auto entries = dictionaryEntries(trailer());
    const auto root = entries->contains("Root") ? wholeReference(entries->at("Root")) : std::nullopt;
    const auto found = root ? object(root->number, root->generation) : std::nullopt;
    const auto catalogEntries = dictionaryEntries(found.value_or(""));
    if (!catalogEntries || !catalogEntries->contains("Pages"))
        return std::nullopt;
    const auto pages = wholeReference(catalogEntries->at("Pages"));
    if (!pages || pages->number == root->number)
        return std::nullopt;

    std::string text = std::string(bytes(0, 8)) + "\n";
    std::string table;
    const auto add = [&](const Reference& id, const std::string& value) {
        char entry[32];
        std::snprintf(entry, sizeof entry, "%010zu %05d n \n", text.size(), id.generation);
        table += std::to_string(id.number) + " 1\n" + entry;
        text +=
            std::to_string(id.number) + " " + std::to_string(id.generation) + " obj\n" + value + "\nendobj\n";
    };
    add(*root, "<< >>");
    // New objects are numbered from the last one on.
    if (root->number != m_size - 1)
        add({m_size - 1, 0}, "null");
    const std::size_t start = text.size();
    return text + "xref\n" + table + "trailer\n" + skeletonTrailer() + "\nstartxref\n" +
           std::to_string(start) + "\n%%EOF\n";
}

std::optional<std::string_view> DirectReader::object(int number, int generation)
{
    const auto entry = find(number);
    if (!entry)
        return std::nullopt;
    std::optional<std::string_view> text;
    if (entry->kind == EntryKind::Free)
        text = "null";
    else if (entry->kind == EntryKind::Plain && entry->detail == generation)
        text = valueAt(entry->position, number, generation, nullptr);
    else if (entry->kind == EntryKind::Compressed && generation == 0 && entry->position <= INT32_MAX)
        text = compressed(static_cast<int>(entry->position), entry->detail, number);
    return text && allows(text->size()) ? text : std::nullopt;
}

/// Adds to what the document has cost so far. \returns false when that is too much.
bool DirectReader::allows(std::size_t effort)
{
    m_effort += effort;
    return m_effort <= mostEffort + mostEffortPerByte * m_source->size();
}

/// Reads a value that stands in the file, behind an object header unless `number` is -1 and a trailer is
/// meant. \param streamData where a stream's data begins, or 0; without it a stream makes the reader give up.
std::optional<std::string_view> DirectReader::valueAt(std::int64_t offset, int number, int generation,
                                                      std::int64_t* streamData)
{
    for (std::size_t window = firstWindow; window <= largestWindow; window *= 4) {
        const std::string_view text = bytes(offset, window);
        SyntaxScanner scanner(text);
        if (number >= 0) {
            const auto foundNumber = scanner.integer();
            scanner.skipSpace();
            const auto foundGeneration = scanner.integer();
            scanner.skipSpace();
            if (foundNumber != number || foundGeneration != generation || !scanner.keyword("obj"))
                return std::nullopt;
        }
        scanner.skipSpace();
        const std::size_t start = scanner.position();
        const auto outcome = scanner.skipValue();
        const std::size_t end = scanner.position();
        scanner.skipSpace();
        const bool cutOff =
            outcome == SyntaxScanner::Outcome::CutOff || end + longestObjectHeader > text.size();
        if (cutOff && text.size() == window)
            continue;
        if (outcome != SyntaxScanner::Outcome::Complete)
            return std::nullopt;
        const std::string_view value = text.substr(start, end - start);
        if (scanner.keyword("endobj") || (number < 0 && scanner.keyword("startxref")))
            return value;
        if (streamData == nullptr || !scanner.keyword("stream"))
            return std::nullopt;
        const std::string_view data = text.substr(scanner.position());
        if (!data.starts_with("\n") && !data.starts_with("\r\n"))
            return std::nullopt;
        *streamData = offset + static_cast<std::int64_t>(scanner.position() + (data.front() == '\n' ? 1 : 2));
        return value;
    }
    return std::nullopt;
}

/// Finds the stream at an offset. \returns its data as it is stored.
std::optional<std::string_view> DirectReader::streamAt(std::int64_t offset, int number,
                                                       std::string& dictionary, DictionaryEntries& entries)
{
    std::int64_t start = 0;
    const auto text = valueAt(offset, number, 0, &start);
    if (!text || start == 0)
        return std::nullopt;
    dictionary = *text;
    auto found = dictionaryEntries(dictionary);
    const auto length = found ? integerOf(*found, "Length") : std::nullopt;
    if (!isNumberInRange(length, static_cast<std::int64_t>(largestDecoded)))
        return std::nullopt;
    entries = std::move(*found);
    const auto size = static_cast<std::size_t>(*length);
    const std::string_view data = bytes(start, size + longestObjectHeader);
    if (data.size() < size)
        return std::nullopt;
    SyntaxScanner behind(data, size);
    behind.skipSpace();
    if (!behind.keyword("endstream"))
        return std::nullopt;
    behind.skipSpace();
    return behind.keyword("endobj") ? std::optional(data.substr(0, size)) : std::nullopt;
}

/// Of an object stream no more is decoded than what the object needs, and some room.
std::optional<std::string_view> DirectReader::compressed(int container, int index, int number)
{
    for (std::size_t size = m_containers.contains(container) ? 0 : m_expected;;) {
        const Container* stream = containerOf(container, size);
        if (stream == nullptr)
            return std::nullopt;
        const bool known = index >= 0 && static_cast<std::size_t>(index) < stream->objects.size();
        if (!known || stream->objects[static_cast<std::size_t>(index)].first != number)
            return std::nullopt;
        const std::size_t from = stream->objects[static_cast<std::size_t>(index)].second;
        if (from < stream->data.size()) {
            SyntaxScanner scanner(stream->data, from);
            scanner.skipSpace();
            const std::size_t start = scanner.position();
            const auto outcome = scanner.skipValue();
            if (outcome == SyntaxScanner::Outcome::Odd)
                return std::nullopt;
            if (outcome == SyntaxScanner::Outcome::Complete) {
                const std::size_t needed = scanner.position() - stream->bodies;
                m_expected = std::clamp(needed + needed / 4, leastDecoded, mostDecodedFirst);
                return std::string_view(stream->data).substr(start, scanner.position() - start);
            }
        }
        if (stream->complete)
            return std::nullopt;
        size = std::max(4 * std::max(size, stream->data.size() - stream->bodies),
                        stream->endOf(from) - stream->bodies + behindObject);
    }
}

/// Where the object that begins at an offset ends at the latest.
std::size_t DirectReader::Container::endOf(std::size_t start) const
{
    std::size_t end = largestDecoded;
    for (const auto& [number, other] : objects)
        if (other > start)
            end = std::min(end, other);
    return end == largestDecoded ? start : end;
}

/// \param size how much of its objects is wanted at least, if it has as much.
const DirectReader::Container* DirectReader::containerOf(int number, std::size_t size)
{
    const auto known = m_containers.find(number);
    if (known != m_containers.end() &&
        (known->second.complete || known->second.data.size() >= known->second.bodies + size))
        return &known->second;
    const auto entry = find(number);
    if (!entry || entry->kind != EntryKind::Plain || entry->detail != 0)
        return nullptr;
    std::string dictionary;
    DictionaryEntries entries;
    const auto data = streamAt(entry->position, number, dictionary, entries);
    if (!data || !entries.contains("Type") || entries.at("Type") != "/ObjStm")
        return nullptr;
    const auto count = integerOf(entries, "N");
    const auto first = integerOf(entries, "First");
    if (!isNumberInRange(count, INT32_MAX) || !isNumberInRange(first, largestDecoded))
        return nullptr;
    Container container;
    container.bodies = static_cast<std::size_t>(*first);
    const std::size_t wanted = std::min(container.bodies + size, largestDecoded);
    auto content = decodedStream(entries, *data, wanted);
    if (!content || content->size() >= largestDecoded || !allows(data->size() + content->size()))
        return nullptr;
    container.complete = content->size() < wanted;
    if (container.bodies > content->size() || !readHeader(*content, *count, container))
        return nullptr;
    if (known != m_containers.end()) {
        m_containerBytes -= known->second.size();
        m_containers.erase(known);
    }
    if (container.complete)
        content->push_back('\n'); // ends a last word
    container.data = std::move(*content);
    m_containerBytes += container.size();
    if (m_containerBytes > mostContainerBytes) {
        m_containers.clear();
        m_containerBytes = container.size();
    }
    return &m_containers.emplace(number, std::move(container)).first->second;
}

/// Reads which objects a stream holds and where. One that holds an object twice is odd.
bool DirectReader::readHeader(std::string_view data, std::int64_t count, Container& container)
{
    SyntaxScanner scanner(data.substr(0, container.bodies));
    // A count that lies must not cost memory: no entry is shorter.
    const std::size_t most = container.bodies / std::string_view("1 0 ").size();
    container.objects.reserve(std::min(static_cast<std::size_t>(count), most));
    bool ascending = true; // as they mostly are
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
        container.objects.emplace_back(last, container.bodies + static_cast<std::size_t>(*start));
    }
    if (ascending)
        return true;
    std::vector<int> numbers;
    numbers.reserve(container.objects.size());
    for (const auto& [number, start] : container.objects)
        numbers.push_back(number);
    std::sort(numbers.begin(), numbers.end());
    return std::adjacent_find(numbers.begin(), numbers.end()) == numbers.end();
}

} // namespace engine
