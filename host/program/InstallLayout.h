#pragma once

#include <string>

/// Where the program's parts lie, from its own place: <folder>/bin/quintar and <folder>/lib/quintar, the same
/// in the build tree and after installation.
namespace host::installlayout {

std::string pluginFile();
std::string libraryFile();

} // namespace host::installlayout
