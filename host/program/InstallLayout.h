#pragma once

#include <string>
#include <string_view>

/// Where the program's parts lie, from its own place: <folder>/bin/quintar and <folder>/lib/quintar, the same
/// in the build tree and after installation.
namespace host::installlayout {

// Both throw std::runtime_error when the system does not tell that place.
std::string pluginFile();
std::string libraryFile();
/// The program that draws pages; it may not be installed.
std::string renderProgram();
/// Beside the program.
std::string windowProgram();

/// As the binding takes the path of the library file: each byte is one character.
std::wstring toLibraryPath(std::string_view bytes);

} // namespace host::installlayout
