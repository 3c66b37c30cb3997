#include "CrossReference.h"

#include "DocumentTail.h"
#include "FileScan.h"
#include "SourceInput.h"
#include "engine/direct/DirectReader.h"
#include "engine/files/EngineError.h"
#include "engine/syntax/ObjectParser.h"
#include "engine/syntax/TableScanner.h"

#include <qpdf/QPDFExc.hh>

#include <algorithm>
#include <cctype>
#include <set>
#include <string_view>

namespace engine {

namespace {

constexpr std::string_view whitespace("\0\t\n\f\r ", 6);

// Readers stop at object numbers far above; what claims more is a lie that must not be built upon.
constexpr long long largestSize = 0x7ffffff0;

// Some search the file for its objects when its end is not within this.
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

} // namespace

CrossReference::CrossReference(QPDF& pdf, std::shared_ptr<const ByteSource> source)
    : m_source(std::move(source)), m_input(std::make_shared<SourceInput>(m_source, "cross-reference")),
      m_headerOffset(headerOffsetOf(*m_source))
{
    const auto tail = findDocumentTail(*m_source);
    if (!tail)
        refuse("no startxref");
    if (m_source->size() - tail->keyword > searchedByAllReaders && hasObjectsBehind(*m_source, *tail))
        refuse("the end of the last update is missing");
    m_tokenizer.allowEOF();
    try {
        readChain(pdf, tail->startxref);
        requireSameDocument(pdf);
    } catch (const QPDFExc& error) {
        throw EngineError(ErrorCode::CannotAppend, error.what());
    }
}

CrossReference::CrossReference(QPDF& pdf, const DirectReader& reader)
    : m_kind(reader.newestIsStream() ? Kind::Stream : Kind::Table),
      m_newestOffset(static_cast<std::uint64_t>(reader.newestOffset())),
      m_trailer(parseObject(pdf, reader.trailer())), m_entryEnd(reader.size()), m_size(reader.size())
{}

CrossReference::CrossReference(QPDF& pdf, std::uint64_t headerOffset, const FileScan& found)
    : m_headerOffset(headerOffset), m_trailer(pdf.getTrailer())
{
    if (!m_trailer.getKey("/Root").isIndirect())
        refuse("the trailer does not name the catalog");
    for (const auto& [number, definition] : found.definitions()) {
        if (definition.offset < headerOffset)
            refuse("an object lies before the header");
        m_unlisted.emplace(number, Entry{definition.offset - headerOffset, definition.generation});
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

void CrossReference::readChain(QPDF& pdf, std::uint64_t offset)
{
    bool newest = true;
    std::set<std::uint64_t> visited;
    while (newest || offset != 0) {
        if (!visited.insert(offset).second)
            refuse("the sections of the cross-reference form a loop");
        const Section section = readSection(pdf, offset);
        QPDFObjectHandle dictionary = section.dictionary;
        if (newest) {
            m_kind = section.kind;
            m_newestOffset = skipWhitespace(m_headerOffset + offset) - m_headerOffset;
            m_trailer = dictionary;
            newest = false;
        }
        // Several sections may share one stream. It leads nowhere, so it is no part of a loop.
        if (section.kind == Kind::Table && dictionary.hasKey("/XRefStm"))
            readSection(pdf, dictionary.getKey("/XRefStm").getUIntValue());
        QPDFObjectHandle previous = dictionary.getKey("/Prev");
        if (!previous.isNull() && !previous.isInteger())
            refuse("the offset of the previous section is not a number");
        offset = previous.isNull() ? 0 : previous.getUIntValue();
    }
}

CrossReference::Section CrossReference::readSection(QPDF& pdf, std::uint64_t offset)
{
    if (offset >= m_source->size())
        refuse("a section of the cross-reference lies behind the end");
    const std::uint64_t position = skipWhitespace(m_headerOffset + offset);
    const std::string start = m_source->text(position, 5);
    const bool isTable =
        start.size() == 5 && start.starts_with("xref") && whitespace.find(start[4]) != whitespace.npos;
    Section section = isTable ? readTable(pdf, position + 4) : readStream(pdf, position);
    QPDFObjectHandle size = section.dictionary.getKey("/Size");
    if (!size.isInteger() || size.getIntValue() < 0 || size.getIntValue() > largestSize)
        refuse("a section of the cross-reference has no usable size");
    m_size = std::max(m_size, size.getIntValueAsInt());
    return section;
}

CrossReference::Section CrossReference::readTable(QPDF& pdf, std::uint64_t position)
{
    TableScanner scanner(*m_source, position);
    while (const auto subsection = scanner.nextSubsection())
        noteEntries(subsection->first, subsection->count);
    m_input->seek(static_cast<qpdf_offset_t>(scanner.behindTrailerKeyword()), SEEK_SET);
    return {Kind::Table, readDictionary(pdf)};
}

CrossReference::Section CrossReference::readStream(QPDF& pdf, std::uint64_t position)
{
    using Token = QPDFTokenizer::Token;
    m_input->seek(static_cast<qpdf_offset_t>(position), SEEK_SET);
    const auto next = [this] { return m_tokenizer.readToken(m_input, "cross-reference", true, 20); };
    const Token number = next();
    const Token generation = next();
    if (!number.isInteger() || !generation.isInteger() || !next().isWord("obj"))
        refuse("there is no cross-reference where the document says");
    QPDFObjectHandle dictionary = readDictionary(pdf);
    if (!next().isWord("stream") || !dictionary.isDictionaryOfType("/XRef"))
        refuse("there is no cross-reference stream where the document says");
    noteIndex(dictionary);
    return {Kind::Stream, dictionary};
}

QPDFObjectHandle CrossReference::readDictionary(QPDF& pdf)
{
    bool empty = false;
    QPDFObjectHandle dictionary =
        QPDFObjectHandle::parse(m_input, "trailer", m_tokenizer, empty, nullptr, &pdf);
    if (!dictionary.isDictionary())
        refuse("a section of the cross-reference has no dictionary");
    return dictionary;
}

std::uint64_t CrossReference::skipWhitespace(std::uint64_t position) const
{
    const std::size_t skipped = m_source->text(position, 64).find_first_not_of(whitespace);
    return position + (skipped == std::string::npos ? 0 : skipped);
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
