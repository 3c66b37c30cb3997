#pragma once

#include "Command.h"

namespace host {

/// "quintar window": starts the window, a program of its own, in the place of this one.
class WindowCommand : public Command
{
public:
    options::CommandId id() const override { return options::CommandId::Window; }

protected:
    void takeOptions(OptionParser&) override {}
    int work(const std::vector<std::string>& words) override;
};

} // namespace host
