#pragma once

#include "host/failures/Failure.h"

#include <cstdint>
#include <string>

namespace host {

/// Copies a regular file's content into a new file (mode 0600; the target must not exist). Shares the blocks
/// where the file system can, and holes stay holes. After a failure a target that was begun is removed.
Failure copyFile(const std::string& source, const std::string& target);

/// The same of the first `size` bytes of an open file.
Failure copyBegin(int source, std::uint64_t size, const std::string& target);

} // namespace host
