#include "WindowCommand.h"

#include "host/files/FileDescriptor.h"
#include "host/program/InstallLayout.h"
#include "host/terminal/UsageError.h"

#include <unistd.h>

#include <cerrno>

namespace host {

int WindowCommand::work(const std::vector<std::string>& words)
{
    std::string program = installlayout::windowProgram();
    std::vector<std::string> arguments{program};
    for (const std::string& word : words)
        arguments.push_back(word.starts_with('-') ? "./" + word : word); // a name, not an option
    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    execv(program.c_str(), pointers.data());
    throw UsageError("the window cannot be started: " + program + ": " + systemError(errno) +
                     (errno == ENOENT ? "; it is installed by itself, as quintar-window" : ""));
}

} // namespace host
