#include "StreamDecoder.h"

#include <algorithm>
#include <cstdint>

namespace engine {

namespace {

/// Bytes before and behind the data in zlib's format. Both are read here: zlib itself would compute the
/// checksum of data that is decoded in part as well, which costs a quarter of the decoding.
const std::size_t zlibHeader = 2;
const std::size_t zlibChecksum = 4;

bool isZlibHeader(std::string_view data)
{
    const auto byte = [data](std::size_t at) {
        return static_cast<unsigned>(static_cast<unsigned char>(data[at]));
    };
    const unsigned deflate = 8;
    return data.size() >= zlibHeader && (byte(0) & 0x0f) == deflate && (byte(0) >> 4) <= 7 &&
           (byte(0) << 8 | byte(1)) % 31 == 0 && (byte(1) & 0x20) == 0;
}

} // namespace

std::unique_ptr<StreamDecoder> StreamDecoder::create(const DictionaryEntries& dictionary,
                                                     std::string_view data)
{
    const auto filter = dictionary.find("Filter");
    const auto parameters = dictionary.find("DecodeParms");
    std::unique_ptr<StreamDecoder> decoder(new StreamDecoder(data));
    if (filter == dictionary.end())
        return parameters == dictionary.end() ? std::move(decoder) : nullptr;
    if (filter->second != "/FlateDecode")
        return nullptr;
    const bool known = parameters == dictionary.end() || decoder->readParameters(parameters->second);
    return known && decoder->beginInflating() ? std::move(decoder) : nullptr;
}

StreamDecoder::~StreamDecoder()
{
    if (m_inflates)
        inflateEnd(&m_stream);
}

/// Takes the predictor "Up" of PNG, the only one that writers of cross-reference streams use besides none.
bool StreamDecoder::readParameters(std::string_view parameters)
{
    const auto entries = dictionaryEntries(parameters);
    if (!entries)
        return false;
    const auto value = [&](std::string_view key, std::int64_t otherwise) {
        const auto found = entries->find(key);
        return found == entries->end() ? std::optional(otherwise) : wholeInteger(found->second);
    };
    const auto predictor = value("Predictor", 1);
    const auto columns = value("Columns", 1);
    if (value("Colors", 1) != 1 || value("BitsPerComponent", 8) != 8 || !predictor || !columns)
        return false;
    if (*predictor == 1)
        return true;
    m_columns = static_cast<std::size_t>(*columns);
    return *predictor >= 10 && *predictor <= 15 && m_columns >= 1 && m_columns <= widestRow;
}

bool StreamDecoder::beginInflating()
{
    m_inflates = isZlibHeader(m_data) && inflateInit2(&m_stream, -MAX_WBITS) == Z_OK;
    if (!m_inflates)
        return false;
    const std::string_view deflated = m_data.substr(zlibHeader);
    m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(deflated.data()));
    m_stream.avail_in = static_cast<uInt>(deflated.size());
    return true;
}

bool StreamDecoder::reach(std::size_t size)
{
    size = std::min(size, largestDecoded);
    if (text().size() >= size)
        return true;
    if (!m_inflates) {
        m_stored.append(m_data.substr(m_stored.size(), size - m_stored.size()));
        m_atEnd = m_stored.size() < size;
        return true;
    }
    if (m_columns == 0)
        return inflateTo(size);
    const std::size_t rows = (size + m_columns - 1) / m_columns;
    return inflateTo(rows * (m_columns + 1)) && undoPredictor();
}

bool StreamDecoder::inflateTo(std::size_t size)
{
    int result = Z_OK;
    while (result == Z_OK && !m_atEnd && m_stored.size() < size) {
        const std::size_t done = m_stored.size();
        m_stored.resize(std::min(size, std::max(2 * done, 4 * m_data.size() + 64)));
        m_stream.next_out = reinterpret_cast<Bytef*>(m_stored.data() + done);
        m_stream.avail_out = static_cast<uInt>(m_stored.size() - done);
        result = inflate(&m_stream, Z_NO_FLUSH);
        m_stored.resize(m_stored.size() - m_stream.avail_out);
        m_atEnd = result == Z_STREAM_END;
    }
    return result == Z_OK || m_atEnd;
}

/// For the rows that are decoded to their end by now.
bool StreamDecoder::undoPredictor()
{
    const std::size_t row = m_columns + 1;
    const std::size_t done = m_plain.size() / m_columns;
    const std::size_t rows = m_stored.size() / row;
    if (m_atEnd && m_stored.size() % row != 0)
        return false;
    m_plain.resize(rows * m_columns);
    const char* from = m_stored.data() + done * row;
    for (char* to = m_plain.data() + done * m_columns; to < m_plain.data() + m_plain.size();
         to += m_columns) {
        const char kind = *from++;
        if (kind != 0 && kind != 2)
            return false;
        const unsigned char keep = kind == 2 ? 0xff : 0; // of the row above
        for (std::size_t column = 0; column < m_columns; ++column) {
            m_above[column] =
                static_cast<unsigned char>((m_above[column] & keep) + static_cast<unsigned char>(*from++));
            to[column] = static_cast<char>(m_above[column]);
        }
    }
    return true;
}

bool StreamDecoder::hasRightChecksum() const
{
    if (!m_inflates)
        return true;
    const std::string_view checksum = m_data.substr(m_data.size() - m_stream.avail_in);
    if (checksum.size() < zlibChecksum)
        return false;
    uLong stated = 0;
    for (const char byte : checksum.substr(0, zlibChecksum))
        stated = stated << 8 | static_cast<unsigned char>(byte);
    return stated == adler32(adler32(0, nullptr, 0), reinterpret_cast<const Bytef*>(m_stored.data()),
                             static_cast<uInt>(m_stored.size()));
}

std::optional<std::string> decodedStream(const DictionaryEntries& dictionary, std::string_view data,
                                         std::size_t most)
{
    const auto decoder = StreamDecoder::create(dictionary, data);
    if (!decoder || !decoder->reach(most) || (decoder->atEnd() && !decoder->hasRightChecksum()))
        return std::nullopt;
    return decoder->takeText();
}

} // namespace engine
