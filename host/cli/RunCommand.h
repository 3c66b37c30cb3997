#pragma once

#include "Command.h"

#include "host/arguments/ChangeOptions.h"
#include "host/arguments/DocumentOptions.h"
#include "host/arguments/LiveOptions.h"
#include "host/cell/Cell.h"
#include "host/plan/StreamFiles.h"
#include "host/run/BatchRun.h"
#include "host/run/DocumentProcessor.h"
#include "host/workers/WorkerPool.h"

#include <optional>
#include <string>
#include <vector>

namespace host {

class RunPlan;

/// "quintar run": applies stored settings to documents.
class RunCommand : public Command
{
public:
    options::CommandId id() const override { return options::CommandId::Run; }

protected:
    void takeOptions(OptionParser& parser) override;
    int work(const std::vector<std::string>& words) override;

private:
    void readOptions(Cell& cell);
    void check() const;
    /// Tells what may be a mistake, unless only failures are to be told.
    void note(const std::string& text) const;
    RunPlan plan(const RunDestination& destination);
    std::vector<std::string> filesRead() const;
    void begin(Report& report, const RunPlan& plan, const Cell& cell) const;
    /// What --resume leaves out.
    BatchRun::Done doneBefore(const RunPlan& plan) const;
    /// Whether --report and --resume name the same file.
    bool continuesReport() const;

    /// Where the results go. Throws UsageError unless exactly one place is named.
    RunDestination destination() const;
    void checkStandardOutput() const;
    bool hasStandardInput() const;
    bool printsResult() const;
    /// Standard input and output as files, where they are among documents and results.
    void openStreams();
    Tells tells();

    bool m_quiet = false;
    ChangeOptions m_changeOptions;
    DocumentOptions m_documentOptions;
    LiveOptions m_live{EventStream::Unheard::GoesOn};
    std::vector<std::string> m_words;
    std::optional<std::string> m_output;
    std::optional<std::string> m_suffix;
    std::optional<std::string> m_base;
    std::optional<std::string> m_reportFile;
    std::optional<std::string> m_resumedReport;
    ProcessingOptions m_options;
    std::optional<StreamFiles> m_streams;
    WorkerPool::Limits m_limits;
    Sandbox m_sandbox = Sandbox::Default;
};

} // namespace host
