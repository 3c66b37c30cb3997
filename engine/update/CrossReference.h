#pragma once

#include "engine/files/ByteSource.h"
#include "engine/syntax/SectionReader.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <cstdint>
#include <map>
#include <memory>

namespace engine {

class FileScan;

/// What a further revision must know of a document's cross-reference: read from the bytes themselves, section
/// by section along the chain, and not from libqpdf, which repairs without saying how much.
class CrossReference
{
public:
    enum class Kind { Table, Stream };

    /// \throws EngineError with CannotAppend unless every section is where the chain says, and the newest one
    ///     names the catalog that `pdf` uses.
    CrossReference(QPDF& pdf, std::shared_ptr<const ByteSource> source);

    /// The same of a document that was read directly, so that its sections are known already.
    /// \param size the largest of all sections' sizes.
    CrossReference(QPDF& pdf, const Section& newest, int size);

    /// Of a document whose cross-reference is damaged, but whose objects lie beyond doubt where they were
    /// found: the next revision lists all of them, and names no section before.
    CrossReference(QPDF& pdf, std::uint64_t headerOffset, const FileScan& found);

    /// How many bytes of a file lie before the header from which its offsets are counted.
    static std::uint64_t headerOffsetOf(const ByteSource& source);

    struct ObjectOffset
    {
        std::uint64_t offset; ///< From the header.
        int generation;
    };

    /// What the next revision has to list besides its own objects, by number; empty when it names a section
    /// that lists them.
    const std::map<int, ObjectOffset>& unlistedObjects() const { return m_unlisted; }

    /// Kind of the newest section; a table with a stream beside it (a hybrid file) counts as a table.
    Kind kind() const { return m_kind; }

    /// Where the newest section begins, counted as the document counts: from its header.
    std::uint64_t newestOffset() const { return m_newestOffset; }

    /// How many bytes lie before the header.
    std::uint64_t headerOffset() const { return m_headerOffset; }

    /// The newest trailer, strings as they stand in the file.
    const QPDFObjectHandle& trailer() const { return m_trailer; }

    /// One more than the highest object number that any section has an entry for.
    int entryEnd() const { return m_entryEnd; }

    /// The largest of all Size entries and entryEnd().
    int size() const { return m_size; }

private:
    void readChain(QPDF& pdf, SectionReader& reader, std::uint64_t offset);
    QPDFObjectHandle readSection(QPDF& pdf, SectionReader& reader, std::uint64_t offset, Section& section);
    void noteEntries(long long first, long long count);
    void noteIndex(QPDFObjectHandle dictionary);
    void noteSize(QPDFObjectHandle size);
    void requireSameDocument(QPDF& pdf);

    std::map<int, ObjectOffset> m_unlisted;
    Kind m_kind = Kind::Table;
    std::uint64_t m_newestOffset = 0;
    std::uint64_t m_headerOffset = 0;
    QPDFObjectHandle m_trailer;
    int m_entryEnd = 0;
    int m_size = 0;
};

} // namespace engine
