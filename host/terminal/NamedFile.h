#pragma once

#include <cstddef>
#include <string>

namespace host::suggestion {

enum class Among { Documents, Files };

/// `; did you mean "manuals/drill.pdf"?` for the name of a file that is missing, ready to end a message;
/// empty when no folder and no document, or no file of any kind, beside it has a name like it.
std::string nearbyFile(const std::string& path, Among among = Among::Documents);

} // namespace host::suggestion

namespace host {

/// Reads a file that a person has named, "-" for standard input. Throws UsageError, also where there are more bytes than
/// `limit`. \param what the file is called.
std::string readNamedFile(const std::string& path, std::size_t limit, const char* what);

} // namespace host
