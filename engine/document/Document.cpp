#include "Document.h"

#include "engine/direct/DirectReader.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/reading/DocumentOpening.h"

#include <stdexcept>

namespace engine {

Document::Document(std::shared_ptr<ByteSource> source, std::string fileName, std::string_view password)
    : m_source(std::move(source)), m_fileName(std::move(fileName)), m_password(std::string(password)),
      m_fetcher(ObjectFetcher::open(m_source, m_fileName)),
      m_pdf(m_fetcher ? m_fetcher->pdf() : openWhole(m_source, m_fileName, m_password.text)),
      m_catalog(m_pdf->getRoot())
{}

Document::~Document() = default;

void Document::readWhole()
{
    if (m_fetcher == nullptr)
        return;
    const std::shared_ptr<QPDF> whole = openWhole(m_source, m_fileName, m_password.text);
    // An object that is not where it should be makes libqpdf search the file for all objects. It keeps those
    // that it has read before, so they must be the same ones as if it had read the document from the start.
    for (const QPDFObjGen& id : m_fetcher->lookedAt())
        whole->getObject(id).isNull();
    m_changes.moveTo(*whole, *m_pdf);
    m_pdf = whole;
    m_catalog = m_pdf->getRoot();
    m_fetcher.reset();
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
    if (m_fetcher)
        m_fetcher->fetch(object);
    return object;
}

QPDFObjectHandle Document::node(QPDFObjectHandle object)
{
    if (m_fetcher)
        m_fetcher->fetchNode(object);
    return object;
}

Kids Document::kids(QPDFObjectHandle node)
{
    if (auto references = m_fetcher ? m_fetcher->kidsOf(node.getObjGen()) : nullptr)
        return Kids(std::move(references));
    return Kids(key(node, "/Kids"));
}

QPDFObjectHandle Document::kid(const Kids& kids, int index)
{
    if (index < 0 || index >= kids.size())
        return QPDFObjectHandle::newNull();
    return node(kids.handle(*m_pdf, index));
}

std::optional<std::string_view> Document::unreadKid(const Kids& kids, int index)
{
    return m_fetcher ? m_fetcher->unread(kids.id(index)) : std::nullopt;
}

int Document::objectCount()
{
    if (m_fetcher)
        return m_fetcher->reader().size() - 1;
    if (!m_objectCount)
        m_objectCount = static_cast<int>(m_pdf->getXRefTable().size());
    return *m_objectCount;
}

QPDFObjectHandle Document::makeIndirect(const QPDFObjectHandle& object)
{
    QPDFObjectHandle made = m_pdf->makeIndirectObject(object);
    if (m_fetcher)
        m_fetcher->noteNew(made.getObjGen());
    return made;
}

QPDFObjectHandle Document::trailerKey(const std::string& key)
{
    return this->key(m_pdf->getTrailer(), key);
}

void Document::setTrailerKey(const std::string& key, const QPDFObjectHandle& value)
{
    m_changes.setTrailerKey(*m_pdf, key, fetched(value)); // what is not fetched would count as null
}

void Document::setCatalogKey(const std::string& key, const QPDFObjectHandle& value)
{
    m_catalog.replaceKey(key, value);
    markCatalogChanged();
}

void Document::markChanged(const QPDFObjectHandle& object)
{
    if (!object.isIndirect())
        throw std::logic_error("a direct object is marked as changed");
    m_changes.noteObject(object.getObjGen());
}

CrossReference Document::crossReference()
{
    if (m_fetcher)
        return CrossReference(*m_pdf, m_fetcher->reader().newestSection(), m_fetcher->reader().size());
    return CrossReference(*m_pdf, m_source);
}

const ReadingTrouble& Document::trouble()
{
    m_trouble.collect(*m_pdf);
    return m_trouble;
}

void Document::requireAllRead()
{
    if (trouble().memoryWasShort())
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
