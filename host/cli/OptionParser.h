#pragma once

#include <functional>
#include <string>
#include <vector>

namespace host {

/// Reads a command's options with getopt_long: values and file names pass as the bytes that they are,
/// whatever they look like, options and file names may be mixed, and "--" ends the options.
class OptionParser
{
public:
    using Take = std::function<void(const std::string& value)>;

    /// An option that takes a value, --name VALUE or --name=VALUE.
    void addValue(const char* name, Take take, char shortName = 0);
    void addFlag(const char* name, bool& flag, char shortName = 0);

    /// \returns the arguments that are no options. Throws UsageError.
    std::vector<std::string> parse(int argc, char** argv);

private:
    struct Option
    {
        const char* name;
        char shortName;
        bool takesValue;
        Take take;
    };

    std::vector<Option> m_options;
};

/// Parses a whole number within bounds; throws UsageError that names the option.
int numberOption(const char* name, const std::string& value, int lowest, int highest);

} // namespace host
