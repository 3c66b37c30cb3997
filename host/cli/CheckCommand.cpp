#include "CheckCommand.h"

#include "host/arguments/LimitOptions.h"
#include "host/arguments/OptionParser.h"
#include "host/plan/StreamFiles.h"
#include "host/program/InstallLayout.h"
#include "host/program/PluginHost.h"
#include "host/reading/CheckTeller.h"
#include "host/reading/ReadingRun.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"

#include <optional>

namespace host {

void CheckCommand::takeOptions(OptionParser& parser)
{
    m_asked.take(parser);
    m_documents.take(parser);
    takeLimits(parser, m_limits);
    takeSandbox(parser, m_sandbox);
    m_live.take(parser);
    parser.takeFlag("json", m_json);
    parser.takeFlag("quiet", m_quiet);
}

int CheckCommand::work(const std::vector<std::string>& words)
{
    const bool hasInput = DocumentOptions::haveStandardInput(words);
    m_asked.check();
    m_documents.check(words, m_asked.readsStandardInput());
    m_live.check(m_json ? "--json" : "",
                 hasInput || m_documents.readsStandardInput() || m_asked.readsStandardInput());
    m_documents.read(words);
    Cell cell(m_sandbox);
    m_asked.read(m_documents.password(), cell, hasInput);
    if (!m_quiet)
        noteMissing(cell, m_sandbox);
    if (!m_quiet)
        for (const std::string& text : m_asked.notes())
            note(text);
    std::optional<StreamFiles> streams;
    if (hasInput)
        streams.emplace().readInput();
    m_live.begin(name(), m_documents.inputs());
    const RunPlan plan = m_documents.planForReading(m_live.found());
    if (!m_quiet)
        for (const std::string& text : plan.notes())
            note(text);
    const PluginHost plugin(installlayout::pluginFile());
    const CheckTeller::Question question{m_asked.change(), m_asked.entries(), plugin.action(),
                                         m_json || m_live.events() != nullptr};
    // In JSON, notes stand in the lines.
    ReadingRun run(plan, cell,
                   {m_documents.password(), m_limits, m_live.control(), m_live.events(), m_quiet || m_json,
                    m_json ? CheckTeller::failureInJson : ReadingRun::FailureLine(),
                    streams ? &*streams : nullptr});
    const int status =
        run.run([&](auto& library) { return std::make_unique<CheckTeller>(library, question); });
    if (m_live.events() != nullptr)
        end(run);
    else if (!m_quiet && !m_json)
        sumUp(run);
    return status;
}

void CheckCommand::end(const ReadingRun& run)
{
    const auto count = [&](Reading::Kind kind) { return static_cast<qint64>(run.count(kind)); };
    m_live.events()->end({{"asAsked", count(Reading::Good)},
                          {"differs", count(Reading::Differs)},
                          {"failed", count(Reading::Failed)}},
                         m_live.control().isStopped());
}

void CheckCommand::sumUp(const ReadingRun& run) const
{
    printResult(std::to_string(run.count(Reading::Good)) + " as asked, " +
                std::to_string(run.count(Reading::Differs)) + " not, " +
                std::to_string(run.count(Reading::Failed)) + " failed\n");
}

} // namespace host
