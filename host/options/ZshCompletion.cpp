#include "Completion.h"
#include "OptionTable.h"

namespace host::completion {

using options::Completes;
using options::Option;

namespace {

/// Within single quotes; what _arguments would read is escaped.
std::string quoted(const std::string& text, const std::string& special)
{
    std::string result;
    for (const char each : text)
        if (each == '\'')
            result += "'\\''";
        else
            result += (special.find(each) != std::string::npos ? "\\" : "") + std::string(1, each);
    return result;
}

std::string globOf(const std::vector<std::string>& suffixes)
{
    std::string text;
    for (const std::string& suffix : suffixes)
        text += (text.empty() ? "" : "|") + suffix;
    return text.empty() ? "_files" : "_files -g \"*.(#i)(" + text + ")(-.)\"";
}

std::string actionOf(const Option& option)
{
    std::string words;
    switch (option.completes) {
    case Completes::Words:
        for (const std::string& word : option.words)
            words += (words.empty() ? "(" : " ") + word;
        return words + ")";
    case Completes::Folders:
        return "_files -/";
    case Completes::Files:
        return globOf(option.words);
    case Completes::Nothing:
        break;
    }
    return " ";
}

std::string specOf(const Option& option)
{
    const std::string what = "[" + quoted(option.brief, "[]:\\") + "]";
    const std::string value =
        option.value.empty() ? "" : ":" + quoted(option.value, ":\\") + ":" + actionOf(option);
    const std::string repeated = option.name == "set" ? "*" : "";
    std::string text =
        "        '" + repeated + "--" + option.name + (option.value.empty() ? "" : "=") + what + value + "'";
    if (option.letter != 0)
        text += std::string(" \\\n        '-") + option.letter + (option.value.empty() ? "" : "+") + what +
                value + "'";
    return text;
}

std::string caseOf(const options::Command& command)
{
    std::string text = "    " + command.name + ")\n        _arguments -s -S";
    for (const auto& each : {options::optionsOf(command.id), options::commonOptions()})
        for (const Option& option : each)
            text += " \\\n" + specOf(option);
    if (!command.files.empty())
        text += " \\\n        '*:file:" + globOf(command.files) + "'";
    return text + "\n        ;;\n";
}

} // namespace

std::string forZsh()
{
    std::string names;
    for (const options::Command& each : options::commands())
        names += "        '" + each.name + ":" + quoted(each.summary, "") + "'\n";
    std::string text = "#compdef quintar\n# Completes the words of quintar in zsh.\n\n_quintar() {\n"
                       "    local -a commands\n    commands=(\n" +
                       names +
                       "        'help:tell about a command'\n    )\n"
                       "    if (( CURRENT == 2 )); then\n        _describe command commands\n        return\n"
                       "    fi\n    shift words\n    (( CURRENT-- ))\n    case $words[1] in\n"
                       "    help)\n        _describe command commands\n        ;;\n";
    for (const options::Command& each : options::commands())
        text += caseOf(each);
    return text + "    esac\n}\n\n_quintar \"$@\"\n";
}

} // namespace host::completion
