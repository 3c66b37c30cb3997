#include "InPlaceUpdate.h"

#include "DocumentWriter.h"
#include "engine/document/Document.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/update/DocumentTail.h"

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

} // namespace

std::string inPlaceUpdateOf(Document& document)
{
    std::string update = updateOf(document);
    const ByteSource& source = *document.source();
    // Some readers count offsets from the begin of the file, whatever lies before the header.
    if (document.crossReferenceRebuilt() || document.anyWarnings() ||
        CrossReference::headerOffsetOf(source) != 0)
        refuse("readers may search the document for its objects");
    const auto tail = findDocumentTail(source);
    if (!tail || source.size() - tail->end > longestTail)
        refuse("the document's end lies too far back");
    const std::size_t lastLines = update.rfind("startxref");
    const std::size_t padding = paddingFor(source.size() + lastLines, update.size() - lastLines);
    update.insert(lastLines, padding, '\n');
    if (lastLines > longestUpdate ||
        source.size() + lastLines + padding - tail->keyword > searchedByAllReaders)
        refuse("the update is too long");
    document.requireUnchanged();
    return update;
}

} // namespace engine
