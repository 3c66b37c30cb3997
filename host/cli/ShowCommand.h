#pragma once

#include "Command.h"

namespace host {

/// "quintar show": tells how documents open.
class ShowCommand : public Command
{
public:
    options::CommandId id() const override { return options::CommandId::Show; }

protected:
    void takeOptions(OptionParser& parser) override;
    int work(const std::vector<std::string>& words) override;

private:
    bool m_json = false;
    std::string m_password;
};

} // namespace host
