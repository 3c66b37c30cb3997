#include "FileWindows.h"

#include <algorithm>

namespace engine {

namespace {

const std::size_t mostReadAhead = 262144;
const std::int64_t pageSize = 4096; // of the kernel's page cache

} // namespace

std::string_view FileWindows::bytes(std::int64_t offset, std::size_t count)
{
    if (offset < 0 || offset >= size())
        return {};
    count = std::min(count, static_cast<std::size_t>(size() - offset));
    for (const Window& window : m_windows) {
        const std::int64_t skipped = offset - window.offset;
        if (skipped >= 0 && static_cast<std::size_t>(skipped) + count <= window.size)
            return window.text().substr(static_cast<std::size_t>(skipped), count);
    }
    Window& window = m_windows[m_oldest];
    m_oldest = (m_oldest + 1) % m_windows.size();
    fill(window, offset, count);
    const auto skipped = static_cast<std::size_t>(offset - window.offset);
    return window.text().substr(std::min(skipped, window.size), count);
}

void FileWindows::fill(Window& window, std::int64_t offset, std::size_t count)
{
    m_readAhead = nextReadAhead(offset);
    const std::int64_t start = windowFor(offset);
    const std::size_t wanted = std::max(static_cast<std::size_t>(offset - start) + count, m_readAhead);
    window.reserve(wanted);
    window.size = 0; // reading may throw
    window.size = m_source->read(static_cast<std::uint64_t>(start), window.bytes.get(), wanted);
    window.offset = start;
    m_lastEnd = start + static_cast<std::int64_t>(window.size);
}

/// Where a window that holds `offset` begins. Objects are often asked for backwards, so it begins at the page
/// boundary below, and at the end of the file it reaches back as far as is read at once.
std::int64_t FileWindows::windowFor(std::int64_t offset) const
{
    const std::int64_t lastWindow = size() - static_cast<std::int64_t>(readAtOnce);
    return std::min(offset - offset % pageSize, std::max<std::int64_t>(0, lastWindow));
}

/// Doubles as long as each read lies at most two windows behind the one before: objects that are used
/// together are often written in a row, with others between them.
std::size_t FileWindows::nextReadAhead(std::int64_t offset) const
{
    const std::int64_t gap = offset - m_lastEnd;
    const bool goesOn = gap >= 0 && gap <= static_cast<std::int64_t>(2 * m_readAhead);
    return goesOn ? std::min(2 * m_readAhead, mostReadAhead) : readAtOnce;
}

void FileWindows::Window::reserve(std::size_t count)
{
    if (capacity >= count)
        return;
    bytes = std::make_unique_for_overwrite<char[]>(count);
    capacity = count;
    size = 0;
}

} // namespace engine
