#include "StreamDecoder.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace engine {

namespace {

const std::size_t widestRow = 64; // of a predictor

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

bool isChecksumOf(std::string_view decoded, std::string_view checksum)
{
    const uLong sum = adler32(adler32(0, nullptr, 0), reinterpret_cast<const Bytef*>(decoded.data()),
                              static_cast<uInt>(decoded.size()));
    if (checksum.size() < zlibChecksum)
        return false;
    uLong stated = 0;
    for (const char byte : checksum.substr(0, zlibChecksum))
        stated = stated << 8 | static_cast<unsigned char>(byte);
    return stated == sum;
}

/// Decodes up to `most` bytes; what follows them is not looked at.
std::optional<std::string> inflated(std::string_view data, std::size_t most)
{
    z_stream stream{};
    if (!isZlibHeader(data) || inflateInit2(&stream, -MAX_WBITS) != Z_OK)
        return std::nullopt;
    data.remove_prefix(zlibHeader);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    stream.avail_in = static_cast<uInt>(data.size());
    std::string decoded;
    int result = Z_OK;
    while (result == Z_OK && decoded.size() < most) {
        const std::size_t done = decoded.size();
        decoded.resize(std::min(most, std::max(2 * done, 4 * data.size() + 64)));
        stream.next_out = reinterpret_cast<Bytef*>(decoded.data() + done);
        stream.avail_out = static_cast<uInt>(decoded.size() - done);
        result = inflate(&stream, Z_NO_FLUSH);
        decoded.resize(decoded.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    const bool full = result == Z_OK && decoded.size() == most;
    const bool whole =
        result == Z_STREAM_END && isChecksumOf(decoded, data.substr(data.size() - stream.avail_in));
    return full || whole ? std::optional(std::move(decoded)) : std::nullopt;
}

/// Undoes the "Up" predictor of PNG, the only one that writers of cross-reference streams use besides none.
std::optional<std::string> withoutPredictor(const std::string& data, std::size_t columns)
{
    const std::size_t row = columns + 1;
    if (columns == 0 || columns > widestRow || data.size() % row != 0)
        return std::nullopt;
    std::string plain(data.size() / row * columns, '\0');
    std::array<unsigned char, widestRow> values{};
    const char* from = data.data();
    for (char* to = plain.data(); to < plain.data() + plain.size(); to += columns) {
        const char kind = *from++;
        if (kind != 0 && kind != 2)
            return std::nullopt;
        const unsigned char keep = kind == 2 ? 0xff : 0; // of the row above
        for (std::size_t column = 0; column < columns; ++column) {
            values[column] =
                static_cast<unsigned char>((values[column] & keep) + static_cast<unsigned char>(*from++));
            to[column] = static_cast<char>(values[column]);
        }
    }
    return plain;
}

std::optional<std::string> unpredicted(std::string data, std::string_view parameters)
{
    const auto entries = dictionaryEntries(parameters);
    if (!entries)
        return std::nullopt;
    const auto value = [&](std::string_view key, std::int64_t otherwise) {
        const auto found = entries->find(key);
        return found == entries->end() ? std::optional(otherwise) : wholeInteger(found->second);
    };
    const auto predictor = value("Predictor", 1);
    const auto columns = value("Columns", 1);
    if (value("Colors", 1) != 1 || value("BitsPerComponent", 8) != 8 || !predictor || !columns)
        return std::nullopt;
    if (*predictor == 1)
        return data;
    return *predictor >= 10 && *predictor <= 15 ? withoutPredictor(data, static_cast<std::size_t>(*columns))
                                                : std::nullopt;
}

} // namespace

std::optional<std::string> decodedStream(const DictionaryEntries& dictionary, std::string_view data,
                                         std::size_t most)
{
    const auto filter = dictionary.find("Filter");
    const auto parameters = dictionary.find("DecodeParms");
    if (filter == dictionary.end())
        return parameters == dictionary.end() ? std::optional(std::string(data.substr(0, most)))
                                              : std::nullopt;
    if (filter->second != "/FlateDecode")
        return std::nullopt;
    if (parameters == dictionary.end())
        return inflated(data, most);
    auto plain = inflated(data, largestDecoded);
    return plain ? unpredicted(std::move(*plain), parameters->second) : plain;
}

} // namespace engine
