#include "ViewTable.h"

#include "host/change/ViewValues.h"
#include "host/terminal/TerminalText.h"
#include "host/terminal/TextWidth.h"
#include "host/view/OpeningView.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

struct Column
{
    const char* title;
    std::size_t width;
};

// Wide enough for every word that an entry has; long page numbers and percentages may be cut.
const std::array<Column, 5> columns{{{"PANEL", 11}, {"LAYOUT", 16}, {"PAGE", 5}, {"ZOOM", 11}, {"TITLE", 5}}};

const std::size_t leastForName = 8;

/// The shortest of an entry's words.
std::string wordOf(const OpeningView& view, ViewEntry entry)
{
    const ViewValue value = view[entry];
    if (std::holds_alternative<Unset>(value))
        return "-";
    const int* number = std::get_if<int>(&value);
    const viewentries::Name* name =
        number != nullptr ? viewvalues::nameOf(viewentries::describe(entry).names, *number) : nullptr;
    return name != nullptr && name->alias != nullptr ? name->alias : viewvalues::wordOf(entry, value);
}

std::string padded(const std::string& text, std::size_t width)
{
    return text + std::string(width - std::min(width, textwidth::of(text)), ' ');
}

} // namespace

std::string ViewTable::header() const
{
    std::array<std::string, columns.size()> titles;
    std::transform(columns.begin(), columns.end(), titles.begin(),
                   [](const Column& column) { return column.title; });
    return line(titles, "FILE");
}

std::string ViewTable::row(const std::string& file, const OpeningView& view) const
{
    const std::string action = view.otherAction();
    return line(std::array{wordOf(view, ViewEntry::PageMode), wordOf(view, ViewEntry::PageLayout),
                           wordOf(view, ViewEntry::OpenPage),
                           action.empty() ? wordOf(view, ViewEntry::Zoom) : forTerminal(action),
                           wordOf(view, ViewEntry::DisplayDocTitle)},
                forTerminal(file));
}

template <class Cells>
std::string ViewTable::line(const Cells& cells, const std::string& file) const
{
    std::string text;
    for (std::size_t index = 0; index < columns.size(); ++index) {
        const std::size_t width = columns.at(index).width;
        const std::string& cell = cells.at(index);
        text += padded(m_width > 0 ? textwidth::cutEnd(cell, width) : cell, width) + " ";
    }
    if (m_width == 0)
        return text + file + "\n";
    if (m_width <= leastForName)
        return textwidth::cutBegin(file, m_width) + "\n";
    const std::size_t taken = textwidth::of(text);
    if (m_width < taken + leastForName)
        return textwidth::cutEnd(text, m_width - leastForName - 1) + " " +
               textwidth::cutBegin(file, leastForName) + "\n";
    return text + textwidth::cutBegin(file, m_width - taken) + "\n";
}

} // namespace host
