#include "cli/CheckCommand.h"
#include "cli/ConfigureCommand.h"
#include "cli/ListsCommand.h"
#include "cli/RunCommand.h"
#include "cli/ShowCommand.h"
#include "cli/UndoCommand.h"
#include "cli/WindowCommand.h"
#include "host/options/HelpText.h"
#include "host/options/UnknownWords.h"
#include "host/program/HostApplication.h"
#include "host/program/Surroundings.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/UsageError.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <memory>
#include <string>
#include <vector>

namespace {

using Commands = std::vector<std::unique_ptr<host::Command>>;

Commands allCommands()
{
    Commands commands;
    commands.push_back(std::make_unique<host::RunCommand>());
    commands.push_back(std::make_unique<host::UndoCommand>());
    commands.push_back(std::make_unique<host::ShowCommand>());
    commands.push_back(std::make_unique<host::CheckCommand>());
    commands.push_back(std::make_unique<host::ConfigureCommand>());
    commands.push_back(std::make_unique<host::ListsCommand>());
    commands.push_back(std::make_unique<host::WindowCommand>());
    return commands;
}

/// Keeps a document or the report from getting the number of a closed standard stream, where printed text
/// would go into it. stdin is opened for writing and the others for reading, so that using them still fails.
void occupyStandardDescriptors()
{
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(descriptor, F_GETFD) < 0)
            open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
}

int endWith(const std::string& message, int status)
{
    host::complainInLines(message);
    return status;
}

host::Command& commandNamed(const Commands& commands, const std::string& word)
{
    for (const auto& command : commands)
        if (word == command->name())
            return *command;
    if (word.empty())
        throw host::UsageError("which command?\n\n" + host::helptext::program());
    throw host::UsageError(host::unknownwords::command(word));
}

/// What is asked for in the place of a command; false when it is none of it.
bool answered(const Commands& commands, const std::vector<std::string>& words)
{
    const std::string word = words.empty() ? "" : words.front();
    if (word == "help" && words.size() > 2)
        throw host::UsageError("help tells about one command at a time");
    if (word == "help" && words.size() > 1)
        host::printResult(
            host::helptext::brief(host::options::command(commandNamed(commands, words[1]).id())));
    else if (word == "--help" || word == "--help-all" || word == "-h" || word == "help")
        host::printResult(host::helptext::program());
    else if (word == "--version")
        host::printResult("quintar " QUINTAR_VERSION "\n");
    else
        return false;
    return true;
}

int runCommand(int argc, char** argv)
{
    const Commands commands = allCommands();
    const std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
    if (answered(commands, words))
        return host::exitstatus::done;
    host::Command& command = commandNamed(commands, words.empty() ? "" : words.front());
    int qtArguments = 1;
    std::unique_ptr<QCoreApplication> application;
    if (!command.showsWindows())
        application = host::hostapplication::forTerminal(qtArguments, argv);
    return command.run(argc - 1, argv + 1);
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a reader of our output that goes away does not end a batch
    std::signal(SIGXFSZ, SIG_IGN); // nor does a file that grows beyond a limit
    std::signal(SIGCHLD, SIG_DFL); // ignored, it would hide how workers end
    occupyStandardDescriptors();
    try {
        host::surroundings::refuseForeignRights();
        host::surroundings::forgetPlacesOfCode();
        return runCommand(argc, argv);
    } catch (const host::OutputError& error) {
        return error.readerHasGone() ? host::exitstatus::someFailed
                                     : endWith(error.what(), host::exitstatus::someFailed);
    } catch (const std::exception& error) {
        return endWith(error.what(), host::exitstatus::usage);
    }
}
