#include "OptionParser.h"

#include "host/options/HelpText.h"
#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include <getopt.h>

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace host {

namespace {

const int firstLongOption = 256; // above every letter

using options::Option;

/// What getopt_long is told about the options.
struct Names
{
    explicit Names(const std::vector<Option>& options)
    {
        for (const Option& each : options) {
            longNames.push_back({each.name.c_str(), each.value.empty() ? no_argument : required_argument,
                                 nullptr, firstLongOption + static_cast<int>(longNames.size())});
            if (each.letter != 0)
                letters += std::string(1, each.letter) + (each.value.empty() ? "" : ":");
        }
        longNames.push_back({});
    }

    std::string letters = ":"; // tells a missing value from an unknown option
    std::vector<option> longNames;
};

/// The option that getopt_long means by a number, or null.
const Option* optionAt(const std::vector<Option>& options, int number)
{
    for (std::size_t index = 0; index < options.size(); ++index)
        if (number == firstLongOption + static_cast<int>(index) ||
            (options[index].letter != 0 && number == options[index].letter))
            return &options[index];
    return nullptr;
}

std::string spelled(const Option& option, int number)
{
    return number < firstLongOption ? std::string("-") + option.letter : "--" + option.name;
}

} // namespace

OptionParser::OptionParser(const options::Command& command)
    : m_command(command), m_options(options::optionsOf(command.id))
{
    const std::vector<Option>& common = options::commonOptions();
    m_options.insert(m_options.end(), common.begin(), common.end());
    m_takers["help"] = [this](const std::string&) { m_help = helptext::brief(m_command); };
    m_takers["help-all"] = [this](const std::string&) { m_help = helptext::whole(m_command); };
}

void OptionParser::takeValue(const std::string& name, Take take)
{
    this->take(name, false, std::move(take));
}

void OptionParser::takeFlag(const std::string& name, bool& flag)
{
    take(name, true, [&flag](const std::string&) { flag = true; });
}

void OptionParser::takeSecret(const std::string& name, TakeSecret take)
{
    takeValue(name, {});
    m_secretTakers[name] = std::move(take);
}

void OptionParser::take(const std::string& name, bool isFlag, Take take)
{
    const bool known = std::any_of(m_options.begin(), m_options.end(), [&](const Option& each) {
        return each.name == name && each.value.empty() == isFlag;
    });
    if (!known)
        throw std::logic_error(m_command.name + " has no option --" + name);
    m_takers[name] = std::move(take);
}

std::vector<std::string> OptionParser::parse(int argc, char** argv)
{
    for (const Option& each : m_options)
        if (m_takers.count(each.name) == 0)
            throw std::logic_error("nobody takes the option --" + each.name);
    const Names names(m_options);
    opterr = 0;
    optind = 0;
    for (int number;
         (number = getopt_long(argc, argv, names.letters.c_str(), names.longNames.data(), nullptr)) != -1;) {
        const Option* option = optionAt(m_options, number);
        if (number == ':')
            throw UsageError("the option " + spelled(*optionAt(m_options, optopt), optopt) +
                             " needs a value");
        if (option == nullptr)
            refuse(argv, argc);
        if (const auto secret = m_secretTakers.find(option->name); secret != m_secretTakers.end())
            secret->second(optarg);
        else
            m_takers.at(option->name)(optarg != nullptr ? optarg : "");
    }
    return std::vector<std::string>(argv + optind, argv + argc);
}

void OptionParser::refuse(char** argv, int count) const
{
    if (const Option* flag = optionAt(m_options, optopt); flag != nullptr)
        throw UsageError("the option " + spelled(*flag, optopt) + " takes no value");
    const std::string word = optind > 0 && optind <= count ? argv[optind - 1] : "";
    if (word.starts_with("--"))
        refuseName(word.substr(2, word.find('=') - 2));
    // Among several letters in one word, getopt has not stepped past that word yet.
    const std::string letter = std::string("-") + static_cast<char>(optopt);
    const std::string whole = optind < count ? argv[optind] : "";
    const std::string name = (word.starts_with('-') ? word : whole).substr(1);
    std::vector<std::string> names;
    for (const Option& each : m_options)
        names.push_back(each.name);
    throw UsageError("unknown option " + letter +
                     (name.size() > 1 ? suggestion::didYouMean(name, names, "--") : ""));
}

void OptionParser::refuseName(const std::string& name) const
{
    std::vector<std::string> names;
    std::string beginnings;
    for (const Option& each : m_options) {
        names.push_back(each.name);
        if (each.name.starts_with(name))
            beginnings += (beginnings.empty() ? "--" : ", --") + each.name;
    }
    if (!beginnings.empty())
        throw UsageError("--" + name + " may be one of " + beginnings);
    for (const Option& each : m_options)
        if (each.completes == options::Completes::Words &&
            std::find(each.words.begin(), each.words.end(), name) != each.words.end())
            throw UsageError("unknown option --" + name + "; did you mean \"--" + each.name + " " + name +
                             "\"?");
    const std::string meant = suggestion::didYouMean(name, names, "--");
    throw UsageError(
        "unknown option --" + name +
        (meant.empty() ? "; \"quintar " + m_command.name + " --help-all\" lists the options" : meant));
}

OptionParser::Take appendTo(std::vector<std::string>& values)
{
    return [&values](const std::string& value) { values.push_back(value); };
}

OptionParser::Take setOnce(std::optional<std::string>& value, const char* name)
{
    return [&value, name](const std::string& given) {
        if (value)
            throw UsageError(std::string(name) + " is given twice");
        value = given;
    };
}

int numberOption(const char* name, const std::string& value, int lowest, int highest)
{
    int number = 0;
    const char* end = value.data() + value.size();
    const auto [rest, problem] = std::from_chars(value.data(), end, number);
    if (problem != std::errc() || rest != end || number < lowest || number > highest)
        throw UsageError(std::string(name) + " takes a number from " + std::to_string(lowest) + " to " +
                         std::to_string(highest) + ", not \"" + value + "\"");
    return number;
}

} // namespace host
