#pragma once

#include <string>

namespace host::suggestion {

/// `; did you mean "manuals/drill.pdf"?` for the name of a file that is missing, ready to end a message; empty when
/// no document and no folder beside it has a name like it.
std::string nearbyFile(const std::string& path);

} // namespace host::suggestion
