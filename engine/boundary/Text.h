#pragma once

#include "pdflibrary/FileNameCodec.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <algorithm>
#include <string>
#include <string_view>

namespace engine {

/// A lone surrogate, which no text contains and the names of files use for bytes.
inline bool isSurrogate(wchar_t character)
{
    return character >= 0xd800 && character <= 0xdfff;
}

/// Text of a document for the library's caller.
/// \param text UTF-8; any bytes are taken.
/// \returns one wide character for each of the text's; U+FFFD for each byte that is not valid UTF-8. File
///     names cross by wideFromFileName instead, which keeps such bytes.
inline std::wstring wideFromUtf8(std::string_view text)
{
    std::wstring wide = wideFromFileName(text);
    std::replace_if(wide.begin(), wide.end(), isSurrogate, wchar_t(0xfffd));
    return wide;
}

/// Text from the library's caller, for QPDFObjectHandle::newUnicodeString(); what is no character becomes
/// U+FFFD. The name of a file is no text: fileNameFromWide() is for that.
inline std::string utf8FromWide(std::wstring_view text)
{
    std::wstring wide(text);
    std::replace_if(wide.begin(), wide.end(), isSurrogate, wchar_t(0xfffd));
    return fileNameFromWide(wide);
}

/// Whether an entry says this text already; an empty one is said by no entry at all.
inline bool saysText(QPDFObjectHandle entry, const std::string& text)
{
    return text.empty() ? entry.isNull() : entry.isString() && entry.getUTF8Value() == text;
}

/// What an entry becomes that is to say this text; null, which removes it, for an empty one.
inline QPDFObjectHandle entryForText(const std::string& text)
{
    return text.empty() ? QPDFObjectHandle::newNull() : QPDFObjectHandle::newUnicodeString(text);
}

} // namespace engine
