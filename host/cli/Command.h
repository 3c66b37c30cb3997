#pragma once

namespace host {

/// One of the program's commands.
class Command
{
public:
    virtual ~Command() = default;

    virtual const char* name() const = 0;
    /// A line for the list of commands.
    virtual const char* summary() const = 0;
    /// Whether the command makes an application object of its own, once it knows that it needs a display.
    virtual bool showsWindows() const { return false; }
    /// \param argv the arguments, the command's name first.
    /// \returns the exit status. Throws UsageError.
    virtual int run(int argc, char** argv) = 0;
};

} // namespace host
