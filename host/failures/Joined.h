#pragma once

#include <string>

namespace host {

/// Two things that are told of one document, in one line; each may be empty.
inline std::string joined(const std::string& one, const std::string& other)
{
    return one + (one.empty() || other.empty() ? "" : "; ") + other;
}

} // namespace host
