#include "DamageCheck.h"

#include "engine/document/Document.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/update/DocumentTail.h"
#include "engine/update/FileScan.h"

#include <algorithm>

namespace engine {

namespace {

/// Reads all objects.
class ObjectWalk
{
public:
    explicit ObjectWalk(QPDF& pdf) : m_pdf(pdf)
    {
        for (const auto& [id, entry] : pdf.getXRefTable())
            visit(pdf.getObject(id));
        visit(pdf.getTrailer());
    }

    bool foundByteRange() const { return m_byteRange; }

    /// Whether an object refers to one that is not there.
    bool foundGap()
    {
        const auto present = m_pdf.getXRefTable();
        return std::any_of(m_references.begin(), m_references.end(), [&](QPDFObjGen id) {
            return !present.contains(id) && m_pdf.getObject(id).isNull();
        });
    }

private:
    void visit(QPDFObjectHandle object)
    {
        if (object.isStream())
            object = object.getDict();
        m_byteRange = m_byteRange || (object.isDictionary() && object.hasKey("/ByteRange"));
        if (object.isDictionary())
            for (const auto& [key, value] : object.getDictAsMap())
                note(value);
        else if (object.isArray())
            for (const QPDFObjectHandle& item : object.getArrayAsVector())
                note(item);
    }

    void note(QPDFObjectHandle value)
    {
        if (value.isIndirect())
            m_references.insert(value.getObjGen());
        else
            visit(value);
    }

    QPDF& m_pdf;
    std::set<QPDFObjGen> m_references;
    bool m_byteRange = false;
};

[[noreturn]] void doubt(ErrorCode code)
{
    throw EngineError(code);
}

/// Whether libqpdf found exactly the objects that are in the file.
bool foundAllObjects(QPDF& pdf, const FileScan& scan, std::uint64_t headerOffset)
{
    const auto table = pdf.getXRefTable();
    const auto& definitions = scan.definitions();
    return !scan.hasOddObjects() && table.size() == definitions.size() &&
           std::all_of(table.begin(), table.end(), [&](const auto& entry) {
               const auto found = definitions.find(entry.first.getObj());
               return found != definitions.end() && entry.second.getType() == 1 &&
                      found->second.generation == entry.first.getGen() &&
                      found->second.offset ==
                          headerOffset + static_cast<std::uint64_t>(entry.second.getOffset());
           });
}

/// Whether the file ends with objects of an update whose end is lost.
bool isCutOff(const ByteSource& source)
{
    const auto tail = findDocumentTail(source);
    return tail && hasObjectsBehind(source, *tail);
}

void requireNoDoubt(Document& document, const FileScan& scan, ObjectWalk& walk)
{
    QPDF& pdf = document.pdf();
    document.requireAllRead();
    const bool rebuilt = document.crossReferenceRebuilt();
    const int encryptions = pdf.getTrailer().hasKey("/Encrypt") ? 1 : 0;
    if (rebuilt && scan.hasCompressedParts())
        doubt(ErrorCode::ObjectStreamsUnread);
    if (rebuilt ? scan.trailers() != 1 || scan.ends() > 1 : isCutOff(*document.source()))
        doubt(ErrorCode::NewestRevisionUncertain);
    if (rebuilt ? scan.encryptions() != encryptions : scan.encryptions() > 0 && encryptions == 0)
        doubt(ErrorCode::EncryptionUncertain);
    if (document.anyMisread())
        doubt(ErrorCode::ObjectsDamaged);
    if (rebuilt && !foundAllObjects(pdf, scan, CrossReference::headerOffsetOf(*document.source())))
        doubt(ErrorCode::ObjectsUncertain);
    if (rebuilt && walk.foundGap())
        doubt(ErrorCode::ObjectsDamaged);
}

} // namespace

CrossReference foundCrossReference(Document& document)
{
    document.readWhole();
    const FileScan scan(*document.source());
    ObjectWalk walk(document.pdf());
    requireNoDoubt(document, scan, walk);
    if (!document.crossReferenceRebuilt())
        throw EngineError(ErrorCode::CannotAppend, "the cross-reference is odd");
    // Readers that search the file search for the ends of streams too; with a cross-reference they do not.
    if (document.streamLengthsRecovered())
        throw EngineError(ErrorCode::StreamLengthsWrong);
    return {document.pdf(), CrossReference::headerOffsetOf(*document.source()), scan};
}

void requireChangesWhole(Document& document)
{
    const auto& changed = document.changedObjects();
    const bool misread =
        std::any_of(changed.begin(), changed.end(), [&](QPDFObjGen id) { return document.misread(id); });
    if (misread || document.trailerMisread())
        throw EngineError(ErrorCode::ObjectsDamaged, "a changed object was not read as it stands");
}

void requireRewritable(Document& document)
{
    document.readWhole();
    const FileScan scan(*document.source());
    ObjectWalk walk(document.pdf());
    requireNoDoubt(document, scan, walk);
    if (scan.hasByteRanges() || walk.foundByteRange())
        throw EngineError(ErrorCode::ByteRangesPresent);
}

} // namespace engine
