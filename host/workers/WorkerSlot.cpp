#include "WorkerSlot.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <thread>

namespace host {

namespace {

const std::chrono::milliseconds waitForRoom(1);

} // namespace

void WorkerSlot::begin(std::uint64_t piece)
{
    m_noteSize = 0;
    m_begun = piece;
}

void WorkerSlot::note(std::string_view bytes)
{
    if (bytes.size() > largestNote)
        throw std::length_error("what there is to note about it is too long");
    m_noteSize = 0; // while it is written, it is none
    std::memcpy(m_note.data(), bytes.data(), bytes.size());
    m_noteSize = bytes.size();
}

bool WorkerSlot::answer(Kind kind, std::string_view text)
{
    text = text.substr(0, largestAnswer);
    const Header header{m_begun, kind, text.size()};
    const std::uint64_t begin = m_written;
    const std::uint64_t end = begin + sizeof header + text.size();
    while (end - m_taken > capacity)
        std::this_thread::sleep_for(waitForRoom);
    copyIn(begin, &header, sizeof header);
    copyIn(begin + sizeof header, text.data(), text.size());
    m_written = end;
    return m_taken == begin; // else it has been woken up for an earlier one that it has not taken yet
}

std::string WorkerSlot::noted() const
{
    return {m_note.data(), std::min<std::size_t>(m_noteSize, largestNote)};
}

std::optional<int> WorkerSlot::outsideCall() const
{
    const std::uint64_t call = m_outside;
    return call == none ? std::nullopt : std::optional(static_cast<int>(call));
}

std::optional<WorkerSlot::Answer> WorkerSlot::takeAnswer()
{
    const std::uint64_t begin = m_taken;
    const std::uint64_t end = m_written;
    if (begin == end)
        return std::nullopt;
    Header header{};
    copyOut(begin, &header, sizeof header);
    if (end - begin > capacity || end - begin < sizeof header || header.size > end - begin - sizeof header) {
        m_taken = end; // corrupted
        return std::nullopt;
    }
    const Kind kind = header.kind == Answered ? Answered : header.kind == Again ? Again : Lost;
    Answer answer{header.piece, kind, std::string(header.size, '\0')};
    copyOut(begin + sizeof header, answer.text.data(), answer.text.size());
    m_taken = begin + sizeof header + answer.text.size();
    return answer;
}

void WorkerSlot::copyIn(std::uint64_t at, const void* bytes, std::size_t size)
{
    if (size == 0)
        return; // no text has no place in memory
    const std::size_t place = at % capacity;
    const std::size_t first = std::min(size, capacity - place);
    std::memcpy(&m_answers[place], bytes, first);
    std::memcpy(m_answers.data(), static_cast<const char*>(bytes) + first, size - first);
}

void WorkerSlot::copyOut(std::uint64_t at, void* bytes, std::size_t size) const
{
    const std::size_t place = at % capacity;
    const std::size_t first = std::min(size, capacity - place);
    std::memcpy(bytes, &m_answers[place], first);
    std::memcpy(static_cast<char*>(bytes) + first, m_answers.data(), size - first);
}

} // namespace host
