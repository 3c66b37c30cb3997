#pragma once

#include <cstddef>
#include <string>

/// The words in which the program tells about views and settings.
namespace host::viewwords {

/// An indented line: a label, and what it says.
std::string line(const std::string& label, const std::string& text);

const char* yesOrNo(bool answer);

/// The label in a row of a table, or `otherwise` where it has none.
template <class Table>
const char* labelAt(const Table& table, int row, const char* otherwise)
{
    return row >= 0 && row < static_cast<int>(table.size()) ? table[static_cast<std::size_t>(row)]
                                                            : otherwise;
}

} // namespace host::viewwords
