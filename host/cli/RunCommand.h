#pragma once

#include "Command.h"

#include "host/arguments/ChangeOptions.h"
#include "host/arguments/DocumentOptions.h"
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
    void readOptions();
    void check() const;
    /// Tells what may be a mistake, unless only failures are to be told.
    void note(const std::string& text) const;
    RunPlan plan() const;
    /// What --resume leaves out.
    BatchRun::Done doneBefore(const RunPlan& plan) const;
    /// Whether --report and --resume name the same file.
    bool continuesReport() const;

    bool m_quiet = false;
    ChangeOptions m_changeOptions;
    DocumentOptions m_documentOptions;
    std::vector<std::string> m_words;
    std::optional<std::string> m_outputFolder;
    std::optional<std::string> m_base;
    std::optional<std::string> m_reportFile;
    std::optional<std::string> m_resumedReport;
    ProcessingOptions m_options;
    WorkerPool::Limits m_limits;
};

} // namespace host
