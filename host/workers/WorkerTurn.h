#pragma once

#include <sys/mman.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <new>

namespace host {

/// Tells the program and a worker, in memory that they share, which piece the worker begins next. The pieces
/// that it was given count from 0.
///
/// Throws std::bad_alloc when there is no such memory.
class WorkerTurn
{
public:
    WorkerTurn()
        : m_next(static_cast<Next*>(
              mmap(nullptr, sizeof(Next), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
    {
        if (m_next == MAP_FAILED)
            throw std::bad_alloc();
    }
    ~WorkerTurn() { munmap(m_next, sizeof(Next)); }
    WorkerTurn(const WorkerTurn&) = delete;
    WorkerTurn& operator=(const WorkerTurn&) = delete;

    void reset() { *m_next = 0; }

    /// \returns false when the piece has been taken back.
    bool begin(std::uint64_t piece) { return m_next->compare_exchange_strong(piece, piece + 1); }

    bool hasBegun(std::uint64_t piece) const { return *m_next > piece; }

    /// Leaves the worker only what it has begun. \param answered,given how many pieces were.
    /// \returns how many it has begun. A worker in which a document has written at random tells anything, so
    /// it is taken for no less than what was answered and no more than what was given.
    std::uint64_t takeBack(std::uint64_t answered, std::uint64_t given)
    {
        return std::clamp(m_next->exchange(given), answered, given);
    }

private:
    using Next = std::atomic<std::uint64_t>;
    static_assert(Next::is_always_lock_free);

    Next* m_next;
};

} // namespace host
