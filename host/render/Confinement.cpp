#include "Confinement.h"

#include "host/cell/Cell.h"
#include "host/cell/ProcessLimits.h"
#include "host/files/FileDescriptor.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <string_view>

namespace host::confinement {

namespace {

void require(int result)
{
    if (result != 0)
        throw std::runtime_error("this process cannot be confined: " + systemError(errno));
}

void limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{most, most};
    require(setrlimit(resource, &both));
}

/// Where the letters of documents come from that bring none.
constexpr std::array fontFolders{"/usr/share/fonts", "/usr/share/X11/fonts", "/usr/local/share/fonts"};

void limitFiles()
{
    Landlock rules(Landlock::version());
    for (const char* folder : fontFolders)
        rules.allow(folder, Landlock::Access::Browse);
    require(rules.enter() ? 0 : -1);
}

void limitCalls()
{
    const allowedcalls::Group further{"waiting for requests, and not for ever for a page; listing fonts",
                                      {{SCMP_SYS(poll)},
                                       {SCMP_SYS(ppoll)},
                                       {SCMP_SYS(alarm)},
                                       {SCMP_SYS(setitimer)},
                                       {SCMP_SYS(getdents64)}}};
    const auto outside = [](int) {
        const std::string_view text = "quintar: drawing needs a system call that is not allowed\n";
        writeAll(STDERR_FILENO, text.data(), text.size());
    };
    require(callfilter::enter(outside, {further}) ? 0 : -1);
}

} // namespace

void enter()
{
    const CellState kernel = Cell(Sandbox::Try).state();
    require(prctl(PR_SET_PDEATHSIG, SIGKILL));
    require(processlimits::giveUpPrivileges() ? 0 : -1);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_NPROC, 0);
    processlimits::limitMemory(memoryMiB);
    processlimits::forgetEnvironment();
    if (kernel.limitsFiles())
        limitFiles();
    if (kernel.limitsCalls())
        limitCalls();
}

void startWork()
{
    alarm(workSeconds);
}

void rest()
{
    alarm(0);
}

} // namespace host::confinement
