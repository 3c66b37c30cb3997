#pragma once

#include <string>

namespace engine {

class Document;

/// The document's update in a form that may be written behind the document where it lies, without a copy, in
/// two steps: all but its last lines, from its last "startxref" on, and, once that is on the disk, those. Up
/// to the second step readers pass over what is there, for they look for "startxref" in the last kilobyte and
/// find the document's own. The last lines lie within one sector of the disk, which is written whole or not
/// at all.
///
/// Where the document ends with the begin of this very update, which somebody was about to write when power
/// failed, what is missing of it is the update.
/// \throws EngineError with NotInPlace when readers could take notice of half an update: it is too long, the
/// document's end lies too far back, or the document is one that readers search for its objects; else what
/// updateOf() throws, and SourceChanged.
std::string inPlaceUpdateOf(Document& document);

} // namespace engine
