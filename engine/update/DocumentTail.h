#pragma once

#include <cstdint>
#include <optional>

namespace engine {

class ByteSource;

/// The end of a document: its last `startxref` that is followed by a number.
struct DocumentTail
{
    std::uint64_t keyword = 0;   ///< Offset of the word in the file.
    std::uint64_t startxref = 0; ///< The number, as it stands there.
    std::uint64_t end = 0;       ///< Offset behind the number and, where it follows, the end-of-file marker.
};

/// Searches from the end of the file as far back as needed. Nothing when the file has no such word.
std::optional<DocumentTail> findDocumentTail(const ByteSource& source);

/// Whether objects follow the document's tail: those of an update whose end is lost.
bool hasObjectsBehind(const ByteSource& source, const DocumentTail& tail);

/// Where the document ends for readers that look for `startxref` in the last kilobyte only: the size of the
/// source, or less when what follows the tail is long and no part of any document.
std::uint64_t documentEnd(const ByteSource& source);

} // namespace engine
