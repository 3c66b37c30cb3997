#pragma once

#include "host/options/OptionTable.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// Reads a command's options, those of the table, with getopt_long: values and file names pass as the bytes
/// that they are, whatever they look like, options and file names may be mixed, and "--" ends the options.
class OptionParser
{
public:
    using Take = std::function<void(const std::string& value)>;
    using TakeSecret = std::function<void(char* argument)>;

    explicit OptionParser(const options::Command& command);

    /// Says who takes an option's value, or the flag when it is given. std::logic_error for an option that
    /// the table does not have.
    void takeValue(const std::string& name, Take take);
    void takeFlag(const std::string& name, bool& flag);
    /// The same for a value that is to be overwritten where it stands; nobody else copies it.
    void takeSecret(const std::string& name, TakeSecret take);

    /// \returns the arguments that are no options. Throws UsageError; std::logic_error when nobody takes one
    /// of the options.
    std::vector<std::string> parse(int argc, char** argv);

    /// The help that was asked for; empty when none was. Then the command is not to be run.
    const std::string& help() const { return m_help; }

private:
    void take(const std::string& name, bool isFlag, Take take);
    [[noreturn]] void refuse(char** argv, int count) const;
    bool isOption(const std::string& word) const;
    void requireValue(const options::Option& option, const std::string& value) const;

    const options::Command& m_command;
    std::vector<options::Option> m_options;
    std::map<std::string, Take> m_takers;
    std::map<std::string, TakeSecret> m_secretTakers;
    std::string m_help;
};

/// Takes values of an option that may be repeated. The values must outlive the parser, here and below.
OptionParser::Take appendTo(std::vector<std::string>& values);

/// Takes the value of an option that may be given once. \param name as the user gives it.
OptionParser::Take setOnce(std::optional<std::string>& value, const char* name);

/// Parses a whole number within bounds; throws UsageError that names the option.
int numberOption(const char* name, const std::string& value, int lowest, int highest);

} // namespace host
