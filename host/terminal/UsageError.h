#pragma once

#include <stdexcept>

namespace host {

/// What the user asked for cannot be begun: nothing has been written. The message says why, in words that the
/// user can act on, and may hold bytes of file names as they are.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace host
