#pragma once

#include <string>

namespace engine {

class Document;

/// Writes a complete new file: the document's original bytes, untouched, and behind them its changes as an
/// incremental update. What was at `path` is replaced in one step, or left alone when anything fails; it may
/// be the document's own file.
/// \throws EngineError with NothingChanged, CannotAppend (the document can still be written whole),
///     SourceChanged, or the codes of OutputFile.
void appendUpdate(Document& document, const std::string& path);

/// Writes all of the document anew: encryption, object streams, version, first identifier and information as
/// they were, streams not compressed again. A linearized document becomes a plain one. All of it is read into
/// the document first, so handles from before are stale. What was at `path` is replaced in one step, or left
/// alone when anything fails; it may be the document's own file.
/// \throws EngineError with SourceChanged or the codes of OutputFile; QPDFExc as libqpdf reports damage.
void writeWhole(Document& document, const std::string& path);

/// The same into memory.
std::string wholeToString(Document& document);

} // namespace engine
