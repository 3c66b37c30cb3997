#pragma once

#include "engine/syntax/SyntaxScanner.h"

#include <zlib.h>

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace engine {

/// No stream gives more than this.
inline constexpr std::size_t largestDecoded = 64 << 20;

/// Decodes the data of a cross-reference or object stream as far as that is asked for: what lies behind is
/// not looked at, so that it costs nothing.
class StreamDecoder
{
public:
    /// \param dictionary the stream's.
    /// \param data as it is stored; must outlive the decoder.
    /// \returns null for filters and predictors that such streams do not use, and where no data can follow.
    static std::unique_ptr<StreamDecoder> create(const DictionaryEntries& dictionary, std::string_view data);
    ~StreamDecoder();
    StreamDecoder(const StreamDecoder&) = delete;
    StreamDecoder& operator=(const StreamDecoder&) = delete;

    /// Decodes on up to `size` bytes or the end of the data. \returns false for damaged data.
    bool reach(std::size_t size);
    bool atEnd() const { return m_atEnd; }
    /// At the end: whether the data is what its checksum says, which takes a quarter of the time of decoding.
    bool hasRightChecksum() const;

    /// What was decoded so far.
    const std::string& text() const { return m_columns == 0 ? m_stored : m_plain; }
    std::string takeText() { return std::move(m_columns == 0 ? m_stored : m_plain); }

private:
    explicit StreamDecoder(std::string_view data) : m_data(data) {}

    bool readParameters(std::string_view parameters);
    bool beginInflating();
    bool inflateTo(std::size_t size);
    bool undoPredictor();

    static constexpr std::size_t widestRow = 64; // of a predictor

    std::string_view m_data;
    std::string m_stored; // decoded, with the predictor's bytes
    std::string m_plain;  // without them, where there is a predictor
    z_stream m_stream{};
    bool m_inflates = false;
    bool m_atEnd = false;
    std::size_t m_columns = 0; // of a predictor, 0 for none
    std::array<unsigned char, widestRow> m_above{};
};

/// All in one: the first `most` bytes of a stream, or all if it has no more.
/// \returns nothing where a decoder has to give up, for a wrong checksum too.
std::optional<std::string> decodedStream(const DictionaryEntries& dictionary, std::string_view data,
                                         std::size_t most);

} // namespace engine
