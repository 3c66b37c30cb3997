#include "ShowCommand.h"

#include "host/arguments/LimitOptions.h"
#include "host/arguments/OptionParser.h"
#include "host/reading/ReadingRun.h"
#include "host/reading/ShowTeller.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/TextWidth.h"
#include "host/terminal/UsageError.h"

#include <unistd.h>

namespace host {

void ShowCommand::takeOptions(OptionParser& parser)
{
    parser.takeFlag("json", m_json);
    parser.takeFlag("table", m_table);
    m_documents.take(parser);
    takeLimits(parser, m_limits);
    takeSandbox(parser, m_sandbox);
}

int ShowCommand::work(const std::vector<std::string>& words)
{
    if (m_json && m_table)
        throw UsageError("--json and --table exclude each other");
    m_documents.check(words);
    m_documents.read(words);
    Cell cell(m_sandbox);
    noteMissing(cell, m_sandbox);
    const RunPlan plan = m_documents.planForReading();
    ShowTeller::Form form = ShowTeller::Words();
    if (m_json)
        form = ShowTeller::Json();
    if (m_table) {
        const ViewTable table(textwidth::ofTerminal(STDOUT_FILENO));
        printResult(table.header());
        form = table;
    }
    return ReadingRun(plan, cell, {m_documents.password(), m_limits}).run([&](auto& library) {
        return std::make_unique<ShowTeller>(library, form);
    });
}

} // namespace host
