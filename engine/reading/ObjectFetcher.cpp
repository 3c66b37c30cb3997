#include "ObjectFetcher.h"

#include "engine/direct/DirectReader.h"
#include "engine/files/ByteSource.h"
#include "engine/syntax/ObjectParser.h"
#include "engine/syntax/SyntaxScanner.h"

#include <qpdf/QPDFExc.hh>

#include <stdexcept>

namespace engine {

namespace {

const std::string_view kidsKey = "/Kids";

struct NodeText
{
    std::string withoutKids;
    std::shared_ptr<const KidList> kids;
};

/// Splits a node's text. \returns nothing for what is no node, or has kids that are no references, and for
/// some that are unusual.
std::optional<NodeText> splitNode(std::string_view text)
{
    const std::size_t key = text.find(kidsKey);
    const std::size_t array = key == text.npos ? key : text.find('[', key);
    auto kids = array == text.npos ? nullptr : KidList::read(text.substr(array));
    if (!kids)
        return std::nullopt;
    // What is left shows whether that was an entry of the dictionary, and the only one of its key.
    const std::string_view placeholder = " 0 ";
    std::string rest = std::string(text.substr(0, array)).append(placeholder);
    rest += text.substr(array + kids->length());
    DictionaryScanner scanner(rest);
    const char* value = nullptr;
    while (const auto entry = scanner.next()) {
        if (entry->key != kidsKey.substr(1))
            continue;
        if (value != nullptr || entry->value.size() != 1)
            return std::nullopt;
        value = entry->value.data();
    }
    if (scanner.odd() || value != rest.data() + array + 1)
        return std::nullopt;
    return NodeText{rest.erase(key, array + placeholder.size() - key), std::move(kids)};
}

} // namespace

ObjectFetcher::ObjectFetcher(std::unique_ptr<DirectReader> reader, std::string skeleton)
    : m_reader(std::move(reader)), m_skeleton(std::move(skeleton)), m_pdf(QPDF::create())
{
    m_pdf->setSuppressWarnings(true);
}

ObjectFetcher::~ObjectFetcher() = default;

std::unique_ptr<ObjectFetcher> ObjectFetcher::open(const std::shared_ptr<ByteSource>& source,
                                                   const std::string& fileName)
{
    auto reader = DirectReader::open(source);
    const bool numbersLeft = reader && reader->size() <= largestObjectNumber; // new ones follow the size
    auto skeleton = numbersLeft ? reader->skeleton() : std::nullopt;
    if (!skeleton)
        return nullptr;
    std::unique_ptr<ObjectFetcher> fetcher(new ObjectFetcher(std::move(reader), std::move(*skeleton)));
    try {
        const std::string& bytes = fetcher->m_skeleton;
        fetcher->m_pdf->processMemoryFile(fileName.c_str(), bytes.data(), bytes.size());
        fetcher->fetch(fetcher->m_pdf->getRoot());
        return fetcher;
    } catch (const QPDFExc&) {
    } catch (const DirectReadingEnded&) {
    }
    return nullptr;
}

std::string_view ObjectFetcher::textOf(QPDFObjGen id)
{
    const auto text = m_reader->object(id.getObj(), id.getGen());
    if (!text)
        throw DirectReadingEnded();
    m_lookedAt.push_back(id);
    return *text;
}

void ObjectFetcher::put(QPDFObjGen id, std::string_view text)
{
    try {
        m_pdf->replaceObject(id, parseObject(*m_pdf, text));
    } catch (const std::runtime_error&) { // libqpdf's own, and from numbers that are too large
        throw DirectReadingEnded();
    }
    if (m_pdf->anyWarnings())
        throw DirectReadingEnded();
}

void ObjectFetcher::fetch(QPDFObjectHandle object)
{
    if (object.isIndirect() && m_fetched.insert(object.getObjGen()).second)
        put(object.getObjGen(), textOf(object.getObjGen()));
}

void ObjectFetcher::fetchNode(QPDFObjectHandle object)
{
    const QPDFObjGen id = object.getObjGen();
    if (!object.isIndirect() || isKnown(id))
        return;
    const std::string_view text = textOf(id);
    auto split = splitNode(text);
    put(id, split ? split->withoutKids : text);
    if (split)
        m_kids.emplace(id, std::move(split->kids));
    else
        m_fetched.insert(id);
}

std::shared_ptr<const KidList> ObjectFetcher::kidsOf(QPDFObjGen id) const
{
    const auto known = m_kids.find(id);
    return known == m_kids.end() ? nullptr : known->second;
}

std::optional<std::string_view> ObjectFetcher::unread(QPDFObjGen id)
{
    if (!id.isIndirect() || isKnown(id))
        return std::nullopt;
    const auto text = m_reader->object(id.getObj(), id.getGen());
    if (text)
        m_lookedAt.push_back(id);
    return text;
}

} // namespace engine
