#pragma once

#include "WorkBudget.h"
#include "engine/syntax/SectionReader.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace engine {

/// Where an object of a document lies.
struct ObjectPlace
{
    enum class Kind { Free, Plain, Compressed };

    Kind kind = Kind::Free;
    std::int64_t position = 0; ///< Offset in the file, or number of the object stream.
    int detail = 0;            ///< Generation, or index in the object stream.
};

/// Looks up where objects lie in all sections of a well-formed cross-reference. Tables stay in the file.
/// Encrypted and hybrid documents are not accepted.
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
    /// A section with what its dictionary says, and the content of its stream.
    struct IndexSection
    {
        Section section;
        std::int64_t previous = -1; // offset of the section before it
        std::string entries;        // decoded, of a stream: the runs' offsets lead into it
        std::array<int, 3> widths = {};

        int entryWidth() const { return widths[0] + widths[1] + widths[2]; }
    };

    std::optional<IndexSection> readSection(std::int64_t offset);
    bool readDictionary(IndexSection& section);
    bool decode(IndexSection& section);
    static bool readWidths(IndexSection& section, std::string_view widths);
    static bool readRuns(IndexSection& section, const DictionaryEntries& entries);
    static bool hasGoodEntries(const IndexSection& section);
    bool streamsHaveTheirNumbers(const std::set<std::int64_t>& offsets);

    std::optional<ObjectPlace> tableEntry(const Section::Run& run, int number);
    static std::optional<ObjectPlace> streamEntry(const IndexSection& section, const Section::Run& run,
                                                  int number);

    FileWindows& m_file;
    WorkBudget& m_budget;
    std::vector<IndexSection> m_sections; // newest first
    int m_size = 0;
};

} // namespace engine
