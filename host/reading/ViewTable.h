#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace host {

class OpeningView;

/// How documents open, a row each in the words of the command line. The columns have fixed widths, so
/// that rows can be printed as they come; the file's name stands last and is cut at its beginning. Where
/// there is no room for it, columns are left out.
class ViewTable
{
public:
    /// \param width of a row in columns, 0 for rows that are not cut.
    explicit ViewTable(std::size_t width);

    /// Rows with their line feeds, safe to print.
    std::string header() const;
    std::string row(const std::string& file, const OpeningView& view) const;

    /// The titles of the columns for which there is no room, those that matter least.
    std::vector<std::string> leftOut() const;

private:
    struct Column
    {
        const char* title;
        std::size_t width;
        std::string (*cell)(const OpeningView&);
        bool isShown = true;
    };

    std::size_t widthOfShown() const;
    std::string line(const std::vector<std::string>& cells, const std::string& file) const;

    std::size_t m_width;
    std::vector<Column> m_columns;
};

} // namespace host
