#pragma once

#include "ObjectPlace.h"
#include "StreamEntries.h"
#include "WorkBudget.h"
#include "engine/syntax/SectionReader.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace engine {

/// Looks up where objects lie in all sections of a well-formed cross-reference. Tables stay in the
/// file. Of a long section only what is looked at has to be well-formed. Encrypted and hybrid documents
/// are not accepted.
class ObjectIndex
{
public:
    /// \param file, budget must outlive the index.
    ObjectIndex(FileWindows& file, WorkBudget& budget) : m_file(file), m_budget(budget) {}

    /// Reads the newest section, which is at `offset`, and all before it. \returns false at the first oddity.
    bool read(std::int64_t offset);

    /// Free for an object that no section lists. \returns nothing when its entry is odd.
    std::optional<ObjectPlace> find(int number);

    /// Once read() has succeeded.
    const Section& newest() const { return m_sections.front().section; }

    /// The largest of all sections' sizes; none of them has an entry for this number or a higher one.
    int size() const { return m_size; }

private:
    /// A section with what its dictionary says.
    struct IndexSection
    {
        Section section;
        std::int64_t previous = -1;             // offset of the section before it
        std::unique_ptr<StreamEntries> entries; // of a stream
    };

    std::optional<IndexSection> readSection(std::int64_t offset);
    bool readEntries(IndexSection& section);
    bool readDictionary(IndexSection& section);
    bool isPossible(int number, const ObjectPlace& place) const;
    std::optional<ObjectPlace> tableEntry(const Section::Run& run, int number);

    FileWindows& m_file;
    WorkBudget& m_budget;
    std::vector<IndexSection> m_sections; // newest first
    std::set<std::int64_t> m_offsets;     // where they begin
    int m_size = 0;
};

} // namespace engine
