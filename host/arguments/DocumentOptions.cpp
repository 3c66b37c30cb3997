#include "DocumentOptions.h"

#include "OptionParser.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/UsageError.h"

namespace host {

void DocumentOptions::take(OptionParser& parser)
{
    m_password.take(parser);
    m_list.take(parser);
}

void DocumentOptions::check(const std::vector<std::string>& words) const
{
    m_password.check();
    if (m_password.file() == "-" && m_list.isStandardInput())
        throw UsageError("--password-file and --files-from cannot both read standard input");
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

RunPlan DocumentOptions::planForReading(RunPlan::Found found) const
{
    RunPlan plan(RunDestination::inPlace(), std::move(found));
    for (const std::string& input : m_inputs)
        plan.add(input);
    for (const std::string& folder : plan.emptyFolders())
        note("no PDF documents in " + folder);
    if (plan.documents().empty() && plan.emptyFolders().empty())
        note("the list of documents is empty");
    return plan;
}

} // namespace host
