#include "Confinement.h"

#include "host/files/FileDescriptor.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <stdexcept>

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

} // namespace

void enter()
{
    require(prctl(PR_SET_PDEATHSIG, SIGKILL));
    require(prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0));
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_NPROC, 0);
#if !defined(__SANITIZE_ADDRESS__) // which needs address space without bound
    limit(RLIMIT_DATA, static_cast<rlim_t>(memoryMiB) << 20);
#endif
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
