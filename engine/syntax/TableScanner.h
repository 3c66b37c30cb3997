#pragma once

#include "engine/files/ByteSource.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace engine {

/// Whether these are the 20 bytes of an entry as ISO 32000 has it: offset, generation, kind, line end.
bool isUsualTableEntry(std::string_view text);

/// Walks over a cross-reference table without keeping its entries. Entries need not be 20 bytes long: readers
/// take those of 19 too.
class TableScanner
{
public:
    struct Subsection
    {
        long long first;
        long long count;
    };

    /// `position` is the offset in the source behind the word that begins the table.
    TableScanner(const ByteSource& source, std::uint64_t position);

    /// Goes over the next subsection and all of its entries; nothing when the trailer's word was reached.
    /// \throws EngineError with CannotAppend at anything that is no table.
    std::optional<Subsection> nextSubsection();

    /// The offset in the source, once nextSubsection() has returned nothing.
    std::uint64_t behindTrailerKeyword() const { return m_chunkStart + m_next; }

private:
    long long skipUsualEntries(long long count);
    int peek();
    std::string_view word();
    long long number(std::string_view text) const;

    const ByteSource& m_source;
    std::string m_chunk;
    std::uint64_t m_chunkStart;
    std::size_t m_next = 0;
    std::string m_word;
};

} // namespace engine
