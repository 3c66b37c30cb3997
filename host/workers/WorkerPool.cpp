#include "WorkerPool.h"

#include "StopSignal.h"
#include "WorkerTurn.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <thread>

namespace host {

namespace {

const std::size_t largestRecord = 128 << 10;
const std::chrono::seconds stopGrace(5);
const int millisecondsToEnd = 2000;

// What a worker of small pieces has in reserve, so that it wakes nobody up for each: that would cost as much
// as the piece.
const std::size_t mostAhead = 8;
const std::chrono::microseconds smallPiece(1000);
const std::chrono::microseconds worthSleeping(50);

// How long others wait before they take over what a worker has in reserve.
const std::chrono::milliseconds patience(10);

// A deadline that is noticed so late has passed while this process was suspended or could not print, and so
// may the worker have been.
const std::chrono::seconds heldUp(1);

// The first byte of an answer.
const char fit = 'f';
const char wornOut = 'w';
const char notStarted = 'n';

#if defined(__SANITIZE_ADDRESS__)
const bool sanitized = true; // needs address space without bound, and tells what it found on standard error
#else
const bool sanitized = false;
#endif

/// \returns the length, 0 at the other side's end, -1 on failure. A record keeps its bounds on the way.
ssize_t receiveRecord(int channel, std::string& record, int flags)
{
    static std::array<char, largestRecord> buffer; // filling a string with zeros first would cost more
    ssize_t length = 0;
    do // a reset tells that the other side ended without reading on; what it had sent comes behind that
        length = recv(channel, buffer.data(), buffer.size(), flags);
    while (length < 0 && (errno == EINTR || errno == ECONNRESET));
    record.assign(buffer.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    return length;
}

bool sendRecord(int channel, const std::string& record, int flags = 0)
{
    ssize_t length = 0;
    do
        length = send(channel, record.data(), record.size(), MSG_NOSIGNAL | flags);
    while (length < 0 && errno == EINTR);
    return length == static_cast<ssize_t>(record.size());
}

void limitWorker(int memoryMiB)
{
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    if (sanitized)
        return;
    // Counts what the worker allocates, not the files and libraries that it maps.
    const auto bytes = static_cast<rlim_t>(memoryMiB) << 20;
    const rlimit memory{bytes, bytes};
    setrlimit(RLIMIT_DATA, &memory);
    // What a crash or a library prints would tear up the progress bar; the reason reaches the user otherwise.
    const FileDescriptor null(open("/dev/null", O_WRONLY | O_CLOEXEC));
    dup2(null.get(), STDERR_FILENO);
}

std::string describeEnd(int status)
{
    if (WIFSIGNALED(status))
        return "the worker process crashed on it: " + std::string(strsignal(WTERMSIG(status)));
    return "the worker process ended on it with status " + std::to_string(WEXITSTATUS(status));
}

} // namespace

struct WorkerPool::Process
{
    pid_t id = 0;
    FileDescriptor channel;
    WorkerTurn turn;
    std::uint64_t given = 0;        // pieces, since it was started
    std::deque<std::size_t> pieces; // the first one is in work
    Clock::time_point deadline;
    Clock::time_point news;                            // when its last answer came
    Clock::duration perPiece = Clock::duration::max(); // of late

    bool busy() const { return !pieces.empty(); }
    bool isAtFirst() const { return turn.hasBegun(given - pieces.size()); }
    /// The caller has sent it.
    void wasGiven(std::size_t piece)
    {
        pieces.push_back(piece);
        ++given;
    }
    /// How long it will not need anybody.
    Clock::duration reserve() const
    {
        return pieces.size() > 2 ? perPiece * static_cast<int>(pieces.size() - 2) : Clock::duration::zero();
    }
};

WorkerPool::WorkerPool(Limits limits, MakeWorker makeWorker)
    : m_limits(limits), m_makeWorker(std::move(makeWorker)),
      m_processes(static_cast<std::size_t>(limits.workers))
{}

WorkerPool::~WorkerPool()
{
    for (Process& process : m_processes)
        shutdown(process.channel.get(), SHUT_WR); // a worker takes this as the end of the run
    for (Process& process : m_processes)
        if (process.id != 0)
            end(process);
}

void WorkerPool::run(std::size_t count, const WorkOf& workOf, const Done& done, StopSignal& stop)
{
    m_count = count;
    m_next = 0;
    m_returned.clear();
    for (;;) {
        if (m_stopSignals == 0) {
            if (canShare())
                share();
            giveWork(workOf, done);
            giveWorkAhead(workOf);
        }
        if (!anyBusy())
            return;
        waitForNews(done, stop);
    }
}

void WorkerPool::giveWork(const WorkOf& workOf, const Done& done)
{
    while (piecesLeft() > 0) {
        Process* const process = idleProcess();
        if (process == nullptr)
            return;
        const std::size_t piece = nextPiece();
        if (give(*process, workOf(piece))) {
            process->wasGiven(piece);
            setDeadline(*process);
            process->news = Clock::now();
        } else if (anyBusy()) {
            return; // there cannot be as many workers as wanted: those that there are do the rest
        } else {
            done(piece, {WorkOutcome::Lost, "no worker process can be started: " + systemError(errno)});
        }
        takeNextPiece();
    }
}

/// One piece, and some more if they are small. The last ones are for whoever is ready first.
void WorkerPool::giveWorkAhead(const WorkOf& workOf)
{
    for (Process& process : m_processes) {
        const std::size_t wanted = 1 + (process.perPiece < smallPiece ? mostAhead : 1);
        while (process.busy() && process.pieces.size() < wanted && piecesLeft() > m_processes.size() &&
               sendRecord(process.channel.get(), workOf(nextPiece()), MSG_DONTWAIT)) {
            process.wasGiven(nextPiece());
            takeNextPiece();
        }
    }
}

/// Whether a worker has nothing to do while others have something in reserve.
bool WorkerPool::canShare() const
{
    const auto any = [this](auto property) {
        return std::any_of(m_processes.begin(), m_processes.end(), property);
    };
    return piecesLeft() == 0 && any([](const Process& process) { return !process.busy(); }) &&
           any([](const Process& process) { return process.pieces.size() > 1; });
}

/// A piece that takes long does not keep those behind it waiting for longer than need be.
void WorkerPool::share()
{
    for (Process& process : m_processes)
        if (process.pieces.size() > 1 && process.isAtFirst() && Clock::now() - process.news >= patience)
            takeBack(process);
}

/// What the worker has not begun.
void WorkerPool::takeBack(Process& process)
{
    const std::uint64_t answered = process.given - process.pieces.size();
    const std::uint64_t left = process.given - process.turn.takeBack(answered, process.given);
    const auto first = process.pieces.end() - static_cast<std::ptrdiff_t>(left);
    m_returned.insert(m_returned.end(), first, process.pieces.end());
    process.pieces.erase(first, process.pieces.end());
}

void WorkerPool::takeNextPiece()
{
    if (m_returned.empty())
        ++m_next;
    else
        m_returned.pop_front();
}

void WorkerPool::setDeadline(Process& process) const
{
    process.deadline = Clock::now() + std::chrono::seconds(m_limits.timeoutSeconds);
}

/// One that has been started already, if there is any.
WorkerPool::Process* WorkerPool::idleProcess()
{
    Process* idle = nullptr;
    for (Process& process : m_processes)
        if (!process.busy() && (idle == nullptr || (idle->id == 0 && process.id != 0)))
            idle = &process;
    return idle;
}

/// An idle worker may have ended since its last answer, so a second one is tried.
bool WorkerPool::give(Process& process, const std::string& record)
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (process.id == 0 && !start(process))
            return false;
        if (sendRecord(process.channel.get(), record))
            return true;
        const int problem = errno;
        end(process);
        errno = problem;
    }
    return false;
}

bool WorkerPool::start(Process& process)
{
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        return false;
    process.channel = FileDescriptor(ends[0]);
    FileDescriptor theirs(ends[1]);
    process.given = 0;
    process.turn.reset();
    const pid_t parent = getpid();
    process.id = fork();
    if (process.id == 0) {
        for (Process& other : m_processes)
            other.channel.close();
        serve(theirs.get(), process.turn, parent);
    }
    if (process.id > 0)
        return true;
    process.id = 0;
    process.channel.close();
    return false;
}

/// The life of a worker process.
void WorkerPool::serve(int channel, WorkerTurn& turn, pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(0);
    limitWorker(m_limits.memoryMiB);
    std::string record;
    try {
        std::unique_ptr<Worker> worker;
        bool last = false;
        for (std::uint64_t piece = 0; !last && receiveRecord(channel, record, 0) > 0; ++piece) {
            if (!turn.begin(piece))
                continue;
            // Not earlier: had this process ended before its first order was sent, nobody would learn why.
            if (!worker)
                worker = m_makeWorker();
            const Worker::Answer answer = worker->answer(record);
            if (answer.record.size() >= largestRecord)
                throw std::runtime_error("what there is to tell of it is longer than 128 KiB");
            last = !sendRecord(channel, (answer.last ? wornOut : fit) + answer.record) || answer.last;
        }
    } catch (const std::exception& error) {
        sendRecord(channel, notStarted + std::string(error.what()).substr(0, largestRecord / 2));
    }
    _exit(0);
}

void WorkerPool::waitForNews(const Done& done, StopSignal& stop)
{
    std::vector<pollfd> waiting; // no more than there are open descriptors: poll takes that for an error
    std::vector<Process*> busy;
    for (Process& process : m_processes)
        if (process.busy()) {
            busy.push_back(&process);
            waiting.push_back({process.channel.get(), POLLIN, 0});
        }
    waiting.push_back({stop.descriptor(), POLLIN, 0});
    Clock::duration reserve = smallPiece;
    for (const Process* process : busy)
        reserve = std::min(reserve, process->reserve());
    if (reserve > worthSleeping)
        std::this_thread::sleep_for(reserve);
    const int milliseconds = millisecondsToNextDeadline();
    poll(waiting.data(), waiting.size(),
         canShare() ? std::min(milliseconds, static_cast<int>(patience.count())) : milliseconds);

    for (std::size_t index = 0; index < busy.size(); ++index)
        if (waiting[index].revents != 0)
            receive(*busy[index], done);
    const int signals = waiting.back().revents != 0 ? stop.count() : m_stopSignals;
    if (m_stopSignals == 0 && signals > 0) {
        m_stopDeadline = Clock::now() + stopGrace;
        for (Process& process : m_processes)
            if (process.busy())
                takeBack(process);
    }
    m_stopSignals = signals;
    endOverdue(done);
    endStopped(done);
}

void WorkerPool::receive(Process& process, const Done& done)
{
    const std::size_t before = process.pieces.size();
    if (!takeAnswers(process, done)) {
        const std::string reason = end(process);
        pieceEnded(process, done, {WorkOutcome::Lost, reason});
    }
    const Clock::time_point now = Clock::now();
    if (process.id != 0 && process.pieces.size() < before)
        process.perPiece = (now - process.news) / static_cast<int>(before - process.pieces.size());
    process.news = now;
}

/// \returns false when the worker has ended and has not done all that it was given.
bool WorkerPool::takeAnswers(Process& process, const Done& done)
{
    std::string record;
    while (process.busy()) {
        const ssize_t length = receiveRecord(process.channel.get(), record, MSG_DONTWAIT);
        if (length <= 0)
            return length < 0 && errno == EAGAIN;
        const char state = record[0];
        record.erase(0, 1);
        if (state != fit)
            end(process);
        pieceEnded(process, done, {state == notStarted ? WorkOutcome::Lost : WorkOutcome::Answered, record});
    }
    return true;
}

/// The piece that was in work; when the worker has ended too, what it was given ahead is taken back.
void WorkerPool::pieceEnded(Process& process, const Done& done, const WorkOutcome& outcome)
{
    const std::size_t piece = process.pieces.front();
    process.pieces.pop_front();
    if (process.id == 0) {
        m_returned.insert(m_returned.end(), process.pieces.begin(), process.pieces.end());
        process.pieces.clear();
    }
    done(piece, outcome);
    setDeadline(process); // what took this program long is not the worker's
}

void WorkerPool::endAndLose(Process& process, const Done& done, WorkOutcome::Kind kind,
                            const std::string& reason)
{
    if (process.isAtFirst())
        takeBack(process); // so that it begins nothing between its last answer and its end
    kill(process.id, SIGKILL);
    pollfd waiting{process.channel.get(), 0, 0}; // tells when the other end is closed
    poll(&waiting, 1, millisecondsToEnd);
    takeAnswers(process, done); // what came at the last moment is done, and must not be done again
    if (process.id != 0)
        end(process);
    if (process.busy())
        pieceEnded(process, done, {kind, reason});
}

/// Waits for the end of a process that gets no more work. \returns how it ended.
std::string WorkerPool::end(Process& process)
{
    shutdown(process.channel.get(), SHUT_WR);
    pollfd waiting{process.channel.get(), 0, 0}; // tells when the other end is closed
    if (poll(&waiting, 1, millisecondsToEnd) <= 0)
        kill(process.id, SIGKILL);
    process.channel.close();
    int status = 0;
    waitpid(process.id, &status, 0);
    process.id = 0;
    return describeEnd(status);
}

void WorkerPool::endOverdue(const Done& done)
{
    const auto isOverdue = [](const Process& process) {
        return process.busy() && Clock::now() >= process.deadline;
    };
    for (Process& process : m_processes) {
        if (isOverdue(process)) // or its answers have waited while another one's were dealt with
            receive(process, done);
        if (!isOverdue(process))
            continue;
        if (Clock::now() - process.deadline >= heldUp)
            setDeadline(process);
        else
            endAndLose(process, done, WorkOutcome::Lost,
                       "it took longer than " + std::to_string(m_limits.timeoutSeconds) + " s");
    }
}

void WorkerPool::endStopped(const Done& done)
{
    if (m_stopSignals == 0 || (m_stopSignals == 1 && Clock::now() < m_stopDeadline))
        return;
    for (Process& process : m_processes)
        if (process.busy())
            endAndLose(process, done, WorkOutcome::Stopped, "stopped");
}

bool WorkerPool::anyBusy() const
{
    return std::any_of(m_processes.begin(), m_processes.end(),
                       [](const Process& process) { return process.busy(); });
}

int WorkerPool::millisecondsToNextDeadline() const
{
    Clock::time_point next = Clock::time_point::max();
    for (const Process& process : m_processes)
        if (process.busy())
            next = std::min(next, process.deadline);
    if (m_stopSignals > 0)
        next = std::min(next, m_stopDeadline);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(next - Clock::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, 1 << 30));
}

} // namespace host
