#include "Cell.h"

#include "OpenDescriptors.h"
#include "ProcessLimits.h"
#include "host/files/FileDescriptor.h"
#include "host/terminal/UsageError.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <stdexcept>
#include <system_error>

namespace host {

namespace {

int problemOf(bool done)
{
    return done ? 0 : errno;
}

bool enterEmpty()
try {
    const int version = Landlock::version();
    return version > 0 && Landlock(version).enter();
} catch (const std::system_error& error) {
    errno = error.code().value();
    return false;
}

/// Of the files and of the system calls: 0, or errno for what the kernel does not do.
using Problems = std::array<int, 2>;

[[noreturn]] void tryOut(int into)
{
    Problems problems{};
    const bool mayTry = processlimits::giveUpPrivileges();
    problems[0] = problemOf(mayTry && enterEmpty());
    if (write(into, &problems[0], sizeof(int)) != sizeof(int))
        _exit(1);
    problems[1] = problemOf(mayTry && callfilter::enter([](int) {}, allowedcalls::toWrite()));
    _exit(write(into, &problems[1], sizeof(int)) != sizeof(int) ? 1 : 0);
}

/// Some containers kill a process for the attempt: then nothing is answered, and it counts as not permitted.
Problems tried()
{
    Problems problems{EPERM, EPERM};
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return {errno, errno};
    const FileDescriptor from(ends[0]);
    FileDescriptor into(ends[1]);
    const pid_t child = fork();
    if (child == 0)
        tryOut(into.get());
    if (child < 0)
        return {errno, errno};
    into.close();
    for (int& problem : problems) {
        ssize_t count = 0;
        while ((count = read(from.get(), &problem, sizeof problem)) < 0 && errno == EINTR) {
        }
        if (count != sizeof problem)
            break;
    }
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return problems;
}

std::string inWords(int problem, const char* what)
{
    if (problem == 0)
        return {};
    if (problem == ENOSYS || problem == EINVAL)
        return std::string("this kernel has no ") + what;
    if (problem == EOPNOTSUPP)
        return std::string("this kernel was started without ") + what;
    return std::string(what) + ": " + systemError(problem);
}

/// What libraries would read at their first need, which comes after the lock: the time zone, and the
/// translations of the system's messages.
void readAhead()
{
    tzset();
    systemError(ENOENT);
}

bool leadNowhere(std::initializer_list<int> streams)
{
    const FileDescriptor null(::open("/dev/null", O_RDWR | O_CLOEXEC));
    return std::all_of(streams.begin(), streams.end(),
                       [&](int stream) { return dup2(null.get(), stream) == stream; });
}

} // namespace

Cell::Cell(Sandbox wanted)
{
    m_state.wanted = wanted != Sandbox::Off;
    if (!m_state.wanted)
        return;
    const Problems problems = tried();
    m_state.filesProblem = inWords(problems[0], "Landlock");
    m_state.callsProblem = inWords(problems[1], "seccomp");
    if (wanted == Sandbox::Require && !m_state.missing().empty())
        throw UsageError("workers cannot be locked in as --sandbox require asks: " + m_state.missing());
    makeRules();
    readAhead();
    prctl(PR_SET_DUMPABLE, 0); // out of the workers' reach, and never in a core file
}

void Cell::allow(Reach reach)
{
    m_reach = std::move(reach);
    makeRules();
}

void Cell::renew()
try {
    makeRules();
} catch (const std::system_error&) { // what a worker is kept from then fails with that reason
}

void Cell::makeRules()
{
    if (!m_state.limitsFiles())
        return;
    Landlock rules(Landlock::version());
    m_reach.allowBy(rules);
    m_landlock = std::move(rules);
}

void Cell::enter(const std::vector<int>& descriptors, callfilter::Outside outside) const
{
    if (!m_state.wanted)
        return;
    const auto require = [](bool done) {
        if (!done)
            throw std::runtime_error("the worker process cannot be locked in: " + systemError(errno));
    };
    require(leadNowhere({STDIN_FILENO, STDOUT_FILENO}));
    require(processlimits::giveUpPrivileges() || !(m_state.limitsFiles() || m_state.limitsCalls()));
    if (m_landlock)
        require(m_landlock->enter());
    closeAllBut(descriptors);
    processlimits::forgetEnvironment();
    if (m_state.limitsCalls())
        require(callfilter::enter(outside, m_reach.isWritten() ? allowedcalls::toWrite()
                                                               : std::vector<allowedcalls::Group>()));
}

} // namespace host
