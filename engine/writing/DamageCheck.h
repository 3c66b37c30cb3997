#pragma once

#include "engine/update/CrossReference.h"

namespace engine {

class Document;

/// Damage because of which it is doubtful what a document holds.
///
/// A document whose cross-reference is damaged is read by searching the file for objects, which libqpdf does
/// without saying what it passed over: newer trailers, object streams, objects that are cut off. Other
/// readers search in other ways. Only where nothing of that is in the file do all of them find the same.

/// What the next revision of a document with a damaged cross-reference builds upon. All of the document is
/// read, so handles from before are stale.
/// \throws EngineError with NewestRevisionUncertain, ObjectStreamsUnread, EncryptionUncertain, ObjectsDamaged
/// or ObjectsUncertain when there is a doubt, with StreamLengthsWrong when only a document written anew would
/// show the same, and with CannotAppend for a document that libqpdf could read without a search.
CrossReference foundCrossReference(Document& document);

/// Throws EngineError with ObjectsDamaged when a changed object, or the trailer, could not be read as it
/// stands: written with the change, it would be another one.
void requireChangesWhole(Document& document);

/// Throws EngineError with one of the doubts above, or with ByteRangesPresent, when a document may not be
/// written anew. All of it is read, so handles from before are stale.
void requireRewritable(Document& document);

} // namespace engine
