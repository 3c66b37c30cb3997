#pragma once

#include "host/options/OptionTable.h"

#include <string>
#include <vector>

namespace host {

class OptionParser;

/// One of the program's commands.
class Command
{
public:
    virtual ~Command() = default;

    virtual options::CommandId id() const = 0;
    const char* name() const { return options::command(id()).name.c_str(); }
    /// Whether the command makes an application object of its own, once it knows that it needs a display.
    virtual bool showsWindows() const { return false; }
    /// Does what the arguments ask for, or prints help.
    /// \param argv the arguments, the command's name first.
    /// \returns the exit status. Throws UsageError.
    int run(int argc, char** argv);

protected:
    /// Says who takes which option.
    virtual void takeOptions(OptionParser& parser) = 0;
    /// \param words the arguments that are no options. \returns the exit status.
    virtual int work(const std::vector<std::string>& words) = 0;
};

} // namespace host
