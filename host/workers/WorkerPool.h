#pragma once

#include "SharedMemory.h"
#include "WorkerSlot.h"
#include "host/failures/Failure.h"

#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

class Cell;
class RunControl;

/// What a worker process does.
class Worker
{
public:
    struct Answer
    {
        std::string text;
        /// The worker is not fit for further work, and a fresh one takes its place.
        bool last = false;
        /// The cell keeps the worker from what the user may reach: once more, in a new one.
        bool again = false;
    };

    virtual ~Worker() = default;
    /// \param slot takes a note about the piece, which reaches the program even if the answer does not.
    virtual Answer answer(std::size_t piece, WorkerSlot& slot) = 0;
    /// The files that it has open when it begins, and needs.
    virtual std::vector<int> descriptors() const { return {}; }
};

/// How a piece of work ended.
struct WorkOutcome
{
    enum Kind { Answered, Lost, Stopped };
    Kind kind;
    std::string answer = {};
    Failure failure = {}; ///< Why there is no answer.
    /// What the worker had noted about a piece that it did not answer.
    std::string note = {};
};

/// Has pieces of work done by processes that are copies of this one. Each takes the next piece from a counter
/// in shared memory when it is ready for one, so nobody hands out work and no piece waits behind a long one.
/// A worker that crashes, takes too long or too much memory costs the piece it was at; a fresh one goes on.
///
/// The program must have no threads when it calls `run`.
class WorkerPool
{
public:
    struct Limits
    {
        int workers = 1;
        int timeoutSeconds = 60;
        /// What one worker may allocate.
        int memoryMiB = 1024;
    };
    /// Called in the new process. What it throws is the reason for which its first piece is lost.
    using MakeWorker = std::function<std::unique_ptr<Worker>()>;
    using Done = std::function<void(std::size_t, const WorkOutcome&)>;

    /// \param cell the workers are locked in there as soon as they are made; it must outlive the object.
    WorkerPool(Limits limits, MakeWorker makeWorker, Cell& cell);
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    /// Has pieces 0 to count - 1 done and tells of each as it ends. Once a stop is asked for no piece is begun;
    /// those in work are waited for a few seconds, or not at all when it is asked for again, and then end as
    /// Stopped. While it is paused no piece is begun either, and workers end that have none.
    void run(std::size_t count, const Done& done, RunControl& control);

private:
    using Clock = std::chrono::steady_clock;
    struct Process;

    void doRound(const Done& done, RunControl& control);
    void planNextRound();
    void heed(const RunControl& control);
    void endRound();
    std::size_t untaken() const;
    void startWorkers(const Done& done);
    bool start(Process& process);
    [[noreturn]] void serve(Process& process, int wakeUps, pid_t parent);
    std::unique_ptr<Worker> lockedInWorker(int wakeUps) const;
    void waitForNews(const Done& done, RunControl& control);
    void nap() const;
    void receive(Process& process, const Done& done);
    int takeAnswers(Process& process, const Done& done);
    bool isNews(std::uint64_t place);
    void pieceEnded(std::uint64_t place, const Done& done, const WorkOutcome& outcome);
    void end(Process& process, const Done& done, WorkOutcome::Kind kind, const Failure& why = {});
    void setDeadline(Process& process) const;
    void endOverdue(const Done& done);
    void endStopped(const Done& done);
    bool anyRunning() const;
    int millisecondsToNextDeadline() const;

    Limits m_limits;
    MakeWorker m_makeWorker;
    Cell& m_cell;
    std::vector<Process> m_processes;
    std::vector<bool> m_ended;
    /// The pieces of this round; workers take places in this list.
    std::vector<std::size_t> m_round;
    std::vector<bool> m_told; ///< Places of this round that a worker has answered, or left for later.
    SharedMemory<std::atomic<std::uint64_t>> m_next;
    /// While it is paused, the next place; workers then find none.
    std::optional<std::uint64_t> m_held;
    int m_fruitless = 0; ///< Workers in a row that ended at no piece.
    Clock::duration m_perPiece = Clock::duration::max();
    int m_stops = 0;
    Clock::time_point m_stopDeadline;
};

} // namespace host
