#pragma once

#include "AllowedCalls.h"

#include <csignal>
#include <string>
#include <vector>

/// Which system calls a process may make, and Linux holds it to: the kernel's seccomp.
namespace host::callfilter {

/// The exit status of a process that made a call which is not allowed.
inline constexpr int endedStatus = 128 + SIGSYS;

/// Is told of the number of a call that is not allowed, as the last thing that the process does. Must be safe
/// in a signal handler.
using Outside = void (*)(int call);

/// From now on this process, which must have given up new privileges and has one thread, makes the calls that
/// reading takes (AllowedCalls.h) and the further ones, or ends. \returns false with errno set.
bool enter(Outside outside, const std::vector<allowedcalls::Group>& further);

/// "socket", or the number of a call that has no name here.
std::string nameOf(int call);

} // namespace host::callfilter
