#include "OptionParser.h"

#include "host/terminal/UsageError.h"

#include <getopt.h>

#include <charconv>

namespace host {

namespace {

const int firstLongOption = 256;

} // namespace

void OptionParser::addValue(const char* name, Take take, char shortName)
{
    m_options.push_back({name, shortName, true, std::move(take)});
}

void OptionParser::addFlag(const char* name, bool& flag, char shortName)
{
    m_options.push_back({name, shortName, false, [&flag](const std::string&) { flag = true; }});
}

std::vector<std::string> OptionParser::parse(int argc, char** argv)
{
    std::string shortNames = ":"; // tells a missing value from an unknown option
    std::vector<option> longNames;
    for (std::size_t index = 0; index < m_options.size(); ++index) {
        const Option& each = m_options[index];
        longNames.push_back({each.name, each.takesValue ? required_argument : no_argument, nullptr,
                             firstLongOption + static_cast<int>(index)});
        if (each.shortName != 0)
            shortNames += std::string(1, each.shortName) + (each.takesValue ? ":" : "");
    }
    longNames.push_back({});

    opterr = 0;
    optind = 0;
    for (int found; (found = getopt_long(argc, argv, shortNames.c_str(), longNames.data(), nullptr)) != -1;) {
        const std::string word = optind > 0 && optind <= argc ? argv[optind - 1] : "";
        if (found == ':')
            throw UsageError("the option " + word + " needs a value");
        if (found == '?')
            throw UsageError("unknown or incomplete option " + word);
        for (std::size_t index = 0; index < m_options.size(); ++index)
            if (found == firstLongOption + static_cast<int>(index) || found == m_options[index].shortName)
                m_options[index].take(optarg != nullptr ? optarg : "");
    }
    return std::vector<std::string>(argv + optind, argv + argc);
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
