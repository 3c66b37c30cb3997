#include "ViewTable.h"

#include "host/change/ViewValues.h"
#include "host/terminal/TerminalText.h"
#include "host/terminal/TextWidth.h"
#include "host/view/OpeningView.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

const std::size_t leastForName = 20;

/// The shortest of an entry's words.
std::string wordOf(const OpeningView& view, ViewEntry entry)
{
    const ViewValue value = view[entry];
    if (std::holds_alternative<Unset>(value))
        return "-";
    const int* number = std::get_if<int>(&value);
    const viewentries::Name* name =
        number != nullptr ? viewvalues::nameOf(viewentries::describe(entry).names, *number) : nullptr;
    return name != nullptr && name->alias != nullptr ? name->alias : viewvalues::told(entry, value);
}

template <ViewEntry entry>
std::string cellOf(const OpeningView& view)
{
    return wordOf(view, entry);
}

std::string pageCell(const OpeningView& view)
{
    return view.otherAction().empty() ? wordOf(view, ViewEntry::OpenPage) : "-";
}

/// Of an action that shows no page its type, of a rectangle not the numbers.
std::string zoomCell(const OpeningView& view)
{
    const std::string action = view.otherAction();
    const std::string word = wordOf(view, ViewEntry::Zoom);
    return action.empty() ? word.substr(0, word.find(' ')) : forTerminal(action);
}

/// The places of the columns, what matters least first.
const std::array<std::size_t, 5> expendable{4, 1, 3, 2, 0};

std::string padded(const std::string& text, std::size_t width)
{
    return text + std::string(width - std::min(width, textwidth::of(text)), ' ');
}

} // namespace

// Wide enough for every word that an entry has; long page numbers and percentages may be cut.
ViewTable::ViewTable(std::size_t width)
    : m_width(width), m_columns{{"PANEL", 11, cellOf<ViewEntry::PageMode>},
                                {"LAYOUT", 16, cellOf<ViewEntry::PageLayout>},
                                {"PAGE", 5, pageCell},
                                {"ZOOM", 14, zoomCell},
                                {"TITLE", 7, cellOf<ViewEntry::DisplayDocTitle>}}
{
    for (const std::size_t place : expendable)
        if (m_width > 0 && m_width < widthOfShown() + leastForName)
            m_columns[place].isShown = false;
}

std::size_t ViewTable::widthOfShown() const
{
    std::size_t width = 0;
    for (const Column& column : m_columns)
        width += column.isShown ? column.width + 1 : 0;
    return width;
}

std::vector<std::string> ViewTable::leftOut() const
{
    std::vector<std::string> titles;
    for (const Column& column : m_columns)
        if (!column.isShown)
            titles.emplace_back(column.title);
    return titles;
}

std::string ViewTable::header() const
{
    std::vector<std::string> titles;
    for (const Column& column : m_columns)
        titles.emplace_back(column.title);
    return line(titles, "FILE");
}

std::string ViewTable::row(const std::string& file, const OpeningView& view) const
{
    std::vector<std::string> cells;
    for (const Column& column : m_columns)
        cells.push_back(column.cell(view));
    return line(cells, forTerminal(file));
}

std::string ViewTable::line(const std::vector<std::string>& cells, const std::string& file) const
{
    std::string text;
    for (std::size_t index = 0; index < m_columns.size(); ++index) {
        const Column& column = m_columns[index];
        const std::string& cell = cells[index];
        if (column.isShown)
            text += padded(m_width > 0 ? textwidth::cutEnd(cell, column.width) : cell, column.width) + " ";
    }
    const std::size_t taken = textwidth::of(text);
    if (m_width == 0)
        return text + file + "\n";
    return text + textwidth::cutBegin(file, m_width - taken) + "\n";
}

} // namespace host
