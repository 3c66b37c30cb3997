#include "WorkerVoice.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <exception>

namespace host::workervoice {

namespace {

WorkerSlot* ownSlot = nullptr;
int ownWakeUps = -1;

/// An exception that leaves a library's destructor ends the process; its reason is told all the same.
[[noreturn]] void tellAndAbort()
{
    if (std::current_exception() != nullptr)
        tellOfException();
    std::abort();
}

} // namespace

void set(WorkerSlot& slot, int wakeUps)
{
    ownSlot = &slot;
    ownWakeUps = wakeUps;
    std::set_terminate(tellAndAbort);
}

void tell(WorkerSlot::Kind kind, std::string_view text)
{
    if (ownSlot->answer(kind, text)) // if the wake-up fails, the program notices the end of this process
        while (write(ownWakeUps, "", 1) < 0 && errno == EINTR) {
        }
}

void tellOfException()
{
    const Failure failure = Failure::ofException();
    tell(WorkerSlot::Lost, std::string(1, static_cast<char>(failure.code)) + failure.text);
}

Failure failureIn(const std::string& text)
{
    const auto code = text.empty() ? 0 : static_cast<unsigned char>(text.front());
    return {code > 0 && isReasonCode(code) ? static_cast<ReasonCode>(code) : ReasonCode::Internal,
            text.substr(std::min<std::size_t>(text.size(), 1))};
}

void tellOfOutsideCall(int call)
{
    ownSlot->outside(call);
}

} // namespace host::workervoice
