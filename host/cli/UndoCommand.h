#pragma once

#include "Command.h"

namespace host {

/// "quintar undo": takes back what a run changed in place, by its report.
class UndoCommand : public Command
{
public:
    options::CommandId id() const override { return options::CommandId::Undo; }

protected:
    void takeOptions(OptionParser& parser) override;
    int work(const std::vector<std::string>& words) override;

private:
    bool m_dryRun = false;
    bool m_quiet = false;
};

} // namespace host
