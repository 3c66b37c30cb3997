#include "UnknownWords.h"

#include "host/terminal/Suggestion.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

namespace host::unknownwords {

namespace {

using options::Option;

/// What other programs call the commands.
const std::array<std::pair<const char*, const char*>, 14> otherNames{{{"set", "run"},
                                                                      {"change", "run"},
                                                                      {"edit", "run"},
                                                                      {"apply", "run"},
                                                                      {"revert", "undo"},
                                                                      {"restore", "undo"},
                                                                      {"info", "show"},
                                                                      {"get", "show"},
                                                                      {"view", "show"},
                                                                      {"test", "check"},
                                                                      {"verify", "check"},
                                                                      {"-v", "--version"},
                                                                      {"-V", "--version"},
                                                                      {"version", "--version"}}};

/// Hyphen, non-breaking hyphen, en dash, em dash and minus.
const std::array otherDashes{"\xe2\x80\x90", "\xe2\x80\x91", "\xe2\x80\x93", "\xe2\x80\x94", "\xe2\x88\x92"};

std::string otherName(const std::string& word)
{
    const auto* const found = std::find_if(otherNames.begin(), otherNames.end(),
                                           [&](const auto& each) { return word == each.first; });
    return found == otherNames.end() ? std::string()
                                     : "; did you mean \"" + std::string(found->second) + "\"?";
}

std::string seeHelp(const options::Command& command)
{
    return "; \"quintar " + command.name + " --help-all\" lists the options";
}

/// The other command that has such an option; empty when none has.
std::string whoHas(const options::Command& command, const auto& isIt)
{
    for (const options::Command& other : options::commands()) {
        const std::vector<Option> options = options::optionsOf(other.id);
        if (other.id != command.id && std::any_of(options.begin(), options.end(), isIt))
            return "; \"quintar " + other.name + "\" has it, \"quintar " + command.name + "\" does not";
    }
    return {};
}

} // namespace

std::string command(const std::string& word)
{
    if (access(word.c_str(), F_OK) == 0)
        return "\"" + word + "\" is no command; \"quintar show " + word + "\" tells how it opens";
    std::vector<std::string> known = options::commandNames();
    known.insert(known.end(), {"help", "--help", "--help-all", "--version"});
    std::string meant = otherName(word);
    if (meant.empty())
        meant = suggestion::didYouMean(word, known);
    if (meant.empty() && word.starts_with('-'))
        meant = "; options stand behind a command, as in \"quintar run --page-mode bookmarks ...\"";
    return "unknown command \"" + word + "\"" + meant + "\n\"quintar --help\" lists the commands";
}

std::string option(const options::Command& command, const std::vector<Option>& options,
                   const std::string& name)
{
    std::vector<std::string> names;
    std::string beginnings;
    for (const Option& each : options) {
        names.push_back(each.name);
        if (each.name.starts_with(name))
            beginnings += (beginnings.empty() ? "--" : ", --") + each.name;
    }
    if (!beginnings.empty())
        return "--" + name + " may be one of " + beginnings;
    const std::string unknown = "unknown option --" + name;
    const auto takes = [&name](const Option& each) {
        return each.completes == options::Completes::Words &&
               std::find(each.words.begin(), each.words.end(), name) != each.words.end();
    };
    if (const auto found = std::find_if(options.begin(), options.end(), takes); found != options.end())
        return unknown + "; did you mean \"--" + found->name + " " + name + "\"?";
    if (const std::string other = whoHas(command, [&](const Option& each) { return each.name == name; });
        !other.empty())
        return unknown + other;
    const std::string meant = suggestion::didYouMean(name, names, "--");
    return unknown + (meant.empty() ? seeHelp(command) : meant);
}

std::string letter(const options::Command& command, const std::vector<Option>& options, char letter,
                   const std::string& word)
{
    std::vector<std::string> names;
    names.reserve(options.size());
    for (const Option& each : options)
        names.push_back(each.name);
    std::string more = word.size() > 1 ? suggestion::didYouMean(word, names, "--") : std::string();
    if (more.empty())
        more = whoHas(command, [=](const Option& each) { return each.letter == letter; });
    return std::string("unknown option -") + letter + (more.empty() ? seeHelp(command) : more);
}

bool beginsWithOtherDash(const std::string& word)
{
    return std::any_of(otherDashes.begin(), otherDashes.end(),
                       [&](const char* dash) { return word.starts_with(dash); });
}

} // namespace host::unknownwords
