#pragma once

#include <string>

namespace host {

/// Copies a regular file's content into a new file (mode 0600; the target must not exist). Shares the blocks
/// where the file system can, and holes stay holes. \returns empty, or the reason of the failure; a target
/// that was begun is then removed.
std::string copyFile(const std::string& source, const std::string& target);

} // namespace host
