#include "engine/Document.h"

#include "engine/ByteSource.h"
#include "engine/EngineError.h"
#include "engine/SourceInput.h"

#include <qpdf/QUtil.hh>

#include <vector>

namespace engine {

namespace {

const std::size_t headerSearchSize = 1024; // readers look for the header this far

std::vector<std::string> passwordsToTry(std::string_view password)
{
    std::vector<std::string> passwords;
    const bool passable = password.find('\0') == std::string_view::npos; // libqpdf takes C strings
    if (!password.empty() && passable)
        passwords = QUtil::possible_repaired_encodings(std::string(password));
    passwords.emplace_back();
    return passwords;
}

bool looksLikePdf(const ByteSource& source)
{
    return source.text(0, headerSearchSize).find("%PDF-") != std::string::npos;
}

} // namespace

ErrorCode errorCodeOf(const QPDFExc& error)
{
    switch (error.getErrorCode()) {
    case qpdf_e_system:
        return ErrorCode::ReadFailed;
    case qpdf_e_unsupported:
        return ErrorCode::UnsupportedEncryption;
    case qpdf_e_password:
        return ErrorCode::WrongPassword;
    case qpdf_e_internal:
        return ErrorCode::Internal;
    default:
        return ErrorCode::Damaged;
    }
}

Document::Document(std::shared_ptr<ByteSource> source, std::string fileName, std::string_view password)
    : m_source(std::move(source)), m_fileName(std::move(fileName))
{
    for (const std::string& attempt : passwordsToTry(password))
        if (open(attempt))
            return;
    throw EngineError(ErrorCode::WrongPassword);
}

Document::~Document() = default;

bool Document::open(const std::string& password)
{
    m_pdf = QPDF::create();
    m_pdf->setSuppressWarnings(true);
    try {
        m_pdf->processInputSource(std::make_shared<SourceInput>(m_source, m_fileName), password.c_str());
        m_pdf->getRoot();
    } catch (const QPDFExc& error) {
        const ErrorCode code = errorCodeOf(error);
        if (code == ErrorCode::WrongPassword)
            return false;
        throw EngineError(code == ErrorCode::Damaged && !looksLikePdf(*m_source) ? ErrorCode::NotAPdf : code,
                          error.what());
    }
    m_openedWithPassword = !password.empty() && m_pdf->isEncrypted();
    return true;
}

QPDFObjectHandle Document::catalog()
{
    return m_pdf->getRoot();
}

void Document::markChanged(const QPDFObjectHandle& object)
{
    m_changed.insert(object.getObjGen());
}

void Document::collectWarnings()
{
    for (const QPDFExc& warning : m_pdf->getWarnings()) {
        m_warned = true;
        // libqpdf has no other sign of it.
        if (warning.getMessageDetail().find("reconstruct cross-reference") != std::string::npos)
            m_rebuilt = true;
    }
}

bool Document::crossReferenceRebuilt()
{
    collectWarnings();
    return m_rebuilt;
}

bool Document::anyWarnings()
{
    collectWarnings();
    return m_warned;
}

} // namespace engine
