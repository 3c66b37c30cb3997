#include "Metadata.h"

#include "Document.h"
#include "engine/files/EngineError.h"
#include "pdflibrary/FileNameCodec.h"

#include <qpdf/Pipeline.hh>
#include <qpdf/QUtil.hh>

#include <algorithm>

namespace engine {

namespace {

[[noreturn]] void refuse(const char* why)
{
    throw EngineError(ErrorCode::MetadataUnreadable, why);
}

/// Takes no more than a packet may have.
class PacketBytes : public Pipeline
{
public:
    PacketBytes() : Pipeline("metadata", nullptr) {}

    void write(const unsigned char* data, std::size_t size) override
    {
        if (size > Metadata::largest - m_bytes.size())
            throw std::runtime_error("too large"); // libqpdf stops decoding
        m_bytes.append(reinterpret_cast<const char*>(data), size);
    }
    void finish() override {}

    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// How a packet is stored: its byte order mark, and the bytes of a character.
struct Encoding
{
    std::string_view mark;
    bool is16Bit;
    bool isLittleEndian;
};

constexpr std::string_view littleEndianMark = "\xff\xfe";
constexpr std::string_view bigEndianMark = "\xfe\xff";
constexpr std::string_view utf8Mark = "\xef\xbb\xbf";

Encoding encodingOf(std::string_view bytes)
{
    if (bytes.starts_with(littleEndianMark))
        return {littleEndianMark, true, true};
    if (bytes.starts_with(bigEndianMark))
        return {bigEndianMark, true, false};
    if (bytes.starts_with(utf8Mark))
        return {utf8Mark, false, false};
    return {{},
            bytes.size() >= 2 && (bytes[0] == '\0' || bytes[1] == '\0'),
            bytes.size() >= 2 && bytes[1] == '\0'};
}

void swapBytes(std::string& bytes)
{
    for (std::size_t index = 0; index + 1 < bytes.size(); index += 2)
        std::swap(bytes[index], bytes[index + 1]);
}

std::string encoded(std::wstring_view packet, const Encoding& encoding)
{
    std::string bytes = fileNameFromWide(std::wstring(packet));
    if (encoding.is16Bit) {
        bytes = QUtil::utf8_to_utf16(bytes).substr(bigEndianMark.size());
        if (encoding.isLittleEndian)
            swapBytes(bytes);
    }
    return std::string(encoding.mark) + bytes;
}

std::wstring decoded(const std::string& stored)
{
    const Encoding encoding = encodingOf(stored);
    std::string bytes = stored.substr(encoding.mark.size());
    if (encoding.is16Bit) {
        if (encoding.isLittleEndian)
            swapBytes(bytes);
        bytes = QUtil::utf16_to_utf8(std::string(bigEndianMark) + bytes);
    }
    std::wstring packet = wideFromFileName(bytes);
    const bool isText = std::none_of(packet.begin(), packet.end(), [](wchar_t character) {
        return character >= 0xd800 && character <= 0xdfff; // stands for a byte that is no text
    });
    if (!isText || encoded(packet, encoding) != stored)
        refuse("it is no text in UTF-8 or UTF-16");
    return packet;
}

/// The filter of a stream that is no longer compressed: none but /Crypt, which says how it is encrypted.
QPDFObjectHandle filterOfPlain(QPDFObjectHandle dictionary)
{
    const bool first =
        dictionary.getKey("/Filter").isNameAndEquals("/Crypt") ||
        (dictionary.getKey("/Filter").isArray() && dictionary.getKey("/Filter").getArrayNItems() > 0 &&
         dictionary.getKey("/Filter").getArrayItem(0).isNameAndEquals("/Crypt"));
    return first ? QPDFObjectHandle::newName("/Crypt") : QPDFObjectHandle::newNull();
}

QPDFObjectHandle parametersOfPlain(QPDFObjectHandle dictionary)
{
    QPDFObjectHandle parameters = dictionary.getKey("/DecodeParms");
    if (filterOfPlain(dictionary).isNull())
        return QPDFObjectHandle::newNull();
    return parameters.isArray() && parameters.getArrayNItems() > 0 ? parameters.getArrayItem(0) : parameters;
}

} // namespace

Metadata::Metadata(Document& document)
    : m_document(document), m_stream(document.key(document.catalog(), "/Metadata"))
{}

std::string Metadata::bytes() const
{
    QPDFObjectHandle stream = m_stream;
    if (stream.getDict().hasKey("/F"))
        refuse("it is in another file");
    m_document.anyWarnings(); // collects those so far: what comes from now on is about the data
    PacketBytes packet;
    bool decodes = false;
    const bool succeeded = stream.pipeStreamData(&packet, &decodes, 0, qpdf_dl_all);
    m_document.requireAllRead();
    if (!succeeded || !decodes || m_document.pdf().anyWarnings())
        refuse("its data cannot be decoded");
    return packet.bytes();
}

std::wstring Metadata::packet() const
{
    return QPDFObjectHandle(m_stream).isStream() ? decoded(bytes()) : std::wstring();
}

void Metadata::replace(std::wstring_view packet)
{
    if (packet.empty())
        return m_document.setCatalogKey("/Metadata", QPDFObjectHandle::newNull());
    if (m_stream.isStream())
        return fill(encoded(packet, encodingOf(bytes())));
    m_stream = QPDFObjectHandle::newStream(&m_document.pdf());
    m_stream.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
    m_stream.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
    fill(encoded(packet, {}));
    m_document.setCatalogKey("/Metadata", m_stream);
}

void Metadata::fill(const std::string& bytes)
{
    QPDFObjectHandle dictionary = m_stream.getDict();
    m_stream.replaceStreamData(bytes, filterOfPlain(dictionary), parametersOfPlain(dictionary));
    dictionary.removeKey("/DL"); // tells the length of data before it was compressed
    m_document.markChanged(m_stream);
}

} // namespace engine
