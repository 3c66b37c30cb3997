#pragma once

#include <string>
#include <string_view>

/// File names are bytes. These functions turn them, and texts that hold them, into what other parts take.
namespace host {

/// As the binding takes the path of the library file: each byte is one character.
std::wstring toLibraryPath(std::string_view bytes);

/// Safe to print: control characters, characters that reorder or hide text, and bytes that are not UTF-8
/// appear as escapes (\n, \x1b, \u202e); a backslash is doubled. No escape sequence reaches the terminal.
std::string forTerminal(std::string_view bytes);

/// The same, except that line feeds stay.
std::string forTerminalLines(std::string_view bytes);

bool isUtf8(std::string_view bytes);

/// Every byte but ASCII letters, digits and "/-._~" as %XX.
std::string percentEncoded(std::string_view bytes);

} // namespace host
