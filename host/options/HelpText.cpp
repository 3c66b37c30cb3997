#include "HelpText.h"

#include "host/settings/SetOption.h"

#include <sstream>

namespace host::helptext {

using options::Command;
using options::Option;

namespace {

const std::size_t columns = 80;
const std::size_t formColumns = 27; // longer forms have a line of their own

std::string padded(const std::string& text, std::size_t width)
{
    return text + std::string(text.size() < width ? width - text.size() : 0, ' ');
}

/// One option's line: its form, and what it does.
std::string line(const std::string& form, const std::string& text)
{
    const std::string begin = "  " + padded(form, formColumns);
    const std::string rest = wrapped(text, columns - formColumns - 3, formColumns + 3);
    return begin + (form.size() > formColumns ? "\n" + std::string(formColumns + 3, ' ') : " ") + rest + "\n";
}

std::string examplesOf(const Command& command)
{
    std::string text;
    for (const options::Example& each : command.examples)
        text += each.command + "\n";
    return text;
}

std::string usageOf(const Command& command)
{
    return wrapped("Usage: quintar " + command.name + " [OPTION ...] " + command.synopsis, columns, 7) + "\n";
}

std::string exitStatusesOf(const Command& command)
{
    std::string text;
    for (const options::ExitStatus& each : command.exitStatuses)
        text += (text.empty() ? "Exit status: " : ", ") + std::to_string(each.status) + " " + each.meaning;
    return wrapped(text, columns, 0) + ".\n";
}

} // namespace

std::string brief(const Command& command)
{
    std::string text =
        examplesOf(command) + "\n" + usageOf(command) + wrapped(command.description, columns, 0) + "\n\n";
    for (const Option& each : options::optionsOf(command.id))
        if (each.common)
            text += line(each.form(), each.brief);
    return text + "\n\"quintar " + command.name + " --help-all\" tells everything.\n";
}

std::string whole(const Command& command)
{
    std::string text = usageOf(command) + "\n" + wrapped(command.description, columns, 0) + "\n\nExamples:\n";
    for (const options::Example& each : command.examples)
        text += "  " + each.command + "\n";
    const char* title = "";
    for (const Option& each : options::optionsOf(command.id)) {
        if (options::titleOf(each.group) != title)
            text += "\n" + std::string(title = options::titleOf(each.group)) + ":\n";
        text += line(each.form(), each.brief + (each.rest().empty() ? "" : "; " + each.rest()));
    }
    text += "\nHelp:\n";
    for (const Option& each : options::commonOptions())
        text += line(each.form(), each.brief);
    if (command.id == options::CommandId::Run)
        text += "\nSettings for --set; a row of a list can be given by its number or its text:\n" +
                setoption::describeKeys();
    return text + "\n" + exitStatusesOf(command);
}

std::string program()
{
    std::string text;
    for (const options::CommandId id :
         {options::CommandId::Run, options::CommandId::Show, options::CommandId::Configure})
        text += options::command(id).examples.front().command + "\n";
    text += "\nUsage: quintar COMMAND ...\nChanges how PDF documents open in a viewer.\n\n";
    for (const Command& each : options::commands())
        text += line(each.name, each.summary);
    return text + "\n\"quintar help COMMAND\" tells about a command, \"quintar COMMAND --help-all\" all\n"
                  "about it; \"quintar --version\" prints the version.\n";
}

std::string wrapped(const std::string& text, std::size_t width, std::size_t indent)
{
    std::istringstream words(text);
    std::string result;
    std::size_t column = 0;
    for (std::string word; words >> word; column += word.size()) {
        if (column > 0 && column + 1 + word.size() > width) {
            result += "\n" + std::string(indent, ' ');
            column = 0;
        } else if (column > 0) {
            result += " ";
            ++column;
        }
        result += word;
    }
    return result;
}

} // namespace host::helptext
