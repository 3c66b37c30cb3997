#pragma once

#include "pdflibrary/FileNameCodec.h"

#include <string>
#include <string_view>

namespace engine {

/// Text of a document for the library's caller.
/// \param text UTF-8; any bytes are taken.
/// \returns one wide character for each of the text's; U+FFFD for each byte that is not valid UTF-8. File
///     names cross by wideFromFileName instead, which keeps such bytes.
inline std::wstring wideFromUtf8(std::string_view text)
{
    std::wstring wide = wideFromFileName(text);
    for (wchar_t& character : wide)
        if (character >= 0xd800 && character <= 0xdfff)
            character = 0xfffd;
    return wide;
}

} // namespace engine
