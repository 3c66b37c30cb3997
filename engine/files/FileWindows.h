#pragma once

#include "ByteSource.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace engine {

/// Reads a byte source here and there through a few windows: what was read lately is not read again, and
/// stretches that are asked for one after the other are read ahead.
class FileWindows
{
public:
    /// What is read at least.
    static constexpr std::size_t readAtOnce = 16384;

    explicit FileWindows(std::shared_ptr<const ByteSource> source) : m_source(std::move(source)) {}

    /// Size of the source in bytes.
    std::int64_t size() const { return static_cast<std::int64_t>(m_source->size()); }

    /// Up to `count` bytes from `offset` on, good until the next call; fewer only at the end, none outside
    /// the source. Throws EngineError with ReadFailed.
    std::string_view bytes(std::int64_t offset, std::size_t count);

private:
    struct Window
    {
        std::int64_t offset = 0;
        std::size_t size = 0;
        std::size_t capacity = 0;
        // Not a string: filling that with zeros first costs more than reading.
        std::unique_ptr<char[]> bytes;

        std::string_view text() const { return {bytes.get(), size}; }
        void reserve(std::size_t count);
    };

    std::int64_t windowFor(std::int64_t offset) const;
    std::size_t nextReadAhead(std::int64_t offset) const;
    void fill(Window& window, std::int64_t offset, std::size_t count);

    std::shared_ptr<const ByteSource> m_source;
    std::array<Window, 4> m_windows;
    std::size_t m_oldest = 0;
    std::size_t m_readAhead = 0; // how much was read ahead last
    std::int64_t m_lastEnd = -1; // where the last read ended
};

} // namespace engine
