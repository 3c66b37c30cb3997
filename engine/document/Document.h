#pragma once

#include "engine/reading/DocumentChanges.h"
#include "engine/reading/Kids.h"
#include "engine/reading/ObjectFetcher.h"
#include "engine/reading/ReadingTrouble.h"
#include "engine/update/CrossReference.h"
#include "pdflibrary/Wipe.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace engine {

class ByteSource;

/// One open document: the bytes that it was read from, libqpdf's view of them, and which of its objects were
/// changed since. Failures are thrown as EngineError.
///
/// libqpdf reads the whole cross-reference of a document before anything else. So a document that allows it
/// is opened as a skeleton into which its objects are fetched one by one as they are asked for. References
/// must therefore be followed by key(), item() and fetched() and by nothing else: libqpdf takes an object
/// that has not been fetched for null. Nodes of the page tree can list ten thousands of pages, which libqpdf
/// need not read: node(), kids() and kid() are for them.
class Document
{
public:
    /// Reads the cross-reference and the catalog; nothing else of the document is looked at.
    /// \param fileName the name's bytes, empty for a document that came from memory.
    /// \param password UTF-8; tried as it is, in the encodings that old revisions used, and last of all
    ///     empty, so that a password given for a whole batch does not shut out a document that needs none.
    Document(std::shared_ptr<ByteSource> source, std::string fileName, std::string_view password);
    ~Document();
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    /// What is edited: the skeleton, or the document.
    QPDF& pdf() { return *m_pdf; }

    /// From now on all of the document is in pdf(), with the changes so far as far as they were marked.
    /// Handles from before are stale.
    void readWhole();

    const std::shared_ptr<ByteSource>& source() const { return m_source; }
    const std::string& fileName() const { return m_fileName; }

    QPDFObjectHandle catalog() const { return m_catalog; }

    /// An entry of a dictionary, null where there is none or where `dictionary` is not one.
    QPDFObjectHandle key(QPDFObjectHandle dictionary, const std::string& key);
    /// An element of an array, null outside it.
    QPDFObjectHandle item(QPDFObjectHandle array, int index);
    /// The same object, read.
    QPDFObjectHandle fetched(QPDFObjectHandle object);

    /// fetched() for what may be a page or a node above pages; its /Kids are only in kids() then.
    QPDFObjectHandle node(QPDFObjectHandle object);
    Kids kids(QPDFObjectHandle node);
    QPDFObjectHandle kid(const Kids& kids, int index);
    /// The text of a kid that nobody has read yet, for looking at without reading it; good until the next
    /// call of any function.
    std::optional<std::string_view> unreadKid(const Kids& kids, int index);

    /// How many objects the cross-reference can list, the head of the free ones left out.
    int objectCount();

    /// Makes a direct object an indirect one with a new number.
    QPDFObjectHandle makeIndirect(const QPDFObjectHandle& object);

    /// An entry of the trailer, null where there is none.
    QPDFObjectHandle trailerKey(const std::string& key);
    /// Sets an entry of the trailer, or removes it with null. Both ways of writing keep it. Not for what
    /// belongs to the file rather than to the document: /Root, /ID, /Encrypt and the entries of
    /// describesSection().
    void setTrailerKey(const std::string& key, const QPDFObjectHandle& value);
    /// What setTrailerKey() was called with, the last value for each key.
    const std::map<std::string, QPDFObjectHandle>& changedTrailer() const { return m_changes.trailer(); }

    /// Sets an entry of the catalog, or removes it with null, and marks the catalog as changed.
    void setCatalogKey(const std::string& key, const QPDFObjectHandle& value);

    /// Notes that an indirect object differs from the source; of a direct one, that which holds it is marked.
    /// \throws std::logic_error for a direct object.
    void markChanged(const QPDFObjectHandle& object);
    /// Notes that the catalog differs. One that stands in the trailer is no object, and so no update holds it:
    /// the document can be written anew only.
    void markCatalogChanged() { m_changes.noteObject(m_catalog.getObjGen()); }
    const std::set<QPDFObjGen>& changedObjects() const { return m_changes.objects(); }

    /// True when an object was marked as changed, or the trailer was.
    bool isChanged() const { return !m_changes.empty(); }

    /// True when libqpdf had to search the file for its objects because the cross-reference was wrong.
    /// Reading an object may be what shows it, so the answer can turn from false to true.
    bool crossReferenceRebuilt() { return trouble().crossReferenceRebuilt(); }
    /// True when libqpdf complained about anything so far.
    bool anyWarnings() { return trouble().any(); }
    /// True when libqpdf could not read an object as it stands, and made something else of it: null, an empty
    /// stream, a dictionary with other entries.
    bool misread(QPDFObjGen object) { return trouble().misread(object); }
    bool anyMisread() { return trouble().anyMisread(); }
    bool trailerMisread() { return trouble().trailerMisread(); }
    /// True when the length of a stream was wrong, and libqpdf searched for its end.
    bool streamLengthsRecovered() { return trouble().streamLengthsRecovered(); }
    /// Throws EngineError when memory was short for something read so far, or the disk failed: libqpdf goes
    /// on with null in its place.
    void requireAllRead();
    /// Throws EngineError with SourceChanged when the file is no longer as it was on opening.
    void requireUnchanged() const;

    /// What the next revision builds upon. \throws EngineError with CannotAppend.
    CrossReference crossReference();

    const std::string& password() const { return m_password.text; }

private:
    const ReadingTrouble& trouble();

    std::shared_ptr<ByteSource> m_source;
    std::string m_fileName;
    Wiped<char> m_password;
    std::unique_ptr<ObjectFetcher> m_fetcher; // null when m_pdf has the whole document
    std::shared_ptr<QPDF> m_pdf;
    QPDFObjectHandle m_catalog; // looking it up anew each time is not cheap
    DocumentChanges m_changes;
    ReadingTrouble m_trouble;
    std::optional<int> m_objectCount; // of the whole document: counting is not cheap
};

} // namespace engine
