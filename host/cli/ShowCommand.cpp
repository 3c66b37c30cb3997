#include "ShowCommand.h"

#include "host/arguments/LimitOptions.h"
#include "host/arguments/OptionParser.h"
#include "host/plan/StreamFiles.h"
#include "host/reading/ReadingRun.h"
#include "host/reading/ShowTeller.h"
#include "host/reading/ViewTable.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/TextWidth.h"
#include "host/terminal/UsageError.h"
#include "host/view/Bookmarks.h"

#include <unistd.h>

#include <optional>

namespace host {

void ShowCommand::takeOptions(OptionParser& parser)
{
    parser.takeFlag("json", m_json);
    parser.takeFlag("table", m_table);
    parser.takeValue("outline", [this](const std::string& value) {
        m_bookmarks = value == "all" ? Bookmarks::most : numberOption("--outline", value, 1, Bookmarks::most);
    });
    m_documents.take(parser);
    takeLimits(parser, m_limits);
    takeSandbox(parser, m_sandbox);
    m_live.take(parser);
}

int ShowCommand::work(const std::vector<std::string>& words)
{
    if (m_json && m_table)
        throw UsageError("--json and --table exclude each other");
    if (m_table && m_bookmarks > 0)
        throw UsageError("--outline and --table exclude each other: a row has no place for bookmarks");
    const bool hasInput = DocumentOptions::haveStandardInput(words);
    m_documents.check(words);
    m_live.check(m_json ? "--json" : m_table ? "--table" : "", hasInput || m_documents.readsStandardInput());
    m_documents.read(words);
    Cell cell(m_sandbox);
    noteMissing(cell, m_sandbox);
    std::optional<StreamFiles> streams;
    if (hasInput)
        streams.emplace().readInput();
    m_live.begin(name(), m_documents.inputs());
    const RunPlan plan = m_documents.planForReading(m_live.found());
    for (const std::string& text : plan.notes())
        note(text);
    ShowTeller::Form form = ShowTeller::Words();
    if (m_json || m_live.events() != nullptr)
        form = ShowTeller::Json();
    if (m_table) {
        const ViewTable table(textwidth::ofTerminal(STDOUT_FILENO));
        noteLeftOut(table);
        printResult(table.header());
        form = table;
    }
    ReadingRun::Options options{m_documents.password(), m_limits, m_live.control(), m_live.events()};
    options.streams = streams ? &*streams : nullptr;
    ReadingRun run(plan, cell, options);
    const int status =
        run.run([&](auto& library) { return std::make_unique<ShowTeller>(library, form, m_bookmarks); });
    if (m_live.events() != nullptr)
        m_live.events()->end({{"read", static_cast<qint64>(run.count(Reading::Good))},
                              {"failed", static_cast<qint64>(run.count(Reading::Failed))}},
                             m_live.control().isStopped());
    return status;
}

void ShowCommand::noteLeftOut(const ViewTable& table)
{
    std::string titles;
    for (const std::string& title : table.leftOut())
        titles += (titles.empty() ? "" : ", ") + title;
    if (!titles.empty())
        note("the terminal is too narrow for all columns; left out: " + titles);
}

} // namespace host
