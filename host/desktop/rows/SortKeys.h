#pragma once

#include "Columns.h"
#include "host/desktop/documents/DocumentTable.h"

/// How documents are put in order.
namespace host::desktop::SortKeys {

/// Sorts the ids by what the column tells of their documents; texts as people sort them, numbers within names
/// by their values. Those that are alike keep the order in which they were added.
void arrange(const DocumentTable& table, Column column, Qt::SortOrder order, DocumentTable::Ids& ids);

} // namespace host::desktop::SortKeys
