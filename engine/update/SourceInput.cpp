#include "SourceInput.h"

#include "DocumentTail.h"
#include "engine/files/ByteSource.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace engine {

namespace {

// In bytes that libqpdf reads. Dense documents need up to 10 for each of theirs, those made to keep it busy
// hundreds: a rebuild parses from every "trailer" as far as it gets, with a warning at each oddity.
const std::uint64_t leastBudget = 4 << 20;
const std::uint64_t budgetPerByte = 32;
const std::size_t workOfSeek = 16; // tokens, warnings and lines cost one each

} // namespace

SourceInput::SourceInput(std::shared_ptr<const ByteSource> source, std::string name)
    : m_source(std::move(source)), m_name(std::move(name)),
      m_end(static_cast<qpdf_offset_t>(documentEnd(*m_source))),
      m_budget(leastBudget + budgetPerByte * m_source->size())
{}

void SourceInput::spend(std::size_t work)
{
    if (work > m_budget)
        throw WorkBudgetSpent();
    m_budget -= work;
}

void SourceInput::seek(qpdf_offset_t offset, int whence)
{
    spend(workOfSeek);
    const qpdf_offset_t base = whence == SEEK_SET ? 0 : whence == SEEK_END ? m_end : m_position;
    if (offset > std::numeric_limits<qpdf_offset_t>::max() - base || base + offset < 0)
        throw std::runtime_error(m_name + ": seek outside the document");
    m_position = base + offset;
}

std::size_t SourceInput::available(std::size_t size) const
{
    if (m_position >= m_end)
        return 0;
    return std::min(size, static_cast<std::size_t>(m_end - m_position));
}

bool SourceInput::windowHolds(qpdf_offset_t position) const
{
    return position >= m_windowStart && position < m_windowStart + static_cast<qpdf_offset_t>(m_windowSize);
}

void SourceInput::moveWindow()
{
    // Parsers step back a little, so the window begins before the position.
    m_windowSize = 0;
    m_windowStart = m_position - m_position % 512;
    const auto size = std::min(static_cast<qpdf_offset_t>(m_window.size()), m_end - m_windowStart);
    m_windowSize = m_source->read(static_cast<std::uint64_t>(m_windowStart), m_window.data(),
                                  static_cast<std::size_t>(size));
}

std::size_t SourceInput::read(char* into, std::size_t size)
{
    // At the end libqpdf expects the position to be the end, even after a seek past it.
    if (size > 0 && m_position >= m_end)
        m_position = m_end;
    last_offset = m_position;
    size = available(size);
    spend(size);
    if (size > m_window.size()) {
        size = m_source->read(static_cast<std::uint64_t>(m_position), into, size);
        m_position += static_cast<qpdf_offset_t>(size);
        return size;
    }
    std::size_t done = 0;
    while (done < size) {
        if (!windowHolds(m_position))
            moveWindow();
        if (!windowHolds(m_position)) // the file became shorter
            break;
        const std::size_t start = static_cast<std::size_t>(m_position - m_windowStart);
        const std::size_t part = std::min(size - done, m_windowSize - start);
        std::memcpy(into + done, m_window.data() + start, part);
        done += part;
        m_position += static_cast<qpdf_offset_t>(part);
    }
    return done;
}

void SourceInput::unreadCh(char)
{
    m_position = std::max<qpdf_offset_t>(m_position - 1, 0);
}

bool SourceInput::peek(char& character)
{
    if (m_position >= m_end)
        return false;
    if (!windowHolds(m_position))
        moveWindow();
    if (!windowHolds(m_position)) // the file became shorter
        return false;
    character = m_window[static_cast<std::size_t>(m_position - m_windowStart)];
    return true;
}

qpdf_offset_t SourceInput::findAndSkipNextEOL()
{
    const auto isLineEnd = [](char character) { return character == '\r' || character == '\n'; };
    m_position = std::min(m_position, m_end);
    char character = 0;
    while (peek(character)) {
        char* const end = m_window.data() + m_windowSize;
        char* const found = std::find_if(m_window.data() + (m_position - m_windowStart), end, isLineEnd);
        m_position = m_windowStart + (found - m_window.data());
        if (found != end)
            break;
    }
    // The end, even if the file became shorter: libqpdf looks for lines up to it.
    if (!windowHolds(m_position))
        m_position = m_end;
    const qpdf_offset_t lineEnd = m_position;
    while (peek(character) && isLineEnd(character))
        ++m_position;
    return lineEnd;
}

} // namespace engine
