#pragma once

#include "engine/ErrorCodes.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace engine {

class ByteSource;

/// What a libqpdf failure is called at the library's boundary.
ErrorCode errorCodeOf(const QPDFExc& error);

/// One open document: the bytes that it was read from, libqpdf's view of them, and which of its objects were
/// changed since. Failures are thrown as EngineError.
class Document
{
public:
    /// Reads the cross-reference and the catalog; nothing else of the document is looked at.
    /// \param fileName the name's bytes, empty for a document that came from memory.
    /// \param password UTF-8; tried as it is, in the encodings that old revisions used, and last of all
    /// empty, so
    ///     that a password given for a whole batch does not shut out a document that needs none.
    Document(std::shared_ptr<ByteSource> source, std::string fileName, std::string_view password);
    ~Document();
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    QPDF& pdf() { return *m_pdf; }
    const std::shared_ptr<ByteSource>& source() const { return m_source; }
    const std::string& fileName() const { return m_fileName; }

    QPDFObjectHandle catalog();

    /// Notes that an indirect object differs from the source. For a direct object the caller marks the
    /// indirect one that holds it.
    void markChanged(const QPDFObjectHandle& object);
    const std::set<QPDFObjGen>& changedObjects() const { return m_changed; }

    /// True when libqpdf had to search the file for its objects because the cross-reference was wrong.
    /// Reading an object may be what shows it, so the answer can turn from false to true.
    bool crossReferenceRebuilt();
    /// True when libqpdf complained about anything so far.
    bool anyWarnings();

    bool openedWithPassword() const { return m_openedWithPassword; }

private:
    /// False when the password is not right.
    bool open(const std::string& password);
    void collectWarnings();

    std::shared_ptr<ByteSource> m_source;
    std::string m_fileName;
    std::shared_ptr<QPDF> m_pdf;
    std::set<QPDFObjGen> m_changed;
    bool m_rebuilt = false;
    bool m_warned = false;
    bool m_openedWithPassword = false;
};

} // namespace engine
