#pragma once

#include "WorkerSlot.h"

#include "host/failures/Failure.h"

#include <string>
#include <string_view>

/// What this process tells the program once it is a worker. There is one voice in a process, for what ends a
/// worker (a terminate handler, a system call that it must not make) leaves no room for arguments.
namespace host::workervoice {

/// To be called first, and once. From then on an exception that ends the process is told, too.
/// \param slot where the answers go; it must live as long as the process, and so must `wakeUps`, the end of
///     a pipe from which the program is woken up.
void set(WorkerSlot& slot, int wakeUps);

/// Answers the piece that the slot is at, and wakes the program up if it may be waiting.
void tell(WorkerSlot::Kind kind, std::string_view text);

/// The piece is lost by the exception that is being handled.
void tellOfException();
/// What the program reads of an answer that `tellOfException` gave; its reason is Internal where the worker
/// told none that there is.
Failure failureIn(const std::string& text);

/// The process ends by this system call. Safe in a signal handler.
void tellOfOutsideCall(int call);

} // namespace host::workervoice
