#pragma once

#include <csignal>

namespace host {

/// Keeps which signals the process blocks, and blocks just those again at its end; one that has come meanwhile
/// takes effect then.
class SignalMask
{
public:
    SignalMask() { sigprocmask(SIG_SETMASK, nullptr, &m_before); }
    ~SignalMask() { restore(); }
    SignalMask(const SignalMask&) = delete;
    SignalMask& operator=(const SignalMask&) = delete;

    void restore() const { sigprocmask(SIG_SETMASK, &m_before, nullptr); }

private:
    sigset_t m_before{};
};

} // namespace host
