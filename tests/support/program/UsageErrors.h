#pragma once

#include "host/terminal/UsageError.h"

#include <string>

/// The message that a call is refused with.
template <class Call>
std::string refusalOf(const Call& call)
{
    try {
        call();
    } catch (const host::UsageError& error) {
        return error.what();
    }
    return {};
}
