#pragma once

#include <string>
#include <string_view>

/// What may be shown of texts that others chose: names of files, what documents and settings hold, reasons.
namespace host {

/// Whether a character controls, reorders or hides what stands around it, or has no look of its own:
/// Unicode's classes of control, format, surrogate, private use and unassigned characters, line and paragraph
/// separators.
bool misleads(char32_t character);

/// Safe to print in one line: characters that mislead, and bytes that are not UTF-8, appear as escapes (\n,
/// \x1b, \u202e, \U000e0041); a backslash is doubled. No escape sequence reaches the terminal.
std::string forTerminal(std::string_view bytes);

/// The same, except that line feeds stay.
std::string forTerminalLines(std::string_view bytes);

/// Lines that somebody else has made safe, and who may have failed to: what misleads is
/// escaped, the rest stays as it is, backslashes too.
std::string surelyForTerminal(std::string lines);

} // namespace host
