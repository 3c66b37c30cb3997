#pragma once

#include "pdflibrary/FileNameCodec.h"

#include <string>
#include <string_view>

namespace engine {

/// Text for the library's caller; what is not valid UTF-8 becomes U+FFFD.
inline std::wstring wideFromUtf8(std::string_view text)
{
    std::wstring wide = wideFromFileName(text);
    for (wchar_t& character : wide)
        if (character >= 0xd800 && character <= 0xdfff)
            character = 0xfffd;
    return wide;
}

} // namespace engine
