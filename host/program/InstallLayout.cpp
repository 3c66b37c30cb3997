#include "InstallLayout.h"

#include <unistd.h>

#include <climits>
#include <stdexcept>

namespace host::installlayout {

namespace {

/// Of the program, with a slash at its end.
std::string folder()
{
    char path[PATH_MAX];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    const std::string program(path, length > 0 ? static_cast<std::size_t>(length) : 0);
    if (!program.starts_with('/')) // in the current folder there may be anything
        throw std::runtime_error("the program cannot find its own place (/proc/self/exe)");
    return program.substr(0, program.rfind('/') + 1);
}

std::string moduleFile(const char* name)
{
    return folder() + "../lib/quintar/" + name;
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

std::string renderProgram()
{
    return moduleFile("quintar-render");
}

std::string windowProgram()
{
    return folder() + "quintar-window";
}

std::wstring toLibraryPath(std::string_view bytes)
{
    std::wstring path;
    path.reserve(bytes.size());
    for (const char byte : bytes)
        path.push_back(static_cast<unsigned char>(byte));
    return path;
}

} // namespace host::installlayout
