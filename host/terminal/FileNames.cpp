#include "FileNames.h"

#include "pdflibrary/FileNameCodec.h"

#include <algorithm>
#include <cstdio>

namespace host {

namespace {

const wchar_t firstInvalid = 0xdc80; // how engine::wideFromFileName spells the byte 0x80 outside UTF-8

bool isInvalidByte(wchar_t character)
{
    return character >= firstInvalid && character <= firstInvalid + 0x7f;
}

/// Characters that move, reorder or hide what stands around them.
bool misleads(wchar_t character)
{
    return character < 0x20 || (character >= 0x7f && character <= 0x9f) || character == 0x61c ||
           (character >= 0x200b && character <= 0x200f) || (character >= 0x2028 && character <= 0x202e) ||
           (character >= 0x2066 && character <= 0x2069) || character == 0xfeff;
}

std::string escape(wchar_t character)
{
    if (character == '\n')
        return "\\n";
    if (character == '\t')
        return "\\t";
    char text[16];
    const auto number =
        static_cast<unsigned>(isInvalidByte(character) ? character - firstInvalid + 0x80 : character);
    const bool byte = number < 0x80 || isInvalidByte(character);
    std::snprintf(text, sizeof text, byte ? "\\x%02x" : "\\u%04x", number);
    return text;
}

std::string printable(std::string_view bytes, bool keepLines)
{
    std::string text;
    text.reserve(bytes.size());
    for (const wchar_t character : engine::wideFromFileName(bytes)) {
        if (character == '\\')
            text += "\\\\";
        else if ((misleads(character) && !(keepLines && character == '\n')) || isInvalidByte(character))
            text += escape(character);
        else
            text += engine::fileNameFromWide(std::wstring_view(&character, 1));
    }
    return text;
}

} // namespace

std::wstring toLibraryPath(std::string_view bytes)
{
    std::wstring path;
    path.reserve(bytes.size());
    for (const char byte : bytes)
        path.push_back(static_cast<unsigned char>(byte));
    return path;
}

std::string forTerminal(std::string_view bytes)
{
    return printable(bytes, false);
}

std::string forTerminalLines(std::string_view bytes)
{
    return printable(bytes, true);
}

bool isUtf8(std::string_view bytes)
{
    const std::wstring text = engine::wideFromFileName(bytes);
    return std::none_of(text.begin(), text.end(), isInvalidByte);
}

std::string percentEncoded(std::string_view bytes)
{
    const std::string_view plain = "/-._~";
    std::string text;
    for (const char byte : bytes) {
        const bool alphanumeric =
            (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
        char escaped[4];
        std::snprintf(escaped, sizeof escaped, "%%%02X", static_cast<unsigned char>(byte));
        if (alphanumeric || plain.find(byte) != std::string_view::npos)
            text.push_back(byte);
        else
            text += escaped;
    }
    return text;
}

} // namespace host
