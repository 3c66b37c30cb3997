#pragma once

#include "Columns.h"
#include "host/desktop/documents/DocumentRecord.h"

/// What the cells of the list say.
namespace host::desktop {

struct CellText
{
    QString now;
    /// What it becomes, or became; empty where nothing differs.
    QString after;
    /// Nothing is set there: told, but not to be looked at.
    bool isQuiet = false;
    bool operator==(const CellText&) const = default;
};

namespace rowtexts {

CellText cell(const DocumentRecord& record, Column column);

/// The cell as a screen reader says it: "None, will be Bookmarks".
QString spoken(const DocumentRecord& record, Column column);

/// The state in a word or two: "will change".
QString stateOf(const DocumentRecord& record);

/// The state's sign, for the eye alone: a pen, a tick, a cross.
QString signOf(DocumentRecord::State state);

/// Why it cannot be, or what is to be noted; empty where there is nothing.
QString reasonOf(const DocumentRecord& record);

/// Every difference with its name: "Panel: None → Bookmarks".
QString differences(const Outcome& outcome);

} // namespace rowtexts

} // namespace host::desktop
