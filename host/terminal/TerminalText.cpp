#include "TerminalText.h"

#include "pdflibrary/FileNameCodec.h"

#include <QChar>

#include <algorithm>
#include <cstdio>

namespace host {

namespace {

const wchar_t firstInvalid = 0xdc80; // how engine::wideFromFileName spells the byte 0x80 outside UTF-8

bool isInvalidByte(wchar_t character)
{
    return character >= firstInvalid && character <= firstInvalid + 0x7f;
}

std::string escape(wchar_t character)
{
    if (character == '\n')
        return "\\n";
    if (character == '\t')
        return "\\t";
    const bool invalid = isInvalidByte(character);
    const auto number = static_cast<unsigned>(invalid ? character - firstInvalid + 0x80 : character);
    const char* const form = number < 0x80 || invalid ? "\\x%02x" : number > 0xffff ? "\\U%08x" : "\\u%04x";
    char text[16];
    std::snprintf(text, sizeof text, form, number);
    return text;
}

enum Keeps { Nothing, Lines, LinesAndBackslashes };

std::string printable(std::string_view bytes, Keeps keeps)
{
    std::string text;
    text.reserve(bytes.size());
    for (const wchar_t character : engine::wideFromFileName(bytes)) {
        if (character == '\\' && keeps != LinesAndBackslashes)
            text += "\\\\";
        else if (misleads(static_cast<char32_t>(character)) && (keeps == Nothing || character != '\n'))
            text += escape(character);
        else
            text += engine::fileNameFromWide(std::wstring_view(&character, 1));
    }
    return text;
}

} // namespace

bool misleads(char32_t character)
{
    switch (QChar::category(static_cast<uint>(character))) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

std::string forTerminal(std::string_view bytes)
{
    return printable(bytes, Nothing);
}

std::string forTerminalLines(std::string_view bytes)
{
    return printable(bytes, Lines);
}

std::string surelyForTerminal(std::string lines)
{
    const auto isPlain = [](char byte) { return byte == '\n' || (byte >= ' ' && byte <= '~'); };
    const bool allPlain = std::all_of(lines.begin(), lines.end(), isPlain);
    return allPlain ? lines : printable(lines, LinesAndBackslashes);
}

} // namespace host
