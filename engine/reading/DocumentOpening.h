#pragma once

#include "pdflibrary/ErrorCodes.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>

#include <memory>
#include <string>
#include <string_view>

namespace engine {

class ByteSource;

/// What a libqpdf failure is called at the library's boundary.
ErrorCode errorCodeOf(const QPDFExc& error);

/// Whether memory was short for what a warning is about: libqpdf goes on with null in its place.
bool tellsOfShortMemory(const QPDFExc& warning);

/// Lets libqpdf read a document's cross-reference and catalog.
/// \param fileName appears in libqpdf's messages.
/// \param password UTF-8; tried as it is, in the encodings that old revisions used, and last of all empty.
/// \throws EngineError with NotAPdf, Damaged, WrongPassword, UnsupportedEncryption, OutOfMemory, ReadFailed,
///     SourceChanged or Internal.
std::shared_ptr<QPDF> openWhole(const std::shared_ptr<ByteSource>& source, const std::string& fileName,
                                std::string_view password);

} // namespace engine
