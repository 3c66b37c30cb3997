#pragma once

#include "host/options/OptionTable.h"

#include <string>
#include <vector>

/// Answers to words of the command line that are none of the program's, each with what may be meant.
namespace host::unknownwords {

/// A word that stands in the place of a command.
std::string command(const std::string& word);

/// A name, without its dashes, that no option of the command has. \param options all that it has.
std::string option(const options::Command& command, const std::vector<options::Option>& options,
                   const std::string& name);

/// A letter that no option of the command has. \param word the argument that it stands in, without its dash.
std::string letter(const options::Command& command, const std::vector<options::Option>& options, char letter,
                   const std::string& word);

/// Whether a word begins with a dash that is no hyphen, as texts have it, and so with no option.
bool beginsWithOtherDash(const std::string& word);

} // namespace host::unknownwords
