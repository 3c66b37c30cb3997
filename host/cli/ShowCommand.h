#pragma once

#include "Command.h"

namespace host {

/// "quintar show": tells how documents open.
class ShowCommand : public Command
{
public:
    const char* name() const override { return "show"; }
    const char* summary() const override { return "tell how documents open"; }
    int run(int argc, char** argv) override;
};

} // namespace host
