#pragma once

#include "pdflibrary/FileNameCodec.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <string>
#include <string_view>

/// Text on its way between documents and the library's caller. Inside it is UTF-8, outside one wide character
/// for each of its characters, 32 bits wide. Nothing is refused: what is no character on one side becomes
/// U+FFFD on the other. Any thread; std::bad_alloc is all that is thrown.
namespace engine {

/// A lone surrogate, which no text contains and the names of files use for bytes.
/// \param character any number.
inline bool isSurrogate(wchar_t character)
{
    return character >= 0xd800 && character <= 0xdfff;
}

/// Text of a document for the library's caller.
/// \param text UTF-8, as QPDFObjectHandle::getUTF8Value() gives it; any bytes are taken.
/// \returns one wide character for each of the text's; U+FFFD for each byte that is not valid UTF-8. File
///     names cross by wideFromFileName instead, which keeps such bytes.
inline std::wstring wideFromUtf8(std::string_view text)
{
    std::wstring wide = wideFromFileName(text);
    std::replace_if(wide.begin(), wide.end(), isSurrogate, wchar_t(0xfffd));
    return wide;
}

/// Text from the library's caller, for QPDFObjectHandle::newUnicodeString().
/// \param text as an operation gets it; a lone surrogate or a number beyond Unicode is no character.
/// \returns valid UTF-8. The name of a file is no text: fileNameFromWide() is for that.
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
