#include "InstallLayout.h"

#include <unistd.h>

#include <climits>

namespace host::installlayout {

namespace {

std::string moduleFile(const char* name)
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    const std::string program(path, length > 0 ? static_cast<std::size_t>(length) : 0);
    return program.substr(0, program.rfind('/') + 1) + "../lib/quintar/" + name;
}

} // namespace

std::string pluginFile()
{
    return moduleFile("EditInitialView.so");
}

std::string libraryFile()
{
    return moduleFile("TelvarPDFLibraryCPDylib1311.dylib");
}

} // namespace host::installlayout
