#include "ManualPage.h"

#include "HelpText.h"
#include "host/settings/SetOption.h"

#include <algorithm>

namespace host::manualpage {

using options::Command;
using options::Option;

namespace {

const std::size_t lineLength = 72;       // with room for escapes
const char date[] = "November 23, 2026"; // when what the pages tell was last changed

/// Text that mdoc takes as it is: no line is a request, no backslash an escape.
std::string plain(const std::string& text)
{
    std::string result;
    bool lineBegins = true;
    for (const char each : text) {
        if (lineBegins && (each == '.' || each == '\''))
            result += "\\&";
        result += each == '\\' ? "\\e" : each == '-' ? "\\-" : std::string(1, each);
        lineBegins = each == '\n';
    }
    return result;
}

/// An argument of a request: quotes keep it together.
std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char each : plain(text))
        result += each == '"' ? "\\(dq" : std::string(1, each);
    return result + "\"";
}

/// Sentences, each on a line of its own, as mandoc -T lint wants them.
std::string sentences(const std::string& text)
{
    std::string result;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(". ", begin), text.size() - 1) + 1;
        result += plain(helptext::wrapped(text.substr(begin, end - begin), lineLength, 0)) + "\n";
        begin = end + 1;
    }
    return result;
}

/// A sentence from the table, which begins small and has no full stop.
std::string sentence(std::string text)
{
    if (text[0] >= 'a' && text[0] <= 'z')
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return sentences(text + (text.ends_with('.') ? "" : "."));
}

std::string head(const std::string& name, const std::string& summary)
{
    std::string title = name;
    for (char& each : title)
        if (each >= 'a' && each <= 'z')
            each = static_cast<char>(each - 'a' + 'A');
    return std::string(".Dd ") + date + "\n.Dt " + title + " 1\n.Os\n.Sh NAME\n.Nm " + name + "\n.Nd " +
           summary + "\n";
}

std::string formOf(const Option& option)
{
    std::string text = ".It ";
    if (option.letter != 0)
        text += std::string("Fl ") + option.letter + " , ";
    return text + "Fl \\-" + plain(option.name) +
           (option.value.empty() ? "" : " Ar " + quoted(option.value)) + "\n";
}

std::string optionItem(const Option& option)
{
    const std::string rest = option.rest();
    return formOf(option) + sentence(option.brief) + (rest.empty() ? "" : sentence(rest));
}

std::string list(const std::string& items)
{
    return ".Bl -tag -width Ds\n" + items + ".El\n";
}

std::string optionsSection(const Command& command)
{
    std::string text = ".Sh OPTIONS\n";
    std::string items;
    const char* title = "";
    for (const Option& each : options::optionsOf(command.id)) {
        if (options::titleOf(each.group) != title) {
            text += items.empty() ? "" : list(items);
            text += std::string(".Ss ") + (title = options::titleOf(each.group)) + "\n";
            items.clear();
        }
        items += optionItem(each);
    }
    text += items.empty() ? "" : list(items);
    items.clear();
    for (const Option& each : options::commonOptions())
        items += optionItem(each);
    return text + ".Ss Help\n" + list(items);
}

std::string exitSection(const std::vector<options::ExitStatus>& statuses)
{
    std::string items;
    for (const options::ExitStatus& each : statuses)
        items += ".It " + std::to_string(each.status) + "\n" + sentence(each.meaning);
    return ".Sh EXIT STATUS\n" + list(items);
}

std::string examplesSection(const std::vector<options::Example>& examples)
{
    std::string text = ".Sh EXAMPLES\n";
    for (const options::Example& each : examples)
        text += sentence(each.purpose.substr(0, each.purpose.find_last_not_of('.') + 1) + ":.") +
                ".Pp\n.Dl " + quoted(each.command) + "\n.Pp\n";
    text.erase(text.size() - 4); // no space before the next section
    for (std::size_t at; (at = text.find(":.\n")) != std::string::npos;)
        text.erase(at + 1, 1);
    return text;
}

/// References to the pages of all commands but one.
std::string seeAlso(const Command* without)
{
    std::vector<std::string> names = options::commandNames();
    std::sort(names.begin(), names.end());
    std::string text;
    for (const std::string& name : names)
        if (without == nullptr || name != without->name)
            text.append(text.empty() ? ".Xr quintar-" : " ,\n.Xr quintar-").append(name).append(" 1");
    return ".Sh SEE ALSO\n" + (without != nullptr ? ".Xr quintar 1 ,\n" + text : text) + "\n";
}

std::string settingsSection()
{
    return ".Sh SETTINGS\nWhat\n.Fl \\-set\ntakes; a row of a list can be given by its number or its text.\n"
           ".Bd -literal\n" +
           plain(setoption::describeKeys()) + ".Ed\n";
}

} // namespace

std::string program()
{
    std::string commandItems;
    std::vector<options::Example> examples;
    for (const Command& each : options::commands()) {
        commandItems += ".It Cm " + each.name + "\n" + sentence(each.summary) + "See\n.Xr quintar-" +
                        each.name + " 1 .\n";
        examples.push_back(each.examples.front());
    }
    return head("quintar", "change how PDF documents open in a viewer") +
           ".Sh SYNOPSIS\n.Nm\n.Ar command\n.Op Ar argument ...\n.Nm\n.Cm help\n.Op Ar command\n.Nm\n.Fl "
           "\\-version\n.Sh DESCRIPTION\n" +
           sentences(
               "Changes the panel beside the page, the page layout, the page and magnification of the first "
               "view, and what the window shows, for single documents and whole folders. This is "
               "version " QUINTAR_VERSION ". The commands are:") +
           list(commandItems) + exitSection(options::command(options::CommandId::Run).exitStatuses) +
           examplesSection(examples) + seeAlso(nullptr);
}

std::string of(const Command& command)
{
    std::string text = head("quintar-" + command.name, command.summary) + ".Sh SYNOPSIS\n.Nm quintar Cm " +
                       command.name + "\n.Op Ar OPTION ...\n";
    if (!command.synopsis.empty())
        text += ".Li " + quoted(command.synopsis) + "\n";
    text += ".Sh DESCRIPTION\n" + sentences(command.description) + optionsSection(command);
    if (command.id == options::CommandId::Run)
        text += settingsSection();
    return text + exitSection(command.exitStatuses) + examplesSection(command.examples) + seeAlso(&command);
}

} // namespace host::manualpage
