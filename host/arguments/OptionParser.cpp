#include "OptionParser.h"

#include "host/options/HelpText.h"
#include "host/options/UnknownWords.h"
#include "host/terminal/UsageError.h"

#include <getopt.h>
#include <unistd.h>

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
        if (optarg != nullptr && optarg == argv[optind - 1])
            requireValue(*option, optarg);
        if (const auto secret = m_secretTakers.find(option->name); secret != m_secretTakers.end())
            secret->second(optarg);
        else
            m_takers.at(option->name)(optarg != nullptr ? optarg : "");
    }
    std::vector<std::string> words(argv + optind, argv + argc);
    for (const std::string& word : words)
        if (unknownwords::beginsWithOtherDash(word) && access(word.c_str(), F_OK) != 0)
            throw UsageError("\"" + word +
                             "\" begins with a dash that is no hyphen; options begin with \"--\"");
    return words;
}

void OptionParser::refuse(char** argv, int count) const
{
    if (const Option* flag = optionAt(m_options, optopt); flag != nullptr)
        throw UsageError("the option " + spelled(*flag, optopt) + " takes no value");
    const std::string word = optind > 0 && optind <= count ? argv[optind - 1] : "";
    if (word.starts_with("--"))
        throw UsageError(unknownwords::option(m_command, m_options, word.substr(2, word.find('=') - 2)));
    // Among several letters in one word, getopt has not stepped past that word yet.
    const std::string whole = optind < count ? argv[optind] : "";
    throw UsageError(unknownwords::letter(m_command, m_options, static_cast<char>(optopt),
                                          (word.starts_with('-') ? word : whole).substr(1)));
}

/// Long names may be cut short, letters stand together.
bool OptionParser::isOption(const std::string& word) const
{
    if (word.size() < 2 || word[0] != '-')
        return false;
    const auto any = [this](const auto& isIt) {
        return std::any_of(m_options.begin(), m_options.end(), isIt);
    };
    if (word[1] == '-') {
        const std::string name = word.substr(2, word.find('=') - 2);
        return !name.empty() && any([&](const Option& each) { return each.name.starts_with(name); });
    }
    return std::all_of(word.begin() + 1, word.end(), [&](char letter) {
        return any([=](const Option& each) { return each.letter == letter; });
    });
}

/// A value that was forgotten would take the next option with it: "--title -n" is no dry run.
void OptionParser::requireValue(const Option& option, const std::string& value) const
{
    const std::string name = "--" + option.name;
    if (isOption(value))
        throw UsageError(
            "the option " + name + " needs a value, and \"" + value + "\" is an option" +
            (option.words.empty() ? "; \"" + name + "=" + value + "\" would make it the value" : ""));
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
