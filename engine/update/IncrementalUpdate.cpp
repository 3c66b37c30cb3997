#include "IncrementalUpdate.h"

#include "StreamData.h"
#include "engine/files/EngineError.h"

#include <qpdf/QPDFCryptoProvider.hh>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace engine {

namespace {

constexpr std::uint64_t largestTableOffset = 9'999'999'999;
constexpr int headOfFreeObjects = 65535; // its generation

std::string bigEndian(std::uint64_t number, int bytes)
{
    std::string text(static_cast<std::size_t>(bytes), '\0');
    for (auto byte = text.rbegin(); byte != text.rend(); ++byte, number >>= 8)
        *byte = static_cast<char>(number & 0xff);
    return text;
}

int bytesFor(std::uint64_t number)
{
    int bytes = 1;
    while (number >>= 8)
        ++bytes;
    return bytes;
}

std::string digest(const std::string& text)
{
    const auto crypto = QPDFCryptoProvider::getImpl();
    QPDFCryptoImpl::MD5_Digest result;
    crypto->MD5_init();
    crypto->MD5_update(reinterpret_cast<const unsigned char*>(text.data()), text.size());
    crypto->MD5_finalize();
    crypto->MD5_digest(result);
    return std::string(reinterpret_cast<const char*>(result), sizeof(result));
}

// First number and length of each stretch of consecutive numbers.
template <class Entries>
std::vector<std::pair<int, int>> stretches(const Entries& entries)
{
    std::vector<std::pair<int, int>> result;
    for (const auto& [number, entry] : entries) {
        if (result.empty() || number != result.back().first + result.back().second)
            result.emplace_back(number, 0);
        ++result.back().second;
    }
    return result;
}

} // namespace

IncrementalUpdate::IncrementalUpdate(QPDF& pdf, const CrossReference& crossReference,
                                     const ByteSource& source, const std::set<QPDFObjGen>& changed,
                                     const TrailerEntries& trailer, std::optional<std::uint64_t> begin)
    : m_crossReference(crossReference), m_changedTrailer(trailer), m_cipher(pdf, Cipher::Use::Strings),
      m_serializer(&m_cipher), m_begin(begin.value_or(source.size()))
{
    if (changed.empty() && trailer.empty())
        throw EngineError(ErrorCode::NothingChanged);
    if (const char last = source.lastByte(); !begin && last != '\n' && last != '\r')
        m_lineEnd = "\n";
    m_begin += m_lineEnd.size();
    writeObjects(pdf, changed);
    addUnlistedObjects();
    if (m_crossReference.kind() == CrossReference::Kind::Table)
        writeTable();
    else
        writeStream();
}

void IncrementalUpdate::writeObjects(QPDF& pdf, const std::set<QPDFObjGen>& changed)
{
    for (const QPDFObjGen object : changed)
        writeObject(pdf, pdf.getObject(object));
    if (changed.empty()) // some readers take a section without entries for damage
        writeObject(pdf, pdf.getRoot());
    // Writing a new object may bring further references.
    std::size_t next = 0;
    while (next < m_serializer.references().size()) {
        const QPDFObjGen reference = m_serializer.references()[next++];
        if (reference.getObj() < m_crossReference.entryEnd() || m_written.contains(reference.getObj()))
            continue;
        QPDFObjectHandle object = pdf.getObject(reference);
        if (!object.isNull())
            writeObject(pdf, object);
    }
}

void IncrementalUpdate::writeObject(QPDF& pdf, QPDFObjectHandle object)
{
    const QPDFObjGen id = object.getObjGen();
    if (id.getObj() <= 0 ||
        !m_written.try_emplace(id.getObj(), ObjectOffset{nextOffset(), id.getGen()}).second)
        throw EngineError(ErrorCode::CannotAppend, "two changed objects have the same number");
    m_bytes += id.unparse(' ') + " obj\n" + textOf(pdf, object) + "\nendobj\n";
}

std::string IncrementalUpdate::textOf(QPDF& pdf, QPDFObjectHandle object)
{
    const QPDFObjGen id = object.getObjGen();
    if (!object.isStream())
        return m_serializer.write(object, id);
    const std::string data = storedStreamData(pdf, object);
    return m_serializer.write(streamDictionary(object, data.size()), id) + "\nstream\n" + data +
           "\nendstream";
}

void IncrementalUpdate::addUnlistedObjects()
{
    const auto& unlisted = m_crossReference.unlistedObjects();
    m_written.insert(unlisted.begin(), unlisted.end());
    if (!unlisted.empty())
        m_written.try_emplace(0, ObjectOffset{0, headOfFreeObjects}); // every first section has it
}

void IncrementalUpdate::writeTable()
{
    const std::uint64_t start = nextOffset();
    if (start > largestTableOffset)
        throw EngineError(ErrorCode::CannotAppend, "the offset does not fit a cross-reference table");
    const std::string trailer = ObjectSerializer().write(newTrailer(sizeWith(m_written.rbegin()->first)));
    m_bytes += "xref\n";
    for (const auto& [first, count] : stretches(m_written)) {
        m_bytes += std::to_string(first) + " " + std::to_string(count) + "\n";
        for (int number = first; number < first + count; ++number) {
            const ObjectOffset& object = m_written.at(number);
            char line[32];
            std::snprintf(line, sizeof(line), "%010llu %05d %c \n",
                          static_cast<unsigned long long>(object.offset), object.generation,
                          number == 0 ? 'f' : 'n');
            m_bytes += line;
        }
    }
    m_bytes += "trailer\n" + trailer;
    writeEnd(start);
}

void IncrementalUpdate::writeStream()
{
    const std::uint64_t start = nextOffset();
    const int free = m_crossReference.size() <= largestObjectNumber ? m_crossReference.size()
                                                                    : m_crossReference.entryEnd();
    const int number = std::max(free, m_written.rbegin()->first + 1);
    m_written.emplace(number, ObjectOffset{start, 0});
    const int offsetBytes = bytesFor(start);
    QPDFObjectHandle index = QPDFObjectHandle::newArray();
    std::string content;
    for (const auto& [first, count] : stretches(m_written)) {
        index.appendItem(QPDFObjectHandle::newInteger(first));
        index.appendItem(QPDFObjectHandle::newInteger(count));
    }
    for (const auto& [ignored, object] : m_written)
        content += bigEndian(1, 1) + bigEndian(object.offset, offsetBytes) +
                   bigEndian(static_cast<std::uint64_t>(object.generation), 2);
    auto dictionary = newTrailer(sizeWith(number));
    dictionary["/Type"] = QPDFObjectHandle::newName("/XRef");
    dictionary["/W"] = QPDFObjectHandle::parse("[1 " + std::to_string(offsetBytes) + " 2]");
    dictionary["/Index"] = index;
    dictionary["/Length"] = QPDFObjectHandle::newInteger(static_cast<long long>(content.size()));
    m_bytes += std::to_string(number) + " 0 obj\n" + ObjectSerializer().write(dictionary) + "\nstream\n" +
               content + "\nendstream\nendobj";
    writeEnd(start);
}

void IncrementalUpdate::writeEnd(std::uint64_t sectionOffset)
{
    m_bytes += "\nstartxref\n" + std::to_string(sectionOffset) + "\n%%EOF\n";
}

std::map<std::string, QPDFObjectHandle> IncrementalUpdate::newTrailer(int size) const
{
    auto trailer = QPDFObjectHandle(m_crossReference.trailer()).getDictAsMap();
    std::erase_if(trailer, [](const auto& entry) { return describesSection(entry.first.substr(1)); });
    for (auto [key, value] : m_changedTrailer) {
        if (!value.isIndirect() && value.isNull())
            trailer.erase(key);
        else
            trailer.insert_or_assign(key, value);
    }
    trailer["/Size"] = QPDFObjectHandle::newInteger(size);
    if (m_crossReference.unlistedObjects().empty())
        trailer["/Prev"] =
            QPDFObjectHandle::newInteger(static_cast<long long>(m_crossReference.newestOffset()));
    const QPDFObjectHandle identifier = nextIdentifier();
    if (!QPDFObjectHandle(identifier).isNull())
        trailer["/ID"] = identifier;
    return trailer;
}

// The second identifier stands for a revision. It is made from the bytes, so that the same edit of the same
// document always gives the same file.
QPDFObjectHandle IncrementalUpdate::nextIdentifier() const
{
    QPDFObjectHandle trailer = m_crossReference.trailer();
    QPDFObjectHandle old = trailer.getKey("/ID");
    if (trailer.hasKey("/Encrypt") || old.isIndirect() || !old.isArray() || old.getArrayNItems() != 2)
        return QPDFObjectHandle::newNull();
    QPDFObjectHandle first = old.getArrayItem(0);
    QPDFObjectHandle second = old.getArrayItem(1);
    if (!first.isString() || !second.isString())
        return QPDFObjectHandle::newNull();
    const std::string state = second.getStringValue() + std::to_string(m_begin) + m_bytes;
    return QPDFObjectHandle::newArray({first, QPDFObjectHandle::newString(digest(state))});
}

std::uint64_t IncrementalUpdate::nextOffset() const
{
    return m_begin + m_bytes.size() - m_crossReference.headerOffset();
}

int IncrementalUpdate::sizeWith(int objectNumber) const
{
    return std::max(m_crossReference.size(), objectNumber + 1);
}

} // namespace engine
