#pragma once

#include "host/failures/Failure.h"

#include <sys/stat.h>

#include <chrono>
#include <string>

namespace host {

/// Keeps other runs of this program from changing a document. Each takes the lock just before it changes
/// something, and looks then whether the document is still the one that it has read.
enum class DocumentLock {
    Taken,
    Held,       ///< By another run, or by a program that locks files in the same way.
    Unavailable ///< The file system has no locks.
};

/// Whoever holds it is about to end, so it is waited for a while: more than a flush takes, and less than a
/// document has. The lock belongs to what was opened, and ends when that is closed, at the latest with the
/// process.
DocumentLock lockDocument(int file, std::chrono::milliseconds patience = std::chrono::seconds(5));

/// Why a document may not be changed now, though nothing is wrong with it.
extern const Failure documentLocked;

/// Whether an open file is the one at the path, and unchanged since `asRead` was told of it. When it is not,
/// errno is 0, or says what kept it from being looked at.
bool isAsRead(int file, const std::string& path, const struct stat& asRead);

} // namespace host
