#pragma once

#include <string>

/// The chapter of docs/usage.md about the options.
namespace host::usagechapter {

/// The lines between which the chapter stands.
inline constexpr char begin[] = "<!-- Written by quintar-docs from the table of options. -->\n";
inline constexpr char end[] = "<!-- The end of what quintar-docs writes. -->\n";

/// The chapter in Markdown, without those lines.
std::string text();

/// A document with its chapter as it is to be. Throws std::runtime_error when the two lines are not there.
std::string inserted(const std::string& document);

} // namespace host::usagechapter
