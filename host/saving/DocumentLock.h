#pragma once

#include <sys/stat.h>

#include <string>

namespace host {

/// Keeps other runs of this program from changing a document. Each takes the lock just before it changes
/// something and looks then whether the document is still the one that it has read, so it never has to wait.
enum class DocumentLock {
    Taken,
    Held,       ///< By another run, or by a program that locks files in the same way.
    Unavailable ///< The file system has no locks.
};

/// The lock belongs to what was opened, and ends when that is closed, at the latest with the process.
DocumentLock lockDocument(int file);

/// Why a document may not be changed now, though nothing is wrong with it.
extern const char documentLocked[];

/// Whether an open file is the one at the path, and unchanged since `asRead` was told of it.
bool isAsRead(int file, const std::string& path, const struct stat& asRead);

} // namespace host
