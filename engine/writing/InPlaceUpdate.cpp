#include "InPlaceUpdate.h"

#include "DocumentWriter.h"
#include "engine/document/Document.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/update/DocumentTail.h"

#include <optional>
#include <utility>

namespace engine {

namespace {

// The smallest unit that disks write whole.
constexpr std::uint64_t sectorSize = 512;

// Of an update without its last lines, and of what may follow the document's end already.
constexpr std::size_t longestUpdate = 900;
constexpr std::uint64_t longestTail = 100;

// Readers look for the document's own "startxref" in the last 1,024 bytes, and some in a little less.
constexpr std::uint64_t searchedByAllReaders = 1000;

[[noreturn]] void refuse(const char* reason)
{
    throw EngineError(ErrorCode::NotInPlace, reason);
}

/// How many bytes of white space bring what would lie across the end of a sector to the next one's begin.
std::size_t paddingFor(std::uint64_t offset, std::size_t size)
{
    const std::uint64_t used = offset % sectorSize;
    return used + size <= sectorSize ? 0 : static_cast<std::size_t>(sectorSize - used);
}

/// Readers that find a document damaged search it for its objects, and would find those of half an update.
/// Some of them count offsets from the begin of the file, whatever lies before the header.
bool maybeSearched(Document& document)
{
    return document.crossReferenceRebuilt() || document.anyWarnings() ||
           CrossReference::headerOffsetOf(*document.source()) != 0;
}

/// An update that begins at an offset.
class PlacedUpdate
{
public:
    PlacedUpdate(std::string bytes, std::uint64_t begin) : m_bytes(std::move(bytes)), m_begin(begin)
    {
        m_lastLines = m_bytes.rfind("startxref");
        const std::size_t padding = paddingFor(begin + m_lastLines, m_bytes.size() - m_lastLines);
        m_bytes.insert(m_lastLines, padding, '\n');
        m_lastLines += padding;
    }

    /// The update without bytes that are there already; nothing when those are not its begin.
    std::optional<std::string> behind(const std::string& present) const
    {
        const bool isBegin = present.size() <= m_lastLines && m_bytes.starts_with(present);
        return isBegin ? std::optional(m_bytes.substr(present.size())) : std::nullopt;
    }

    /// Readers that look for "startxref" take no notice of it: no text or name of the document has that word.
    bool isPassedOver(const DocumentTail& tail) const
    {
        return m_bytes.find("startxref") == m_lastLines && m_lastLines <= longestUpdate &&
               m_begin + m_lastLines - tail.keyword <= searchedByAllReaders;
    }

private:
    std::string m_bytes;
    std::uint64_t m_begin;
    std::size_t m_lastLines;
};

/// What follows the document's end but white space, if an update can have been begun there.
std::string behindEnd(const ByteSource& source, const DocumentTail& tail)
{
    const std::string text = source.text(tail.end, searchedByAllReaders);
    const std::size_t begin = text.find_first_not_of("\r\n ");
    return begin == text.npos || tail.end + text.size() < source.size() ? std::string() : text.substr(begin);
}

} // namespace

std::string inPlaceUpdateOf(Document& document)
{
    std::string bytes = updateOf(document);
    const ByteSource& source = *document.source();
    const auto tail = findDocumentTail(source);
    if (!tail || maybeSearched(document))
        refuse("readers may search the document for its objects");
    document.requireUnchanged();
    if (const std::string present = behindEnd(source, *tail); !present.empty()) {
        const std::uint64_t begin = source.size() - present.size();
        const PlacedUpdate begun(updateOf(document, begin), begin);
        const auto missing = begun.behind(present);
        if (missing && begun.isPassedOver(*tail))
            return *missing;
    }
    const PlacedUpdate update(std::move(bytes), source.size());
    if (source.size() - tail->end > longestTail || !update.isPassedOver(*tail))
        refuse(
            "the update is too long or has the word \"startxref\", or the document's end lies too far back");
    return *update.behind({});
}

} // namespace engine
