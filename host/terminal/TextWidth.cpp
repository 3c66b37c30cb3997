#include "TextWidth.h"

#include "pdflibrary/FileNameCodec.h"

#include <sys/ioctl.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <cwchar>

namespace host::textwidth {

namespace {

const wchar_t ellipsis = L'\u2026';

std::size_t columnsOf(wchar_t character)
{
    return static_cast<std::size_t>(std::max(wcwidth(character), character < 0x300 ? 1 : 0));
}

std::size_t columnsOf(const std::wstring& text)
{
    std::size_t columns = 0;
    for (const wchar_t character : text)
        columns += columnsOf(character);
    return columns;
}

} // namespace

std::size_t of(const std::string& text)
{
    return columnsOf(engine::wideFromFileName(text));
}

std::string cutEnd(const std::string& text, std::size_t width)
{
    std::wstring wide = engine::wideFromFileName(text);
    std::size_t columns = columnsOf(wide);
    if (columns <= width)
        return text;
    for (; !wide.empty() && columns + 1 > width; wide.pop_back())
        columns -= columnsOf(wide.back());
    return engine::fileNameFromWide(width > 0 ? wide + ellipsis : wide);
}

std::string cutBegin(const std::string& text, std::size_t width)
{
    const std::wstring wide = engine::wideFromFileName(text);
    std::size_t columns = columnsOf(wide);
    if (columns <= width)
        return text;
    std::size_t begin = 0;
    for (; begin < wide.size() && columns + 1 > width; ++begin)
        columns -= columnsOf(wide[begin]);
    return engine::fileNameFromWide((width > 0 ? std::wstring(1, ellipsis) : L"") + wide.substr(begin));
}

std::size_t ofTerminal(int descriptor)
{
    winsize size{};
    if (ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return size.ws_col;
    std::size_t columns = 0;
    if (const char* text = std::getenv("COLUMNS"); text != nullptr)
        std::from_chars(text, text + std::strlen(text), columns);
    return columns;
}

} // namespace host::textwidth
