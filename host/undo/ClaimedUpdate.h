#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace host {

/// A stretch of a document that a report calls an update. Who has changed the report may know all that a
/// report tells of a document, so the stretch itself has to be what a run appends.
class ClaimedUpdate
{
public:
    /// \param file lent as long as the object lives. \param begin \param end offsets of bytes.
    ClaimedUpdate(int file, std::int64_t begin, std::int64_t end) : m_file(file), m_begin(begin), m_end(end)
    {}

    /// Whether it ends as updates of runs do, and its own cross-reference stands in it, which leads to that
    /// of the document before it, or replaces a damaged one. False as well when it cannot be read.
    bool isOne() const;

    /// Empty when they cannot be read.
    static std::string bytesOf(int file, std::int64_t begin, std::int64_t end);

private:
    std::optional<std::int64_t> section() const;
    bool leadsTo(std::int64_t offset, const std::string& section) const;
    bool replacesTrailer() const;
    std::int64_t lastBefore(const std::string& word) const;

    int m_file;
    std::int64_t m_begin;
    std::int64_t m_end;
};

} // namespace host
