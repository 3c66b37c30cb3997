#include "Arguments.h"
#include "Operations.h"
#include "Session.h"
#include "engine/document/Signatures.h"
#include "engine/document/Text.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/writing/DocumentWriter.h"
#include "engine/writing/InPlaceUpdate.h"
#include "pdflibrary/FileNameCodec.h"

namespace engine::operations {

namespace {

const char* const libraryVersion = "13.11";

std::string pathFrom(std::wstring_view fileName)
{
    if (fileName.find(L'\0') != std::wstring_view::npos)
        throw EngineError(ErrorCode::BadArgument, "a file name with a NUL");
    return fileNameFromWide(fileName);
}

bool hasPages(OpenDocument& document)
{
    try {
        if (document.pages.hasPages())
            return true;
    } catch (const DirectReadingEnded&) { // the document is read whole
    }
    document.readWhole();
    return document.pages.hasPages();
}

int open(Session& session, std::shared_ptr<ByteSource> source, std::string fileName,
         std::wstring_view password)
{
    const Wiped<char> plain(fileNameFromWide(password));
    auto document = std::make_unique<OpenDocument>(std::move(source), std::move(fileName), plain.text);
    if (!hasPages(*document)) {
        document->document.requireAllRead();
        document->document.requireUnchanged();
        throw EngineError(ErrorCode::NoPages);
    }
    session.add(std::move(document));
    return 1;
}

int appendRefusal(Document& document)
{
    try {
        updateOf(document);
        return 0;
    } catch (const EngineError& error) {
        return static_cast<int>(error.code());
    }
}

bool modificationAllowed(QPDF& pdf)
{
    return !pdf.isEncrypted() || pdf.ownerPasswordMatched() || pdf.allowModifyOther();
}

} // namespace

int LoadFromFile(Session& session, std::wstring_view fileName, std::wstring_view password)
{
    const std::string path = pathFrom(fileName);
    return open(session, ByteSource::openFile(path), path, password);
}

int LoadFromString(Session& session, std::string_view source, std::wstring_view password)
{
    return open(session, ByteSource::fromBytes(std::string(source)), {}, password);
}

int SaveToFile(Session& session, std::wstring_view fileName)
{
    session.document().readWhole();
    writeWhole(session.document().document, pathFrom(fileName));
    return 1;
}

int AppendToFile(Session& session, std::wstring_view fileName)
{
    appendUpdate(session.document().document, pathFrom(fileName));
    return 1;
}

std::string AppendToString(Session& session, int form)
{
    Document& document = session.document().document;
    requireWithin(form, ForCopy, ForInPlace);
    return form == ForInPlace ? inPlaceUpdateOf(document) : updateOf(document);
}

std::string SaveToString(Session& session)
{
    session.document().readWhole();
    return wholeToString(session.document().document);
}

int DocumentCount(Session& session)
{
    return static_cast<int>(session.documentIds().size());
}

int GetDocumentID(Session& session, int index)
{
    const std::vector<int> ids = session.documentIds();
    if (index < 1 || static_cast<std::size_t>(index) > ids.size())
        throw EngineError(ErrorCode::UnknownDocument);
    return ids[static_cast<std::size_t>(index) - 1];
}

int SelectDocument(Session& session, int documentId)
{
    session.select(documentId);
    return 1;
}

int SelectedDocument(Session& session)
{
    return session.selectedId();
}

int RemoveDocument(Session& session, int documentId)
{
    session.remove(documentId);
    return 1;
}

std::wstring GetDocumentFileName(Session& session)
{
    return wideFromFileName(session.document().document.fileName());
}

int GetDocumentRepaired(Session& session)
{
    return session.document().document.crossReferenceRebuilt();
}

int IsLinearized(Session& session)
{
    session.document().readWhole();
    return session.document().document.pdf().isLinearized();
}

int EncryptionStatus(Session& session)
{
    QPDF& pdf = session.document().document.pdf();
    if (!pdf.isEncrypted())
        return NotEncrypted;
    return pdf.ownerPasswordMatched() ? OpenedWithOwnerPassword : OpenedWithUserPassword;
}

int SecurityInfo(Session& session, int item)
{
    if (session.selectedId() == 0)
        throw EngineError(ErrorCode::NotAvailable);
    Document& document = session.document().document;
    switch (item) {
    case SignatureCount:
        return countSignatures(document);
    case ModificationAllowed:
        return modificationAllowed(document.pdf());
    case UnsavedChanges:
        return document.isChanged() ? 1 : 0;
    case AppendRefusal:
        return appendRefusal(document);
    case Certification:
        return isCertified(document);
    default:
        throw EngineError(ErrorCode::NotAvailable);
    }
}

int LastErrorCode(Session& session)
{
    session.setLastError(session.errorBefore());
    return static_cast<int>(session.errorBefore());
}

std::wstring LibraryVersion(Session&)
{
    return wideFromUtf8(libraryVersion + (" (libqpdf " + QPDF::QPDFVersion() + ")"));
}

} // namespace engine::operations
