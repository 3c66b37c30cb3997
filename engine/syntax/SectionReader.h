#pragma once

#include "ObjectReader.h"
#include "engine/files/FileWindows.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

/// The largest /Size that is believed: readers have given up long before, and adding to a number above it
/// could overflow.
inline constexpr std::int64_t largestSize = 0x7ffffff0;

/// Readers need not take larger object numbers, and some do not. A /Size that lies may be above.
inline constexpr int largestObjectNumber = 8'388'607;

/// Whether an entry of a trailer describes its own section; all others belong to the document.
/// \param key without its slash.
bool describesSection(std::string_view key);

/// A section of a document's cross-reference as it stands in the file: a table, or a stream that is not
/// decoded.
struct Section
{
    /// A run of consecutive object numbers.
    struct Run
    {
        int first;
        int count;
        std::int64_t offset; ///< Of its entries.
    };

    std::int64_t offset = 0; ///< Where it begins, behind white space.
    bool isStream = false;
    int number = -1;        ///< Of the stream object.
    std::string dictionary; ///< The trailer's, or the stream's.
    std::vector<Run> runs;  ///< Of a table, in the order in which they stand; none is empty.
};

/// Reads the sections of a document's cross-reference.
///
/// A strict reader gives up where a section is not exactly as ISO 32000 has it, and where a trailer is not
/// followed by the document's end. A tolerant one takes what repairing readers take: white space before the
/// section, entries of other lengths, and any dictionary that libqpdf can read.
class SectionReader
{
public:
    /// Finds where a dictionary ends that the strict rules do not take, from its offset; throws at what is
    /// none.
    using DictionaryEnd = std::function<std::int64_t(std::int64_t)>;

    explicit SectionReader(FileWindows& file) : m_file(file), m_objects(file) {}
    SectionReader(FileWindows& file, DictionaryEnd tolerant)
        : m_file(file), m_objects(file), m_tolerant(std::move(tolerant))
    {}

    /// \returns nothing when no section is there; why() says so then.
    std::optional<Section> read(std::int64_t offset);

    /// The reason of the last failure, for developers.
    const char* why() const { return m_why; }

private:
    bool readTable(Section& section);
    bool addRun(Section& section, long long first, long long count, std::int64_t offset);
    bool readStream(Section& section);
    std::optional<std::string_view> readDictionary(Section& section, std::int64_t offset);
    bool fail(const char* why);

    FileWindows& m_file;
    ObjectReader m_objects;
    DictionaryEnd m_tolerant; // null for a strict reader
    const char* m_why = "";
};

} // namespace engine
