#pragma once

#include "OptionTable.h"

#include <string>

/// Help texts, for a terminal of 80 columns.
namespace host::helptext {

/// Three examples, and the most common options: what fits a screen of 24 lines.
std::string brief(const options::Command& command);

/// Every option of a command, and what its values are.
std::string whole(const options::Command& command);

/// Of the program: its commands.
std::string program();

/// The text in lines of at most this many columns, all but the first indented. Words are never broken.
std::string wrapped(const std::string& text, std::size_t width, std::size_t indent);

} // namespace host::helptext
