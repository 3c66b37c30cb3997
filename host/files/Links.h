#pragma once

#include <string>

namespace host {

/// The path with all links resolved; of what does not exist yet, as far as it does.
std::string resolved(const std::string& path);

/// The place that a file written at this path takes: where a symbolic link leads to, resolved, even if
/// nothing is there yet; else the path itself.
std::string behindLink(const std::string& path);

} // namespace host
