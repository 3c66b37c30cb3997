#include "CallFilter.h"

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <memory>

namespace host::callfilter {

namespace {

const std::uint32_t asTree = 2; // for SCMP_FLTATR_CTL_OPTIMIZE

using Filter = std::unique_ptr<void, void (*)(scmp_filter_ctx)>;

Outside toldOutside = nullptr;

void endFor(int, siginfo_t* info, void*)
{
    toldOutside(info->si_syscall);
    _exit(endedStatus);
}

bool handleOutside(Outside outside)
{
    toldOutside = outside;
    struct sigaction action = {};
    action.sa_sigaction = endFor;
    action.sa_flags = SA_SIGINFO;
    return sigaction(SIGSYS, &action, nullptr) == 0;
}

/// \returns 0, or minus an errno value.
int fill(scmp_filter_ctx filter, const std::vector<allowedcalls::Group>& groups)
{
    // There is no secret in the process that its own code has to be kept from, and without this older kernels
    // slow all of it down.
    seccomp_attr_set(filter, SCMP_FLTATR_CTL_SSB, 1);
    seccomp_attr_set(filter, SCMP_FLTATR_CTL_OPTIMIZE, asTree);
    seccomp_attr_set(filter, SCMP_FLTATR_API_SYSRAWRC, 1); // the kernel's own reasons
    seccomp_attr_set(filter, SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS);
    for (const allowedcalls::Group& group : groups)
        for (const allowedcalls::Call& call : group.calls) {
            const int problem =
                seccomp_rule_add_array(filter, SCMP_ACT_ALLOW, call.number,
                                       static_cast<unsigned>(call.arguments.size()), call.arguments.data());
            if (problem != 0)
                return problem;
        }
    return 0;
}

} // namespace

bool enter(Outside outside, const std::vector<allowedcalls::Group>& further)
{
    if (!handleOutside(outside))
        return false;
    const Filter filter(seccomp_init(SCMP_ACT_TRAP), seccomp_release);
    std::vector<allowedcalls::Group> groups = allowedcalls::toRead(getpid());
    groups.insert(groups.end(), further.begin(), further.end());
    int problem = filter == nullptr ? -ENOMEM : fill(filter.get(), groups);
    if (problem == 0)
        problem = seccomp_load(filter.get());
    errno = -problem;
    return problem == 0;
}

std::string nameOf(int call)
{
    const std::unique_ptr<char, void (*)(void*)> name(
        seccomp_syscall_resolve_num_arch(SCMP_ARCH_NATIVE, call), std::free);
    return name != nullptr ? name.get() : std::to_string(call);
}

} // namespace host::callfilter
