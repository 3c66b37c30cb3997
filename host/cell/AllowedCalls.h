#pragma once

#include <seccomp.h>
#include <sys/types.h>

#include <vector>

/// The system calls that a worker makes.
namespace host::allowedcalls {

struct Call
{
    int number; ///< As libseccomp has it; negative for one that this kind of machine does not have.
    /// What its arguments must be, all of it; a call that stands in the table several times is allowed by each.
    std::vector<scmp_arg_cmp> arguments = {};
};

struct Group
{
    const char* reason;
    std::vector<Call> calls;
};

/// What reading documents takes, and telling of them.
/// \param self the process that makes them: some are allowed for itself only.
std::vector<Group> toRead(pid_t self);
/// What writing results takes besides.
std::vector<Group> toWrite();

} // namespace host::allowedcalls
