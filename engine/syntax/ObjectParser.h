#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <string_view>

namespace engine {

/// Makes libqpdf's object of a text several times as fast as libqpdf, which reads every text byte by byte
/// through an input source. Whatever is the least unusual is left to libqpdf, which may throw
/// std::runtime_error and leave warnings in `pdf`.
/// \param text one object without comments, as SyntaxScanner accepts it; references lead into `pdf`.
QPDFObjectHandle parseObject(QPDF& pdf, std::string_view text);

} // namespace engine
