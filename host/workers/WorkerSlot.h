#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// What a worker tells the program, in memory that they share: the piece it is at, a note about it, and its
/// answers. All of it outlives the worker, so that nothing it has told is lost with it.
///
/// A worker with corrupted memory may have written anything, so what the program reads is clamped.
class WorkerSlot
{
public:
    static constexpr std::size_t largestAnswer = 512 << 10;
    static constexpr std::size_t largestNote = 8 << 10;

    static constexpr std::uint64_t none = UINT64_MAX;

    enum Kind : std::uint64_t { Answered, Lost, Again };
    struct Answer
    {
        std::uint64_t piece;
        Kind kind;
        std::string text;
    };

    // For the worker:

    /// From now on it is at this piece, and has noted nothing about it.
    void begin(std::uint64_t piece);
    /// What the program is to know about the piece if the worker ends before it answers. Throws
    /// std::length_error when it is longer than `largestNote`.
    void note(std::string_view bytes);
    /// Ends the piece, or with Again leaves it for later. Waits while the program has not taken
    /// earlier answers and there is no room; what is longer than `largestAnswer` is cut off. \returns
    /// whether the program may be waiting for it.
    bool answer(Kind kind, std::string_view text);
    /// The process ends because it made a system call that it must not make.
    void outside(int call) { m_outside = static_cast<std::uint64_t>(call); }

    // For the program:

    /// The piece that the worker has begun last, or `none`.
    std::uint64_t piece() const { return m_begun; }
    /// What it noted about that one; empty for nothing.
    std::string noted() const;
    /// The system call that ended it, if one did.
    std::optional<int> outsideCall() const;
    /// Takes the next answer, in the order in which they were given.
    std::optional<Answer> takeAnswer();

private:
    struct Header
    {
        std::uint64_t piece;
        std::uint64_t kind;
        std::uint64_t size;
    };
    using Number = std::atomic<std::uint64_t>;
    static_assert(Number::is_always_lock_free);
    static constexpr std::size_t capacity = largestAnswer * 2;

    void copyIn(std::uint64_t at, const void* bytes, std::size_t size);
    void copyOut(std::uint64_t at, void* bytes, std::size_t size) const;

    Number m_begun{none};
    Number m_noteSize{0};
    Number m_outside{none};
    // A ring of answers; both numbers count all bytes since the beginning.
    Number m_written{0};
    Number m_taken{0};
    std::array<char, largestNote> m_note;
    std::array<char, capacity> m_answers; // not filled, so that memory is taken only as it is used
};

} // namespace host
