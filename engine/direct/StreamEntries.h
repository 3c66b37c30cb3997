#pragma once

#include "ObjectPlace.h"
#include "StreamDecoder.h"
#include "engine/syntax/ObjectReader.h"
#include "engine/syntax/SectionReader.h"

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace engine {

/// The entries of a cross-reference stream. Those of a large one are decoded up to the one that is asked for.
class StreamEntries
{
public:
    /// \param stream may go afterwards.
    /// \returns null for a stream that is the least unusual; of a large one that shows only as far as it is
    ///     looked at.
    static std::unique_ptr<StreamEntries> read(const ObjectReader::Stream& stream);

    /// The object numbers that it has entries for; the offsets lead into what is decoded.
    const std::vector<Section::Run>& runs() const { return m_runs; }
    /// In bytes, decoded.
    std::size_t size() const { return m_size; }
    bool isLarge() const;

    /// \param run one of runs(), which has an entry for `number`. \returns nothing when that entry is odd.
    std::optional<ObjectPlace> find(const Section::Run& run, int number);

private:
    bool readWidths(std::string_view widths);
    bool readRuns(const DictionaryEntries& entries);
    bool isSound();
    bool hasGoodKinds() const;
    std::size_t entrySize() const
    {
        const auto size = [this](std::size_t field) { return static_cast<std::size_t>(m_widths[field]); };
        return size(0) + size(1) + size(2);
    }

    std::string m_data; // as it is stored
    std::unique_ptr<StreamDecoder> m_decoder;
    std::vector<Section::Run> m_runs;
    std::array<int, 3> m_widths = {};
    std::size_t m_size = 0;
};

} // namespace engine
