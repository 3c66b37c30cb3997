#pragma once

#include "engine/files/FileWindows.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace engine {

/// Size in bytes of a table's entry as ISO 32000 has it.
inline constexpr std::int64_t tableEntrySize = 20;

/// Whether these are the 20 bytes of an entry as ISO 32000 has it: offset, generation, kind, line end.
bool isUsualTableEntry(std::string_view text);

/// Walks over a cross-reference table without keeping its entries. Entries need not be 20 bytes long: readers
/// take those of 19 too.
class TableScanner
{
public:
    struct Subsection
    {
        long long first;      ///< Number of its first object.
        long long count;      ///< Of entries.
        std::int64_t entries; ///< Offset of the first one.
        bool usual;           ///< Every entry that was looked at has the usual 20 bytes.
    };

    /// \param position offset behind the word that begins the table.
    /// \param usualOnly ends the walk at the first subsection with other entries. Of a long one only those at
    ///     both its ends are looked at.
    TableScanner(FileWindows& file, std::int64_t position, bool usualOnly = false);

    /// Goes over the next subsection and all of its entries; nothing when the trailer's word was reached, or
    /// at anything that is no table.
    std::optional<Subsection> nextSubsection();

    /// True once something was found that is no table.
    bool damaged() const { return m_damaged; }

    /// The offset behind the trailer's word, once nextSubsection() has returned nothing.
    std::int64_t behindTrailerKeyword() const { return m_position; }

private:
    long long skipLikelyEntries(long long count);
    long long skipUsualEntries(long long count);
    bool skipEntry();
    void skipSpace();
    std::string_view word();
    std::optional<long long> number();
    std::nullopt_t fail();

    FileWindows& m_file;
    std::int64_t m_position;
    bool m_usualOnly;
    bool m_isBehindFirst = false; // of the subsections
    bool m_damaged = false;
};

} // namespace engine
