#pragma once

#include "Command.h"

namespace host {

/// "quintar lists": tells which action lists and favourites the user keeps, and what they would do.
class ListsCommand : public Command
{
public:
    options::CommandId id() const override { return options::CommandId::Lists; }

protected:
    void takeOptions(OptionParser& parser) override;
    int work(const std::vector<std::string>& words) override;

private:
    bool m_json = false;
};

} // namespace host
