#pragma once

#include "ObjectIndex.h"
#include "ObjectStreamCache.h"
#include "WorkBudget.h"
#include "engine/files/ByteSource.h"
#include "engine/files/FileWindows.h"
#include "engine/syntax/ObjectReader.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

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
    static std::unique_ptr<DirectReader> open(std::shared_ptr<const ByteSource> source);
    DirectReader(const DirectReader&) = delete;
    DirectReader& operator=(const DirectReader&) = delete;

    /// The text of an object's value, good until the next call of any function; "null" for an object that is
    /// free or that no section lists. \returns nothing when the reader has to give up, also for a stream.
    std::optional<std::string_view> object(int number, int generation);

    /// What a further revision builds upon.
    const Section& newestSection() const { return m_index.newest(); }
    /// The largest of all sections' sizes; none of them has an entry for this number or a higher one.
    int size() const { return m_index.size(); }

    /// A small PDF with this one's trailer, an empty catalog, and an empty object in the place of the last
    /// one. Its other objects are missing: whoever works on it puts in what object() gives. \returns nothing
    /// when the reader has to give up.
    std::optional<std::string> skeleton();

private:
    using Reference = SyntaxScanner::Reference;

    explicit DirectReader(std::shared_ptr<const ByteSource> source);

    std::optional<std::int64_t> lastStartXref();
    std::optional<std::string_view> textAt(const ObjectPlace& place, int number, int generation);
    std::optional<Reference> usableCatalog();
    const std::string& trailer() const { return newestSection().dictionary; }
    std::string skeletonTrailer() const;

    FileWindows m_file;
    ObjectReader m_objects;
    WorkBudget m_budget;
    ObjectIndex m_index;
    ObjectStreamCache m_streams;
};

} // namespace engine
