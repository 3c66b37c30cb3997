#pragma once

#include "Command.h"

#include "host/arguments/DocumentOptions.h"
#include "host/arguments/LiveOptions.h"
#include "host/cell/Cell.h"
#include "host/workers/WorkerPool.h"

namespace host {

class ViewTable;

/// "quintar show": tells how documents open.
class ShowCommand : public Command
{
public:
    options::CommandId id() const override { return options::CommandId::Show; }

protected:
    void takeOptions(OptionParser& parser) override;
    int work(const std::vector<std::string>& words) override;

private:
    static void noteLeftOut(const ViewTable& table);

    bool m_json = false;
    bool m_table = false;
    int m_bookmarks = 0; ///< How many are told at most.
    DocumentOptions m_documents;
    LiveOptions m_live{EventStream::Unheard::Ends};
    WorkerPool::Limits m_limits;
    Sandbox m_sandbox = Sandbox::Default;
};

} // namespace host
