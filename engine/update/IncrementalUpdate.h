#pragma once

#include "CrossReference.h"
#include "engine/syntax/Cipher.h"
#include "engine/syntax/ObjectSerializer.h"

#include <qpdf/QPDF.hh>

#include <map>
#include <optional>
#include <set>
#include <string>

namespace engine {

/// The bytes that, put behind a document's own, make its next revision: the changed objects, a
/// cross-reference section of the kind that the document ends with, and the new end. Where the document's own
/// cross-reference is damaged, the section lists all objects.
class IncrementalUpdate
{
public:
    using TrailerEntries = std::map<std::string, QPDFObjectHandle>;

    /// \param begin where the update will lie, behind white space; nothing for the end of `source`.
    /// \param changed the indirect objects that differ from `source`. Objects that are new and referred to by
    ///     these need not be named when their numbers lie above the document's.
    /// \param trailer the entries of the trailer that differ; null for those that are gone.
    /// \throws EngineError with CannotAppend when the document is such that an update would not be right.
    IncrementalUpdate(QPDF& pdf, const CrossReference& crossReference, const ByteSource& source,
                      const std::set<QPDFObjGen>& changed, const TrailerEntries& trailer = {},
                      std::optional<std::uint64_t> begin = std::nullopt);

    std::string bytes() const { return m_lineEnd + m_bytes; }

private:
    using ObjectOffset = CrossReference::ObjectOffset;

    void writeObjects(QPDF& pdf, const std::set<QPDFObjGen>& changed);
    void writeObject(QPDF& pdf, QPDFObjectHandle object);
    std::string textOf(QPDF& pdf, QPDFObjectHandle object);
    void addUnlistedObjects();
    void writeTable();
    void writeStream();
    void writeEnd(std::uint64_t sectionOffset);
    std::map<std::string, QPDFObjectHandle> newTrailer(int size) const;
    QPDFObjectHandle nextIdentifier() const;
    std::uint64_t nextOffset() const;
    int sizeWith(int objectNumber) const;

    const CrossReference& m_crossReference; // this and the next in use only while the update is made
    const TrailerEntries& m_changedTrailer;
    Cipher m_cipher;
    ObjectSerializer m_serializer;
    std::string m_lineEnd;                 // where the document lacks one
    std::uint64_t m_begin;                 // of what follows
    std::map<int, ObjectOffset> m_written; // by object number
    std::string m_bytes;
};

} // namespace engine
