#pragma once

#include <string>

namespace host::homefolder {

/// Why no folders of the user's are to be made: there is no home folder to make them in, it is "/", where
/// everybody's are, or it is another user's, who could not use them. Empty when they may be.
std::string problem();

} // namespace host::homefolder
