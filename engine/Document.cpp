#include "engine/Document.h"

#include "engine/ByteSource.h"
#include "engine/DirectReader.h"
#include "engine/EngineError.h"
#include "engine/ObjectSerializer.h"
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
    m_password = password;
    if (!openSkeleton())
        openWhole();
}

bool Document::openSkeleton()
{
    m_direct = DirectReader::open(m_source);
    auto skeleton = m_direct ? m_direct->skeleton() : std::nullopt;
    if (!skeleton) {
        m_direct.reset();
        return false;
    }
    m_skeleton = std::move(*skeleton);
    m_pdf = QPDF::create();
    m_pdf->setSuppressWarnings(true);
    try {
        m_pdf->processMemoryFile(m_fileName.c_str(), m_skeleton.data(), m_skeleton.size());
        m_fetched = {catalog().getObjGen(), catalog().getKey("/Pages").getObjGen()};
    } catch (const QPDFExc&) {
        m_direct.reset();
    }
    if (m_pdf->anyWarnings())
        m_direct.reset();
    return m_direct != nullptr;
}

void Document::openWhole()
{
    for (const std::string& attempt : passwordsToTry(m_password))
        if (open(attempt))
            return;
    throw EngineError(ErrorCode::WrongPassword);
}

void Document::readWhole()
{
    if (m_direct == nullptr)
        return;
    std::map<QPDFObjGen, std::string> changed;
    for (const QPDFObjGen& id : m_changed)
        changed[id] = ObjectSerializer().write(m_pdf->getObject(id));
    m_direct.reset();
    openWhole();
    for (const auto& [id, text] : changed)
        m_pdf->replaceObject(id, QPDFObjectHandle::parse(m_pdf.get(), text));
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

QPDFObjectHandle Document::key(QPDFObjectHandle dictionary, const std::string& key)
{
    return dictionary.isDictionary() ? fetched(dictionary.getKey(key)) : QPDFObjectHandle::newNull();
}

QPDFObjectHandle Document::item(QPDFObjectHandle array, int index)
{
    const bool within = array.isArray() && index >= 0 && index < array.getArrayNItems();
    return within ? fetched(array.getArrayItem(index)) : QPDFObjectHandle::newNull();
}

QPDFObjectHandle Document::fetched(QPDFObjectHandle object)
{
    if (m_direct == nullptr || !object.isIndirect() || !m_fetched.insert(object.getObjGen()).second)
        return object;
    const auto text = m_direct->object(object.getObjectID(), object.getGeneration());
    if (!text)
        throw DirectReadingEnded();
    m_pdf->replaceObject(object.getObjGen(), QPDFObjectHandle::parse(m_pdf.get(), *text));
    if (m_pdf->anyWarnings())
        throw DirectReadingEnded();
    return object;
}

std::optional<std::string> Document::unreadItem(QPDFObjectHandle array, int index)
{
    if (m_direct == nullptr)
        return std::nullopt;
    const QPDFObjectHandle object = array.getArrayItem(index);
    if (!object.isIndirect() || m_fetched.contains(object.getObjGen()))
        return std::nullopt;
    return m_direct->object(object.getObjectID(), object.getGeneration());
}

QPDFObjectHandle Document::makeIndirect(const QPDFObjectHandle& object)
{
    QPDFObjectHandle made = m_pdf->makeIndirectObject(object);
    m_fetched.insert(made.getObjGen());
    return made;
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
