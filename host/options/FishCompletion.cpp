#include "Completion.h"
#include "OptionTable.h"

namespace host::completion {

using options::Completes;
using options::Option;

namespace {

/// In single quotes.
std::string quoted(const std::string& text)
{
    std::string result = "'";
    for (const char each : text)
        result += (each == '\'' || each == '\\' ? "\\" : "") + std::string(1, each);
    return result + "'";
}

std::string filesWith(const std::vector<std::string>& suffixes)
{
    std::string text;
    for (const std::string& suffix : suffixes)
        text += (text.empty() ? "__fish_complete_suffix ." : " ; __fish_complete_suffix .") + suffix;
    return " -a '(" + text + ")'";
}

std::string valueOf(const Option& option)
{
    std::string words;
    if (option.value.empty())
        return {};
    switch (option.completes) {
    case Completes::Words:
        for (const std::string& word : option.words)
            words += (words.empty() ? "" : " ") + word;
        return " -x -a " + quoted(words);
    case Completes::Folders:
        return " -x -a '(__fish_complete_directories)'";
    case Completes::Files:
        return option.words.empty() ? " -r -F" : " -x" + filesWith(option.words);
    case Completes::Nothing:
        break;
    }
    return " -x";
}

std::string lineOf(const options::Command& command, const Option& option)
{
    return "complete -c quintar -n '__fish_seen_subcommand_from " + command.name + "' -l " + option.name +
           (option.letter != 0 ? std::string(" -s ") + option.letter : "") + valueOf(option) + " -d " +
           quoted(option.brief) + "\n";
}

} // namespace

std::string forFish()
{
    std::string names;
    for (const options::Command& each : options::commands())
        names += each.name + " ";
    const std::string first = "complete -c quintar -n 'not __fish_seen_subcommand_from " + names + "help' ";
    std::string text = "# Completes the words of quintar in fish.\ncomplete -c quintar -f\n";
    for (const options::Command& each : options::commands())
        text += first + "-a " + each.name + " -d " + quoted(each.summary) + "\n";
    text += first + "-a help -d 'tell about a command'\n";
    text += "complete -c quintar -n '__fish_seen_subcommand_from help' -a '" + names + "'\n";
    for (const options::Command& command : options::commands()) {
        for (const auto& each : {options::optionsOf(command.id), options::commonOptions()})
            for (const Option& option : each)
                text += lineOf(command, option);
        if (!command.files.empty())
            text += "complete -c quintar -n '__fish_seen_subcommand_from " + command.name + "' -k" +
                    filesWith(command.files) + "\n";
    }
    return text;
}

} // namespace host::completion
