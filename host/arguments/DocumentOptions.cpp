#include "DocumentOptions.h"

#include "OptionParser.h"
#include "host/terminal/UsageError.h"

namespace host {

void DocumentOptions::take(OptionParser& parser)
{
    m_password.take(parser);
    m_list.take(parser);
    parser.takeFlag("no-folders", m_refusesFolders);
}

bool DocumentOptions::haveStandardInput(const std::vector<std::string>& words)
{
    return std::find(words.begin(), words.end(), RunDestination::standardStream) != words.end();
}

void DocumentOptions::check(const std::vector<std::string>& words, bool isInputTaken) const
{
    m_password.check();
    const auto readers = std::count(words.begin(), words.end(), RunDestination::standardStream) +
                         (m_password.file() == "-" ? 1 : 0) + (m_list.isStandardInput() ? 1 : 0) +
                         (isInputTaken ? 1 : 0);
    if (readers > 1)
        throw UsageError("standard input is named more than once, and can be read once only");
    m_list.check();
    if (words.empty() && !m_list.isGiven())
        throw UsageError("which documents? Name documents or folders, or give --files-from");
}

void DocumentOptions::read(const std::vector<std::string>& words)
{
    m_inputs = words;
    m_password.read();
    if (m_password.file())
        m_filesRead.push_back(*m_password.file());
    if (!m_list.isGiven())
        return;
    const std::vector<std::string> names = m_list.read();
    m_inputs.insert(m_inputs.end(), names.begin(), names.end());
    m_filesRead.push_back(m_list.file());
}

void DocumentOptions::addTo(RunPlan& plan) const
{
    const auto folders = m_refusesFolders ? RunPlan::Folders::Refused : RunPlan::Folders::Searched;
    for (const std::string& input : m_inputs)
        input == RunDestination::standardStream ? plan.addStandardInput() : plan.add(input, folders);
}

RunPlan DocumentOptions::planForReading(RunPlan::Found found) const
{
    RunPlan plan(RunDestination::none(), std::move(found));
    addTo(plan);
    return plan;
}

} // namespace host
