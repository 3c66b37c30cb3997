#pragma once

#include <string>

namespace host {

/// Waits until a file's content and attributes are on the disk. \returns false, with errno set, on failure.
bool flushFile(int file);

/// The same of its content and its size only. File systems that cannot flush a file are told as failures.
bool flushContent(int file);

/// Waits until the names in a folder are on the disk. Where the folder cannot be flushed for lack of rights
/// or by its file system, all of the file system is.
/// \param fileInIt any open file in the folder.
/// \returns false, with errno set, on failure.
bool flushFolder(const std::string& folder, int fileInIt);

} // namespace host
