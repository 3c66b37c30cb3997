#pragma once

#include <cstddef>
#include <string>

namespace host {

class OpeningView;

/// How documents open, a row each in the words of the command line. The columns have fixed widths, so that rows can be
/// printed as they come; the file's name stands last and is cut at its beginning.
class ViewTable
{
public:
    /// \param width of a row in columns, 0 for rows that are not cut.
    explicit ViewTable(std::size_t width) : m_width(width) {}

    /// Rows with their line feeds, safe to print.
    std::string header() const;
    std::string row(const std::string& file, const OpeningView& view) const;

private:
    template <class Cells>
    std::string line(const Cells& cells, const std::string& file) const;

    std::size_t m_width;
};

} // namespace host
