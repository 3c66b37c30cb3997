#pragma once

#include "Command.h"

namespace host {

/// "quintar lists": tells which action lists and favourites the user keeps, and what they would do.
class ListsCommand : public Command
{
public:
    const char* name() const override { return "lists"; }
    const char* summary() const override { return "tell which action lists and favourites there are"; }
    int run(int argc, char** argv) override;
};

} // namespace host
