#pragma once

#include <cstddef>
#include <string>

/// Texts in the columns of a terminal. They are UTF-8 and safe to print.
namespace host::textwidth {

/// How many columns the text takes.
std::size_t of(const std::string& text);

/// What fits into the columns; what is left out at its end or beginning shows as an ellipsis.
std::string cutEnd(const std::string& text, std::size_t width);
std::string cutBegin(const std::string& text, std::size_t width);

/// The columns of the terminal at a descriptor, else what COLUMNS says; 0 where there is neither.
std::size_t ofTerminal(int descriptor);

} // namespace host::textwidth
