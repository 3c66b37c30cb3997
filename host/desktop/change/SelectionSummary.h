#pragma once

#include "host/desktop/documents/DocumentTable.h"

#include <array>
#include <map>

namespace host::desktop {

/// What many documents have in common, an entry at a time, and what a change has to reckon with.
struct SelectionSummary
{
    struct Entry
    {
        enum class Kind { Nothing, Same, Different };

        Kind kind = Kind::Nothing;
        /// How many documents have which value, in the user's words.
        std::map<QString, int> counts;
        /// Of Same.
        QString value;
    };

    int documents = 0;
    /// Those that are read.
    int known = 0;
    int shortest = 0;
    int longest = 0;
    int withoutBookmarks = 0;
    int withoutTitle = 0;
    int encrypted = 0;
    /// Those that a run leaves as they are for their signatures: they are not told to be appended to.
    int signedDocuments = 0;
    std::array<Entry, viewEntryCount> entries;

    static SelectionSummary of(const DocumentTable& table, const DocumentTable::Ids& ids);

    const Entry& operator[](ViewEntry entry) const { return entries.at(static_cast<std::size_t>(entry)); }
    /// "None", "different: None (40), Bookmarks (6)", or nothing.
    QString textOf(ViewEntry entry) const;
};

} // namespace host::desktop
