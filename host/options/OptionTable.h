#pragma once

#include <string>
#include <vector>

/// The program's commands and options. Parsing, help texts, man pages, completions and the chapter of
/// docs/usage.md are all made from this table.
namespace host::options {

enum class CommandId { Run, Undo, Show, Check, Configure, Lists, Window };

/// What a shell offers for an option's value.
enum class Completes {
    Nothing,
    Words, ///< Those of Option::words.
    Files, ///< With the suffixes in Option::words, all when there are none.
    Folders,
};

/// Where help texts tell about an option; in their order.
enum class Group { View, Source, Target, Documents, Signed, Work, Output };

struct Option
{
    std::string name;  ///< Without the dashes.
    char letter;       ///< A short name, or 0.
    std::string value; ///< Stands for the value in help texts; empty for a flag.
    std::string brief; ///< What it does, in a line.
    std::string more;  ///< What else is to be known; may be empty.
    Completes completes;
    std::vector<std::string> words;
    std::vector<CommandId> commands;
    Group group;
    bool common; ///< Whether --help names it, besides --help-all.

    bool isOf(CommandId command) const;
    /// "-o, --output DIR"
    std::string form() const;
    /// What is to be known beyond the brief text: the rest, and the words that the value takes.
    std::string rest() const;
};

struct ExitStatus
{
    int status;
    std::string meaning;
};

struct Example
{
    std::string command;
    std::string purpose;
};

struct Command
{
    CommandId id;
    std::string name;
    std::string summary;  ///< For the list of commands.
    std::string synopsis; ///< What stands behind the command's name.
    std::string description;
    std::vector<Example> examples; ///< Three, the most common first.
    std::vector<ExitStatus> exitStatuses;
    std::vector<std::string> files; ///< Suffixes of the files that it takes by their names alone.
};

const std::vector<Command>& commands();
const Command& command(CommandId id);
std::vector<std::string> commandNames();

/// What every command and the program itself has: --help, --help-all.
const std::vector<Option>& commonOptions();
/// The command's own options, without the common ones, in the order of their groups.
std::vector<Option> optionsOf(CommandId command);
const char* titleOf(Group group);

} // namespace host::options
