#pragma once

#include "Command.h"

#include "host/arguments/ListOptions.h"
#include "host/arguments/LiveOptions.h"

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
    ListOptions m_list;
    LiveOptions m_live{EventStream::Unheard::GoesOn};
    bool m_dryRun = false;
    bool m_quiet = false;
};

} // namespace host
