#pragma once

#include "host/files/FileDescriptor.h"

#include <sys/types.h>

#include <chrono>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace host {

class StopSignal;
class WorkerTurn;

/// What a worker process does.
class Worker
{
public:
    struct Answer
    {
        std::string record;
        /// The worker is not fit for further work, and a fresh one takes its place.
        bool last = false;
    };

    virtual ~Worker() = default;
    virtual Answer answer(const std::string& record) = 0;
};

/// How a piece of work ended.
struct WorkOutcome
{
    enum Kind { Answered, Lost, Stopped };
    Kind kind;
    /// The worker's answer, or the reason why there is none.
    std::string text;
};

/// Spreads work over processes that are copies of this one. Each works at one piece at a time and, so that it
/// never waits, has been given the next one meanwhile, or some if they are small; what it has not begun can
/// be taken back. A worker that crashes, takes too long or too much memory costs the piece it was at; a fresh
/// one goes on.
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
    using WorkOf = std::function<std::string(std::size_t)>;
    using Done = std::function<void(std::size_t, const WorkOutcome&)>;

    WorkerPool(Limits limits, MakeWorker makeWorker);
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    /// Has pieces 0 to count - 1 done and tells of each as it ends. After a stop signal no piece is begun;
    /// those in work are waited for a few seconds, or not at all after a second signal, and then end as
    /// Stopped.
    void run(std::size_t count, const WorkOf& workOf, const Done& done, StopSignal& stop);

private:
    using Clock = std::chrono::steady_clock;
    struct Process;

    void giveWork(const WorkOf& workOf, const Done& done);
    void giveWorkAhead(const WorkOf& workOf);
    bool canShare() const;
    void share();
    void takeBack(Process& process);
    std::size_t piecesLeft() const { return m_returned.size() + m_count - m_next; }
    std::size_t nextPiece() const { return m_returned.empty() ? m_next : m_returned.front(); }
    void takeNextPiece();
    Process* idleProcess();
    bool give(Process& process, const std::string& record);
    bool start(Process& process);
    [[noreturn]] void serve(int channel, WorkerTurn& turn, pid_t parent);
    void waitForNews(const Done& done, StopSignal& stop);
    void receive(Process& process, const Done& done);
    bool takeAnswers(Process& process, const Done& done);
    void pieceEnded(Process& process, const Done& done, const WorkOutcome& outcome);
    void setDeadline(Process& process) const;
    std::string end(Process& process);
    void endAndLose(Process& process, const Done& done, WorkOutcome::Kind kind, const std::string& reason);
    void endOverdue(const Done& done);
    void endStopped(const Done& done);
    bool anyBusy() const;
    int millisecondsToNextDeadline() const;

    Limits m_limits;
    MakeWorker m_makeWorker;
    std::vector<Process> m_processes;
    std::size_t m_count = 0;
    std::size_t m_next = 0;
    std::deque<std::size_t> m_returned; // were given to workers that ended before they came to them
    int m_stopSignals = 0;
    Clock::time_point m_stopDeadline;
};

} // namespace host
