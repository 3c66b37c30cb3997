#pragma once

#include "Command.h"

#include "host/arguments/ChangeOptions.h"
#include "host/arguments/DocumentOptions.h"
#include "host/arguments/LiveOptions.h"
#include "host/cell/Cell.h"
#include "host/workers/WorkerPool.h"

namespace host {

class ReadingRun;

/// "quintar check": tells which documents do not open as asked.
class CheckCommand : public Command
{
public:
    options::CommandId id() const override { return options::CommandId::Check; }

protected:
    void takeOptions(OptionParser& parser) override;
    int work(const std::vector<std::string>& words) override;

private:
    void end(const ReadingRun& run);
    void sumUp(const ReadingRun& run) const;

    bool m_json = false;
    bool m_quiet = false;
    ChangeOptions m_asked;
    DocumentOptions m_documents;
    LiveOptions m_live{EventStream::Unheard::Ends};
    WorkerPool::Limits m_limits;
    Sandbox m_sandbox = Sandbox::Default;
};

} // namespace host
