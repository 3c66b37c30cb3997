#include "Document.h"

#include "engine/direct/DirectReader.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/syntax/ObjectParser.h"
#include "engine/syntax/ObjectSerializer.h"
#include "engine/syntax/SyntaxScanner.h"
#include "engine/update/SourceInput.h"

#include <qpdf/QUtil.hh>

#include <new>
#include <stdexcept>
#include <vector>

namespace engine {

namespace {

const std::size_t headerSearchSize = 1024; // readers look for the header this far

// What libqpdf calls the places of which it warns.
const std::string objectName = "object ";
const std::string trailerName = "trailer";
const char* const lengthRecovered = "recovered stream length";

std::vector<std::string> passwordsToTry(std::string_view password)
{
    std::vector<std::string> passwords;
    const bool passable = password.find('\0') == std::string_view::npos; // libqpdf takes C strings
    if (!password.empty() && passable)
        passwords = QUtil::possible_repaired_encodings(std::string(password));
    passwords.emplace_back();
    return passwords;
}

/// The references that an array consists of. \returns nothing when it holds anything else.
std::shared_ptr<std::vector<QPDFObjGen>> referencesIn(std::string_view array)
{
    if (!array.starts_with('[') || !array.ends_with(']'))
        return nullptr;
    auto references = std::make_shared<std::vector<QPDFObjGen>>();
    references->reserve(array.size() / 8);
    SyntaxScanner scanner(array, 1);
    for (scanner.skipSpace(); scanner.position() + 1 < array.size(); scanner.skipSpace()) {
        const auto id = scanner.reference();
        if (!id)
            return nullptr;
        references->emplace_back(id->number, id->generation);
    }
    return references;
}

struct NodeText
{
    std::string withoutKids;
    std::shared_ptr<std::vector<QPDFObjGen>> kids;
};

/// Splits a node's text. \returns nothing for what is no node, or has kids that are no references.
std::optional<NodeText> splitNode(std::string_view text)
{
    DictionaryScanner scanner(text);
    std::optional<NodeText> split;
    while (const auto entry = scanner.next()) {
        if (entry->key != "Kids")
            continue;
        auto kids = split ? nullptr : referencesIn(entry->value);
        if (!kids)
            return std::nullopt;
        const auto start = static_cast<std::size_t>(entry->key.data() - 1 - text.data());
        const auto end = static_cast<std::size_t>(entry->value.data() - text.data()) + entry->value.size();
        split = NodeText{std::string(text.substr(0, start)).append(text.substr(end)), std::move(kids)};
    }
    return scanner.odd() ? std::nullopt : split;
}

/// Whether libqpdf complains of something else than the content of an object: that it lies elsewhere, that
/// the end of a stream was searched for and found, what a trailer says of its section, or that of two entries
/// with one key the last one counts.
bool isHarmless(const std::string& complaint)
{
    return (complaint.starts_with("expected ") && complaint.ends_with(" obj")) ||
           complaint == "expected endstream" || complaint == "attempting to recover stream length" ||
           complaint.starts_with(lengthRecovered) ||
           complaint.find("trailer dictionary") != std::string::npos ||
           complaint.starts_with("dictionary has duplicated key");
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
    const bool numbersLeft = m_direct && m_direct->size() <= largestObjectNumber; // new ones follow the size
    auto skeleton = numbersLeft ? m_direct->skeleton() : std::nullopt;
    if (!skeleton) {
        m_direct.reset();
        return false;
    }
    m_skeleton = std::move(*skeleton);
    m_pdf = QPDF::create();
    m_pdf->setSuppressWarnings(true);
    try {
        m_pdf->processMemoryFile(m_fileName.c_str(), m_skeleton.data(), m_skeleton.size());
        m_catalog = m_pdf->getRoot();
        m_fetched = {m_catalog.getObjGen()};
        put(m_catalog.getObjGen(), textOf(m_catalog.getObjGen()));
        return true;
    } catch (const QPDFExc&) {
    } catch (const DirectReadingEnded&) {
    }
    m_direct.reset();
    return false;
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
    m_kids.clear();
    openWhole();
    // An object that is not where it should be makes libqpdf search the file for all objects. It keeps those
    // that it has read before, so they must be the same ones as if it had read the document from the start.
    for (const QPDFObjGen& id : m_lookedAt)
        m_pdf->getObject(id).isNull();
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
        m_catalog = m_pdf->getRoot();
    } catch (const QPDFExc& error) {
        const ErrorCode code = errorCodeOf(error);
        if (code == ErrorCode::WrongPassword)
            return false;
        requireAllRead();
        requireUnchanged();
        throw EngineError(code == ErrorCode::Damaged && !looksLikePdf(*m_source) ? ErrorCode::NotAPdf : code,
                          error.what());
    }
    m_openedWithPassword = !password.empty() && m_pdf->isEncrypted();
    return true;
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

std::string_view Document::textOf(QPDFObjGen id)
{
    const auto text = m_direct->object(id.getObj(), id.getGen());
    if (!text)
        throw DirectReadingEnded();
    m_lookedAt.push_back(id);
    return *text;
}

void Document::put(QPDFObjGen id, std::string_view text)
{
    try {
        m_pdf->replaceObject(id, parseObject(*m_pdf, text));
    } catch (const std::runtime_error&) { // libqpdf's own, and from numbers that are too large
        throw DirectReadingEnded();
    }
    if (m_pdf->anyWarnings())
        throw DirectReadingEnded();
}

QPDFObjectHandle Document::fetched(QPDFObjectHandle object)
{
    if (m_direct != nullptr && object.isIndirect() && m_fetched.insert(object.getObjGen()).second)
        put(object.getObjGen(), textOf(object.getObjGen()));
    return object;
}

QPDFObjectHandle Document::node(QPDFObjectHandle object)
{
    const QPDFObjGen id = object.getObjGen();
    if (m_direct == nullptr || !object.isIndirect() || m_fetched.contains(id) || m_kids.contains(id))
        return object;
    const std::string_view text = textOf(id);
    auto split = splitNode(text);
    put(id, split ? split->withoutKids : text);
    if (split)
        m_kids.emplace(id, std::move(split->kids));
    else
        m_fetched.insert(id);
    return object;
}

Kids Document::kids(QPDFObjectHandle node)
{
    if (const auto known = m_kids.find(node.getObjGen()); known != m_kids.end())
        return Kids(known->second);
    return Kids(key(node, "/Kids"));
}

QPDFObjectHandle Document::kid(const Kids& kids, int index)
{
    if (index < 0 || index >= kids.size())
        return QPDFObjectHandle::newNull();
    const auto& references = kids.m_references;
    return node(references ? m_pdf->getObject((*references)[static_cast<std::size_t>(index)])
                           : QPDFObjectHandle(kids.m_array).getArrayItem(index));
}

std::optional<std::string_view> Document::unreadKid(const Kids& kids, int index)
{
    const QPDFObjGen id = kids.id(index);
    if (m_direct == nullptr || !id.isIndirect() || m_fetched.contains(id) || m_kids.contains(id))
        return std::nullopt;
    const auto text = m_direct->object(id.getObj(), id.getGen());
    if (text)
        m_lookedAt.push_back(id);
    return text;
}

Kids::Kids(QPDFObjectHandle array) : m_array(array), m_size(array.isArray() ? array.getArrayNItems() : 0) {}

Kids::Kids(std::shared_ptr<const std::vector<QPDFObjGen>> references)
    : m_references(std::move(references)), m_size(static_cast<int>(m_references->size()))
{}

QPDFObjGen Kids::id(int kid) const
{
    return m_references ? (*m_references)[static_cast<std::size_t>(kid)]
                        : QPDFObjectHandle(m_array).getArrayItem(kid).getObjGen();
}

CrossReference Document::crossReference()
{
    return m_direct ? CrossReference(*m_pdf, *m_direct) : CrossReference(*m_pdf, m_source);
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
        // libqpdf has no other signs of these.
        const std::string& detail = warning.getMessageDetail();
        m_rebuilt = m_rebuilt || detail.find("reconstruct cross-reference") != std::string::npos;
        m_lengthsRecovered = m_lengthsRecovered || detail.starts_with(lengthRecovered);
        noteMisread(warning);
        m_memoryWasShort = m_memoryWasShort || detail.find(std::bad_alloc().what()) != std::string::npos;
    }
}

void Document::noteMisread(const QPDFExc& warning)
{
    const std::string& place = warning.getObject();
    if ((place == trailerName || place.starts_with(objectName)) && !isHarmless(warning.getMessageDetail()))
        m_misread.insert(place);
}

bool Document::misread(QPDFObjGen object)
{
    collectWarnings();
    return m_misread.contains(objectName + object.unparse(' '));
}

bool Document::anyMisread()
{
    collectWarnings();
    return !m_misread.empty();
}

bool Document::trailerMisread()
{
    collectWarnings();
    return m_misread.contains(trailerName);
}

bool Document::streamLengthsRecovered()
{
    collectWarnings();
    return m_lengthsRecovered;
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

void Document::requireAllRead()
{
    collectWarnings();
    if (m_memoryWasShort)
        throw EngineError(ErrorCode::OutOfMemory);
    if (m_source->readFailed())
        throw EngineError(ErrorCode::ReadFailed);
}

void Document::requireUnchanged() const
{
    if (!m_source->unchangedSinceOpened())
        throw EngineError(ErrorCode::SourceChanged);
}

} // namespace engine
