#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <cstddef>
#include <string>

namespace engine {

/// The data of a stream as it is stored in a file: encrypted where the document is, unless the stream is one
/// that is not.
/// \throws EngineError with CannotAppend when it would be encrypted by a filter of its own.
std::string storedStreamData(QPDF& pdf, QPDFObjectHandle stream);

/// A stream's dictionary for data of this length.
QPDFObjectHandle streamDictionary(QPDFObjectHandle stream, std::size_t length);

} // namespace engine
