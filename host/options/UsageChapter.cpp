#include "UsageChapter.h"

#include "OptionTable.h"

#include <stdexcept>

namespace host::usagechapter {

using options::Command;
using options::Option;

namespace {

/// Text within a table's cell.
std::string cell(const std::string& text)
{
    std::string result;
    for (const char each : text)
        result += each == '|' ? "\\|" : std::string(1, each);
    return result;
}

std::string row(const Option& option)
{
    const std::string rest = option.rest();
    return "| `" + cell(option.form()) + "` | " + cell(option.brief + (rest.empty() ? "" : "; " + rest)) +
           " |\n";
}

std::string of(const Command& command)
{
    std::string text = "### quintar " + command.name + "\n\n";
    const char* title = nullptr;
    for (const Option& each : options::optionsOf(command.id)) {
        if (title != options::titleOf(each.group)) {
            text += title == nullptr ? "" : "\n";
            title = options::titleOf(each.group);
            text += "| " + std::string(title) + " | |\n|---|---|\n";
        }
        text += row(each);
    }
    if (title == nullptr)
        text += "It takes no options.\n";
    return text + "\n";
}

} // namespace

std::string text()
{
    std::string chapter =
        "\n## Options\n\nEvery command has `--help`, which tells the most common options, and "
        "`--help-all`. Long names may be cut short\nas long as only one begins so.\n\n";
    for (const Command& each : options::commands())
        chapter += of(each);
    return chapter;
}

std::string inserted(const std::string& document)
{
    const std::size_t first = document.find(begin);
    const std::size_t last = document.find(end);
    if (first == std::string::npos || last == std::string::npos || last < first)
        throw std::runtime_error("the lines around the chapter about the options are missing");
    return document.substr(0, first + sizeof begin - 1) + text() + document.substr(last);
}

} // namespace host::usagechapter
