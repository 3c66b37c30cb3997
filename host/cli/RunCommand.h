#pragma once

#include "Command.h"

#include "host/change/ViewChange.h"
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
    void takeViewOptions(OptionParser& parser);
    /// What the view options ask for, in the order in which they count.
    void readChange();
    void readSettings();
    void readPassword();
    void readFileList();
    void check() const;
    bool changesView() const;
    void warnOfSettingsWithoutEffect() const;
    /// Tells what may be a mistake, unless only failures are to be told.
    void note(const std::string& text) const;
    RunPlan plan() const;
    /// What --resume leaves out.
    BatchRun::Done doneBefore(const RunPlan& plan) const;
    /// Whether --report and --resume name the same file.
    bool continuesReport() const;

    bool m_quiet = false;
    bool m_nullSeparated = false;
    std::vector<std::string> m_lists;
    std::vector<std::string> m_favorites;
    std::vector<std::string> m_toolSettings;
    std::vector<std::string> m_settingWords;
    std::optional<std::string> m_viewFile;
    std::optional<std::string> m_model;
    bool m_titleFromFileName = false;
    bool m_titleIfMissing = false;
    ViewChange m_change; ///< Of the options that each name an entry.
    std::optional<std::string> m_outputFolder;
    std::optional<std::string> m_base;
    std::optional<std::string> m_password;
    std::optional<std::string> m_passwordFile;
    std::optional<std::string> m_fileList;
    std::optional<std::string> m_reportFile;
    std::optional<std::string> m_resumedReport;
    std::vector<std::string> m_filesRead; ///< Besides the documents.
    std::vector<std::string> m_inputs;
    ProcessingOptions m_options;
    WorkerPool::Limits m_limits;
};

} // namespace host
