#include "StopSignal.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>

namespace host {

StopSignal::StopSignal()
{
    sigset_t stopping;
    sigemptyset(&stopping);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction now;
        // What nohup or a shell ignores for a job in the background would come through once blocked.
        if (sigaction(number, nullptr, &now) != 0 || now.sa_handler != SIG_IGN)
            sigaddset(&stopping, number);
    }
    sigprocmask(SIG_BLOCK, &stopping, nullptr);
    m_signals = FileDescriptor(signalfd(-1, &stopping, SFD_CLOEXEC | SFD_NONBLOCK));
}

int StopSignal::count()
{
    signalfd_siginfo info;
    while (read(m_signals.get(), &info, sizeof info) == static_cast<ssize_t>(sizeof info))
        ++m_count;
    return m_count;
}

} // namespace host
