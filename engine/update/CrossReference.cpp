#include "CrossReference.h"

#include "DocumentTail.h"
#include "FileScan.h"
#include "SourceInput.h"
#include "engine/files/EngineError.h"
#include "engine/syntax/ObjectParser.h"

#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFTokenizer.hh>

#include <algorithm>
#include <cctype>
#include <set>
#include <string_view>

namespace engine {

namespace {

// Far above any file's size, so that sums of offsets cannot overflow.
constexpr std::uint64_t largestOffset = std::uint64_t{1} << 62;

// How many bytes before the end all readers look for `startxref`; some then search the file for its objects.
constexpr std::uint64_t searchedByAllReaders = 1024;

[[noreturn]] void refuse(const char* reason)
{
    throw EngineError(ErrorCode::CannotAppend, reason);
}

std::size_t digitsAt(std::string_view text, std::size_t position)
{
    std::size_t end = position;
    while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end])))
        ++end;
    return end - position;
}

bool isVersion(std::string_view text, std::size_t position)
{
    const std::size_t major = digitsAt(text, position);
    const std::size_t point = position + major;
    return major > 0 && point < text.size() && text[point] == '.' && digitsAt(text, point + 1) > 0;
}

/// Where the dictionary at an offset ends for libqpdf.
std::int64_t dictionaryEnd(QPDF& pdf, const std::shared_ptr<SourceInput>& input, std::int64_t offset)
{
    QPDFTokenizer tokenizer;
    tokenizer.allowEOF();
    input->seek(offset, SEEK_SET);
    bool empty = false;
    if (!QPDFObjectHandle::parse(input, "trailer", tokenizer, empty, nullptr, &pdf).isDictionary())
        refuse("a section of the cross-reference has no dictionary");
    return input->tell();
}

} // namespace

CrossReference::CrossReference(QPDF& pdf, std::shared_ptr<const ByteSource> source)
    : m_headerOffset(headerOffsetOf(*source))
{
    const auto tail = findDocumentTail(*source);
    if (!tail)
        refuse("no startxref");
    if (source->size() - tail->keyword > searchedByAllReaders && hasObjectsBehind(*source, *tail))
        refuse("the end of the last update is missing");
    FileWindows file(source);
    const auto input = std::make_shared<SourceInput>(source, "cross-reference");
    SectionReader reader(file, [&](std::int64_t offset) { return dictionaryEnd(pdf, input, offset); });
    try {
        readChain(pdf, reader, tail->startxref);
        requireSameDocument(pdf);
    } catch (const QPDFExc& error) {
        throw EngineError(ErrorCode::CannotAppend, error.what());
    }
}

CrossReference::CrossReference(QPDF& pdf, const Section& newest, int size)
    : m_kind(newest.isStream ? Kind::Stream : Kind::Table),
      m_newestOffset(static_cast<std::uint64_t>(newest.offset)),
      m_trailer(parseObject(pdf, newest.dictionary)), m_entryEnd(size), m_size(size)
{}

CrossReference::CrossReference(QPDF& pdf, std::uint64_t headerOffset, const FileScan& found)
    : m_headerOffset(headerOffset), m_trailer(pdf.getTrailer())
{
    if (!m_trailer.getKey("/Root").isIndirect())
        refuse("the trailer does not name the catalog");
    for (const auto& [number, definition] : found.definitions()) {
        if (definition.offset < headerOffset)
            refuse("an object lies before the header");
        m_unlisted.emplace(number, ObjectOffset{definition.offset - headerOffset, definition.generation});
    }
    m_entryEnd = m_unlisted.empty() ? 1 : m_unlisted.rbegin()->first + 1;
    m_size = m_entryEnd;
}

// The same place that libqpdf finds, for it counts offsets from there.
std::uint64_t CrossReference::headerOffsetOf(const ByteSource& source)
{
    constexpr std::string_view marker = "%PDF-";
    const std::string text = source.text(0, 1024 + 16);
    for (std::size_t at = text.find(marker); at < 1024; at = text.find(marker, at + 1))
        if (isVersion(text, at + marker.size()))
            return at;
    return 0;
}

void CrossReference::readChain(QPDF& pdf, SectionReader& reader, std::uint64_t offset)
{
    bool newest = true;
    std::set<std::uint64_t> visited;
    std::set<std::uint64_t> beside;
    while (newest || offset != 0) {
        if (!visited.insert(offset).second)
            refuse("the sections of the cross-reference form a loop");
        Section section;
        QPDFObjectHandle dictionary = readSection(pdf, reader, offset, section);
        if (newest) {
            m_kind = section.isStream ? Kind::Stream : Kind::Table;
            m_newestOffset = static_cast<std::uint64_t>(section.offset) - m_headerOffset;
            m_trailer = dictionary;
            newest = false;
        }
        if (!section.isStream && dictionary.hasKey("/XRefStm"))
            beside.insert(dictionary.getKey("/XRefStm").getUIntValue());
        QPDFObjectHandle previous = dictionary.getKey("/Prev");
        if (!previous.isNull() && !previous.isInteger())
            refuse("the offset of the previous section is not a number");
        offset = previous.isNull() ? 0 : previous.getUIntValue();
    }
    // Several sections may share one stream. It leads nowhere, so it is no part of a loop.
    for (const std::uint64_t stream : beside) {
        Section section;
        readSection(pdf, reader, stream, section);
    }
}

/// Reads a section and takes note of its entries. \returns its dictionary.
QPDFObjectHandle CrossReference::readSection(QPDF& pdf, SectionReader& reader, std::uint64_t offset,
                                             Section& section)
{
    auto read = offset < largestOffset ? reader.read(static_cast<std::int64_t>(m_headerOffset + offset))
                                       : std::nullopt;
    if (!read)
        refuse(offset < largestOffset ? reader.why()
                                      : "a section of the cross-reference lies behind the end");
    section = std::move(*read);
    QPDFObjectHandle dictionary = parseObject(pdf, section.dictionary);
    if (!dictionary.isDictionary())
        refuse("a section of the cross-reference has no dictionary");
    noteSize(dictionary.getKey("/Size"));
    for (const Section::Run& run : section.runs)
        noteEntries(run.first, run.count);
    if (section.isStream && !dictionary.isDictionaryOfType("/XRef"))
        refuse("there is no cross-reference stream where the document says");
    if (section.isStream)
        noteIndex(dictionary);
    return dictionary;
}

void CrossReference::noteSize(QPDFObjectHandle size)
{
    if (!size.isInteger() || size.getIntValue() < 0 || size.getIntValue() > largestSize)
        refuse("a section of the cross-reference has no usable size");
    m_size = std::max(m_size, size.getIntValueAsInt());
}

void CrossReference::noteEntries(long long first, long long count)
{
    if (first < 0 || count < 0 || first > largestSize || count > largestSize - first)
        refuse("the cross-reference has impossible object numbers");
    if (count == 0)
        return;
    m_entryEnd = std::max(m_entryEnd, static_cast<int>(first + count));
    m_size = std::max(m_size, m_entryEnd);
}

void CrossReference::noteIndex(QPDFObjectHandle dictionary)
{
    QPDFObjectHandle index = dictionary.getKey("/Index");
    if (index.isNull()) {
        noteEntries(0, dictionary.getKey("/Size").getIntValue());
        return;
    }
    if (!index.isArray() || index.getArrayNItems() % 2 != 0)
        refuse("a cross-reference stream has an impossible index");
    for (int item = 0; item < index.getArrayNItems(); item += 2)
        noteEntries(index.getArrayItem(item).getIntValue(), index.getArrayItem(item + 1).getIntValue());
}

void CrossReference::requireSameDocument(QPDF& pdf)
{
    QPDFObjectHandle used = pdf.getTrailer();
    const QPDFObjectHandle root = m_trailer.getKey("/Root");
    if (!root.isIndirect() || root.getObjGen() != used.getKey("/Root").getObjGen())
        refuse("the newest trailer does not name the catalog in use");
    if (m_trailer.hasKey("/Encrypt") != used.hasKey("/Encrypt"))
        refuse("the newest trailer is not the one in use");
}

} // namespace engine
