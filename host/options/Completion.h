#pragma once

#include <string>

/// What shells load to complete the program's command lines.
namespace host::completion {

std::string forBash();
std::string forZsh();
std::string forFish();

} // namespace host::completion
