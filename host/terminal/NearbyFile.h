#pragma once

#include <string>

namespace host::suggestion {

enum class Among { Documents, Files };

/// `; did you mean "manuals/drill.pdf"?` for the name of a file that is missing, ready to end a message;
/// empty when no folder and no document, or no file of any kind, beside it has a name like it.
std::string nearbyFile(const std::string& path, Among among = Among::Documents);

/// Why a file of any kind cannot be read, in words, with what may be meant where it is missing.
/// \param problem an errno, or notARegularFile.
std::string whyUnreadable(const std::string& path, int problem);

} // namespace host::suggestion
