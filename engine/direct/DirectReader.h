#pragma once

#include "engine/files/ByteSource.h"
#include "engine/syntax/SyntaxScanner.h"

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

/// Reads single objects of a well-formed PDF without reading the rest of it.
///
/// It looks entries up in the file's cross-reference sections where they lie, so the cost follows what is
/// asked for, not the size of the document. It accepts strict files only: at the first thing that is not
/// exactly as it should be it gives up, and the document is for a reader that repairs. Encrypted and hybrid
/// files are not accepted.
class DirectReader
{
public:
    /// \returns null when the document is not one for this reader.
    static std::unique_ptr<DirectReader> open(std::shared_ptr<ByteSource> source);

    /// The text of an object's value, good until the next call of any function; "null" for an object that is
    /// free or that no section lists. \returns nothing when the reader has to give up, also for a stream.
    std::optional<std::string_view> object(int number, int generation);

    /// The newest section's trailer dictionary, as text.
    const std::string& trailer() const { return m_sections.front().dictionary; }

    /// What a further revision builds upon.
    bool newestIsStream() const { return m_sections.front().isStream; }
    std::int64_t newestOffset() const { return m_sections.front().offset; }
    /// The largest of all sections' sizes; none of them has an entry for this number or a higher one.
    int size() const { return m_size; }

    /// A small PDF with this one's trailer, an empty catalog, and an empty object in the place of the last
    /// one. Its other objects are missing: whoever works on it puts in what object() gives. \returns nothing
    /// when the reader has to give up.
    std::optional<std::string> skeleton();

private:
    /// A run of consecutive object numbers in a section.
    struct Run
    {
        int first;
        int count;
        std::int64_t offset; // in the file for a table, in `entries` for a stream
    };

    struct Section
    {
        std::int64_t offset = 0;
        std::int64_t previous = -1;
        bool isStream = false;
        int number = -1; // of the stream
        std::string dictionary;
        std::vector<Run> runs;          // in the order of their numbers
        std::string entries;            // decoded, of a stream
        std::array<int, 3> widths = {}; // of a stream's fields
    };

    enum class EntryKind { Free, Plain, Compressed };

    struct Entry
    {
        EntryKind kind;
        std::int64_t position; // offset, or number of the object stream
        int detail;            // generation, or index in the object stream
    };

    /// A stretch of the file that was read lately.
    struct Window
    {
        std::int64_t offset = 0;
        std::size_t size = 0;
        std::size_t capacity = 0;
        std::unique_ptr<char[]> bytes; // filling a string with zeros first would cost more than reading

        std::string_view text() const { return {bytes.get(), size}; }
    };

    /// An object stream, decoded as far as it was needed.
    struct Container
    {
        std::string data;
        std::size_t bodies = 0; // where the objects begin in it
        bool complete = false;
        std::vector<std::pair<int, std::size_t>> objects; // number, start in data

        std::size_t endOf(std::size_t start) const;
        std::size_t size() const { return data.size() + objects.size() * sizeof objects[0]; }
    };

    explicit DirectReader(std::shared_ptr<ByteSource> source) : m_source(std::move(source)) {}

    using Reference = SyntaxScanner::Reference;

    /// Up to `count` bytes, fewer only at the end. Good until the next few calls.
    std::string_view bytes(std::int64_t offset, std::size_t count);
    std::string skeletonTrailer() const;
    std::optional<std::int64_t> lastStartXref();
    bool readSections(std::int64_t offset);
    std::optional<Section> readSection(std::int64_t offset);
    std::optional<Section> readTable(std::int64_t offset);
    bool hasGoodEntries(const Run& run);
    bool hasGoodEntries(const Section& section) const;
    std::optional<Section> readStream(std::int64_t offset);
    bool complete(Section& section);

    std::optional<Entry> find(int number);
    std::optional<Entry> tableEntry(const Run& run, int number);
    std::optional<Entry> streamEntry(const Section& section, const Run& run, int number) const;

    std::optional<std::string_view> valueAt(std::int64_t offset, int number, int generation,
                                            std::int64_t* streamData);
    std::optional<std::string_view> streamAt(std::int64_t offset, int number, std::string& dictionary,
                                             DictionaryEntries& entries);
    bool allows(std::size_t effort);
    std::optional<std::string_view> compressed(int container, int index, int number);
    const Container* containerOf(int number, std::size_t size);
    static bool readHeader(std::string_view data, std::int64_t count, Container& container);

    std::shared_ptr<ByteSource> m_source;
    std::array<Window, 4> m_windows;
    std::size_t m_oldestWindow = 0;
    std::size_t m_readAhead = 0;     // how much was read last
    std::int64_t m_lastRead = -1;    // where that ended
    std::vector<Section> m_sections; // newest first
    int m_size = 0;
    std::map<int, Container> m_containers;
    std::size_t m_containerBytes = 0;
    std::size_t m_expected = 2048; // how much of an object stream will be needed: as much as of the last one
    std::uint64_t m_effort = 0;    // in bytes decoded and handed out
};

} // namespace engine
