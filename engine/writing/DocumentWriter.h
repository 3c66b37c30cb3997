#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace engine {

class Document;

/// The document's changes as an incremental update. Where the cross-reference is damaged, but it is beyond
/// doubt what the document holds, the update lists all objects, and handles from before are stale.
/// \param begin where it will lie; nothing for the end of the document's bytes.
/// \throws EngineError with NothingChanged, or a code for which cannotAppend() is true.
std::string updateOf(Document& document, std::optional<std::uint64_t> begin = std::nullopt);

/// Writes a complete new file: the document's original bytes, untouched, and behind them its update. What was
/// at `path` is replaced in one step, or left alone when anything fails; it may be the document's own file.
/// \throws EngineError with the codes of updateOf(), SourceChanged, or those of OutputFile.
void appendUpdate(Document& document, const std::string& path);

/// Writes all of the document anew: encryption, object streams, version, first identifier and information as
/// they were, streams not compressed again. A linearized document becomes a plain one. All of it is read into
/// the document first, so handles from before are stale. What was at `path` is replaced in one step, or left
/// alone when anything fails; it may be the document's own file. Nothing is written when that could lose what
/// is in the document: when it is in doubt what that is, or when the file, read again, has other content.
/// \throws EngineError with the codes of DamageCheck.h and DocumentComparison.h, SourceChanged, or those of
///     OutputFile; QPDFExc as libqpdf reports damage.
void writeWhole(Document& document, const std::string& path);

/// The same into memory.
std::string wholeToString(Document& document);

} // namespace engine
