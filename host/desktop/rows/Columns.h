#pragma once

#include "host/change/ViewEntries.h"

#include <QString>

#include <span>

/// The columns of the list of documents. One row each drives header, menu, memory and sorting.
namespace host::desktop {

enum class Column {
    Name,
    Folder,
    Title,
    Pages,
    Bookmarks,
    Panel,
    Layout,
    Page,
    Zoom,
    TitleBar,
    Window,
    Signed,
    Certified,
    Encrypted,
    State
};

inline constexpr int columnCount = 15;

struct ColumnRow
{
    Column column;
    /// By which it is remembered; never translated.
    const char* id;
    const char* title;
    const char* help;
    /// In characters of average width.
    int width;
    bool isNumber;
    bool isShownAtFirst;
    /// The entries of the view that it tells; empty for the others.
    std::span<const ViewEntry> entries;
};

namespace columns {

const ColumnRow& describe(Column column);
inline const ColumnRow& describe(int column)
{
    return describe(static_cast<Column>(column));
}

QString titleOf(Column column);
QString helpOf(Column column);

} // namespace columns

} // namespace host::desktop
