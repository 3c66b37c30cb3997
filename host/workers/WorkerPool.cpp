#include "WorkerPool.h"

#include "RunControl.h"
#include "WorkerVoice.h"

#include "host/cell/Cell.h"
#include "host/cell/ProcessLimits.h"
#include "host/cell/Sanitized.h"
#include "host/files/FileDescriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <new>
#include <numeric>
#include <optional>
#include <thread>
#include <utility>

namespace host {

namespace {

const std::chrono::seconds stopGrace(5);

// A wake-up costs as much as a small piece, so answers to those are collected for a moment.
const std::chrono::microseconds smallPiece(1000);
const std::chrono::microseconds napTime(1000);
const std::size_t worthNapping = 16; // pieces for each worker

// A deadline that is noticed so late has passed while this process was suspended or could not print, and so
// may the worker have been.
const std::chrono::seconds heldUp(1);

// When so many workers in a row have ended before they took a piece, the rest is done one at a time.
const int mostFruitless = 3;

void limitWorker(int memoryMiB)
{
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    processlimits::limitMemory(memoryMiB);
    if (sanitized)
        return;
    // What a crash or a library prints would tear up the progress bar; the reason reaches the user otherwise.
    const FileDescriptor null(open("/dev/null", O_WRONLY | O_CLOEXEC));
    dup2(null.get(), STDERR_FILENO);
}

/// \param areCallsLimited the kernel then ends a process by this signal for calls numbered as on another machine.
Failure describeEnd(int status, std::optional<int> outsideCall, bool areCallsLimited)
{
    if (outsideCall && WIFEXITED(status) && WEXITSTATUS(status) == callfilter::endedStatus)
        return {ReasonCode::Hostile, "did what no document needs (" + callfilter::nameOf(*outsideCall) + ")"};
    if (areCallsLimited && WIFSIGNALED(status) && WTERMSIG(status) == SIGSYS)
        return {ReasonCode::Hostile, "did what no document needs (a forbidden system call)"};
    if (WIFSIGNALED(status))
        return {ReasonCode::Crashed,
                "the worker process crashed on it: " + std::string(strsignal(WTERMSIG(status)))};
    return {ReasonCode::Crashed,
            "the worker process ended on it with status " + std::to_string(WEXITSTATUS(status))};
}

WorkOutcome outcomeOf(WorkerSlot::Answer& answer, const WorkerSlot& slot)
{
    if (answer.kind == WorkerSlot::Answered)
        return {WorkOutcome::Answered, std::move(answer.text)};
    return {WorkOutcome::Lost, {}, workervoice::failureIn(answer.text), slot.noted()};
}

} // namespace

struct WorkerPool::Process
{
    pid_t id = 0; ///< 0 while there is none.
    FileDescriptor wakeUps;
    std::unique_ptr<SharedMemory<WorkerSlot>> slot;
    Clock::time_point deadline;
    Clock::time_point news; ///< When its last answer was taken.

    bool isRunning() const { return id != 0; }

    /// \returns false when the worker has ended.
    bool takeWakeUps() const
    {
        std::array<char, 256> bytes;
        return read(wakeUps.get(), bytes.data(), bytes.size()) != 0;
    }
};

WorkerPool::WorkerPool(Limits limits, MakeWorker makeWorker, Cell& cell)
    : m_limits(limits), m_makeWorker(std::move(makeWorker)), m_cell(cell),
      m_processes(static_cast<std::size_t>(limits.workers))
{}

WorkerPool::~WorkerPool()
{
    for (Process& process : m_processes) // there are any only when `run` was left by an exception
        if (process.isRunning())
            try {
                end(
                    process, [](std::size_t, const WorkOutcome&) {}, WorkOutcome::Stopped);
            } catch (const std::bad_alloc&) { // it has ended all the same; who waits for its news has gone
            }
}

void WorkerPool::run(std::size_t count, const Done& done, RunControl& control)
{
    m_ended.assign(count, false);
    m_round.resize(count);
    std::iota(m_round.begin(), m_round.end(), std::size_t{0});
    for (*m_next = 0; m_stops == 0 && !m_round.empty(); planNextRound())
        doRound(done, control);
}

void WorkerPool::doRound(const Done& done, RunControl& control)
{
    m_told.assign(m_round.size(), false);
    heed(control);
    while (startWorkers(done), anyRunning() || untaken() > 0)
        waitForNews(done, control);
}

void WorkerPool::heed(const RunControl& control)
{
    if (m_stops == 0 && control.isStopped()) {
        m_stopDeadline = Clock::now() + stopGrace;
        endRound();
    }
    m_stops = control.stops();
    if (control.isPaused() && !m_held)
        m_held = m_next->exchange(m_round.size());
    else if (!control.isPaused() && m_held)
        *m_next = *std::exchange(m_held, std::nullopt);
}

/// Workers find no further place to take.
void WorkerPool::endRound()
{
    *m_next = m_round.size();
    if (m_held)
        m_held = m_round.size();
}

/// A round of one piece, the next that has not ended: its worker ended before it named the piece, or
/// corrupted its answer; alone in a round, there is no doubt about which piece it was if the next worker ends
/// as well. Or a cell kept the worker from its files: the cell is renewed, and allows what lies there now.
void WorkerPool::planNextRound()
{
    const auto left =
        std::find(m_ended.begin() + static_cast<std::ptrdiff_t>(m_round.front()), m_ended.end(), false);
    m_round.clear();
    if (left != m_ended.end()) {
        m_cell.renew();
        m_round.push_back(static_cast<std::size_t>(left - m_ended.begin()));
    }
    m_held.reset();
    *m_next = 0;
}

std::size_t WorkerPool::untaken() const
{
    const std::uint64_t next = m_held ? *m_held : m_next->load();
    return m_round.size() - std::min<std::size_t>(next, m_round.size());
}

void WorkerPool::startWorkers(const Done& done)
{
    for (Process& process : m_processes)
        while (!process.isRunning() && untaken() > 0 && !m_held) {
            if (m_round.size() == 1 && anyRunning())
                return;
            if (start(process))
                break;
            const Failure problem{ReasonCode::NoProcess,
                                  "no worker process can be started: " + systemError(errno)};
            if (anyRunning())
                return; // there cannot be as many workers as wanted: those that there are do the rest
            pieceEnded((*m_next)++, done, {WorkOutcome::Lost, {}, problem});
        }
}

bool WorkerPool::start(Process& process)
try {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    process.wakeUps = FileDescriptor(ends[0]);
    const FileDescriptor theirs(ends[1]);
    process.slot = std::make_unique<SharedMemory<WorkerSlot>>();
    const pid_t parent = getpid();
    const pid_t id = fork();
    if (id == 0)
        serve(process, theirs.get(), parent);
    if (id < 0)
        return false;
    process.id = id;
    process.news = Clock::now();
    setDeadline(process);
    return true;
} catch (const std::bad_alloc&) {
    errno = ENOMEM;
    return false;
}

/// The life of a worker process.
void WorkerPool::serve(Process& process, int wakeUps, pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(0);
    for (Process& other : m_processes) {
        other.wakeUps.close();
        if (&other != &process)
            other.slot.reset(); // out of the reach of corrupted memory
    }
    limitWorker(m_limits.memoryMiB);
    WorkerSlot& slot = **process.slot;
    workervoice::set(slot, wakeUps);
    try {
        std::unique_ptr<Worker> worker;
        for (bool last = false; !last;) {
            const std::uint64_t place = (*m_next)++;
            if (place >= m_round.size())
                break;
            slot.begin(place);
            if (!worker)
                worker = lockedInWorker(wakeUps);
            const Worker::Answer answer = worker->answer(m_round[place], slot);
            if (answer.text.size() > WorkerSlot::largestAnswer)
                throw std::length_error("what there is to tell of it is longer than 512 KiB");
            const bool again = answer.again && m_round.size() > 1;
            workervoice::tell(again ? WorkerSlot::Again : WorkerSlot::Answered, answer.text);
            if (again)
                slot.begin(WorkerSlot::none);
            last = answer.last;
        }
    } catch (const std::exception&) {
        workervoice::tellOfException();
    }
    _exit(0);
}

std::unique_ptr<Worker> WorkerPool::lockedInWorker(int wakeUps) const
{
    std::unique_ptr<Worker> worker = m_makeWorker();
    std::vector<int> descriptors = worker->descriptors();
    descriptors.push_back(wakeUps);
    m_cell.enter(descriptors, workervoice::tellOfOutsideCall);
    return worker;
}

void WorkerPool::waitForNews(const Done& done, RunControl& control)
{
    std::vector<pollfd> waiting; // of running workers only: poll refuses more than a process may have open
    std::vector<Process*> running;
    for (Process& process : m_processes)
        if (process.isRunning()) {
            running.push_back(&process);
            waiting.push_back({process.wakeUps.get(), POLLIN, 0});
        }
    control.addTo(waiting);
    nap();
    if (poll(waiting.data(), waiting.size(), millisecondsToNextDeadline()) < 0 && errno != EINTR) {
        std::this_thread::sleep_for(napTime); // the kernel is short of memory: ask each, none of them blocks
        for (pollfd& each : waiting)
            each.revents = POLLIN;
    }

    for (std::size_t index = 0; index < running.size(); ++index)
        if (waiting[index].revents != 0)
            receive(*running[index], done);
    if (std::any_of(waiting.begin() + static_cast<std::ptrdiff_t>(running.size()), waiting.end(),
                    [](const pollfd& each) { return each.revents != 0; })) {
        control.take();
        heed(control);
    }
    endOverdue(done);
    endStopped(done);
}

void WorkerPool::nap() const
{
    if (m_perPiece < smallPiece && untaken() > worthNapping * m_processes.size())
        std::this_thread::sleep_for(napTime);
}

void WorkerPool::receive(Process& process, const Done& done)
{
    const bool ended = !process.takeWakeUps();
    const Clock::duration waited = Clock::now() - process.news;
    if (const int answers = takeAnswers(process, done); answers > 0)
        m_perPiece = waited / answers;
    if (ended)
        end(process, done, WorkOutcome::Lost);
}

/// \returns their number. A worker that was taken over may answer faster than it is heard, and for ever: it
///     gets neither time nor attention for what is no news.
int WorkerPool::takeAnswers(Process& process, const Done& done)
{
    int count = 0;
    for (std::optional<WorkerSlot::Answer> answer;
         (answer = (*process.slot)->takeAnswer()) && isNews(answer->piece); ++count)
        if (answer->kind != WorkerSlot::Again)
            pieceEnded(answer->piece, done, outcomeOf(*answer, **process.slot));
    if (count > 0) {
        process.news = Clock::now();
        setDeadline(process); // what took this program long is not the worker's
    }
    return count;
}

/// Whether nothing was told of the piece in this round.
bool WorkerPool::isNews(std::uint64_t place)
{
    if (place >= m_round.size() || m_told[place])
        return false;
    m_told[place] = true;
    return true;
}

/// Passes over a place outside the round, and a piece that has ended: so tells a worker that was at none, or
/// whose memory is corrupted.
void WorkerPool::pieceEnded(std::uint64_t place, const Done& done, const WorkOutcome& outcome)
{
    if (place >= m_round.size() || m_ended[m_round[place]])
        return;
    m_ended[m_round[place]] = true;
    m_fruitless = 0;
    done(m_round[place], outcome);
}

/// What the worker has told is read after its end, when nothing can be added any more.
/// \param why the piece is lost that it was at; none for how it ended.
void WorkerPool::end(Process& process, const Done& done, WorkOutcome::Kind kind, const Failure& why)
{
    kill(process.id, SIGKILL); // changes nothing for one that has ended
    int status = 0;
    while (waitpid(process.id, &status, 0) < 0 && errno == EINTR) {
    }
    process.id = 0;
    process.wakeUps.close();
    takeAnswers(process, done);
    // In a round of one piece, this worker took it if it was taken, whether or not it lived to say so.
    const std::uint64_t told = (*process.slot)->piece();
    const std::uint64_t place = m_round.size() == 1 && untaken() == 0 ? 0 : told;
    pieceEnded(place, done,
               {kind,
                {},
                why ? why : describeEnd(status, (*process.slot)->outsideCall(), m_cell.state().limitsCalls()),
                told == place ? (*process.slot)->noted() : std::string()});
    process.slot.reset();
    if (told >= m_round.size() && status != 0 && ++m_fruitless >= mostFruitless)
        endRound();
}

void WorkerPool::setDeadline(Process& process) const
{
    process.deadline = Clock::now() + std::chrono::seconds(m_limits.timeoutSeconds);
}

void WorkerPool::endOverdue(const Done& done)
{
    const auto isOverdue = [](const Process& process) {
        return process.isRunning() && Clock::now() >= process.deadline;
    };
    for (Process& process : m_processes) {
        if (isOverdue(process)) // or its answers have waited while another one's were dealt with
            receive(process, done);
        if (!isOverdue(process))
            continue;
        if (Clock::now() - process.deadline >= heldUp)
            setDeadline(process);
        else
            end(process, done, WorkOutcome::Lost,
                {ReasonCode::Timeout,
                 "it took longer than " + std::to_string(m_limits.timeoutSeconds) + " s"});
    }
}

void WorkerPool::endStopped(const Done& done)
{
    if (m_stops == 0 || (m_stops == 1 && Clock::now() < m_stopDeadline))
        return;
    for (Process& process : m_processes)
        if (process.isRunning())
            end(process, done, WorkOutcome::Stopped);
}

bool WorkerPool::anyRunning() const
{
    return std::any_of(m_processes.begin(), m_processes.end(),
                       [](const Process& process) { return process.isRunning(); });
}

int WorkerPool::millisecondsToNextDeadline() const
{
    Clock::time_point next = Clock::time_point::max();
    for (const Process& process : m_processes)
        if (process.isRunning())
            next = std::min(next, process.deadline);
    if (m_stops > 0)
        next = std::min(next, m_stopDeadline);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(next - Clock::now()).count();
    return static_cast<int>(std::clamp<std::int64_t>(left, 0, 1 << 30));
}

} // namespace host
