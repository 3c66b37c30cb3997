#include "DocumentOptions.h"

#include "OptionParser.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/UsageError.h"

namespace host {

namespace {

const std::size_t largestPasswordFile = 64 << 10;

} // namespace

void DocumentOptions::take(OptionParser& parser)
{
    parser.takeValue("password", setOnce(m_givenPassword, "--password"));
    parser.takeValue("password-file", setOnce(m_passwordFile, "--password-file"));
    m_list.take(parser);
}

bool DocumentOptions::haveStandardInput(const std::vector<std::string>& words)
{
    return std::find(words.begin(), words.end(), RunDestination::standardStream) != words.end();
}

void DocumentOptions::check(const std::vector<std::string>& words, bool isInputTaken) const
{
    if (m_givenPassword && m_passwordFile)
        throw UsageError("--password and --password-file exclude each other");
    const auto readers = std::count(words.begin(), words.end(), RunDestination::standardStream) +
                         (m_passwordFile == "-" ? 1 : 0) + (m_list.isStandardInput() ? 1 : 0) +
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
    readPassword();
    if (!m_list.isGiven())
        return;
    const std::vector<std::string> names = m_list.read();
    m_inputs.insert(m_inputs.end(), names.begin(), names.end());
    m_filesRead.push_back(m_list.file());
}

RunPlan DocumentOptions::planForReading(RunPlan::Found found) const
{
    RunPlan plan(RunDestination::none(), std::move(found));
    for (const std::string& input : m_inputs)
        input == RunDestination::standardStream ? plan.addStandardInput() : plan.add(input);
    for (const std::string& folder : plan.emptyFolders())
        note("no PDF documents in " + folder);
    if (plan.documents().empty() && plan.emptyFolders().empty())
        note("the list of documents is empty");
    return plan;
}

void DocumentOptions::readPassword()
{
    m_password = m_givenPassword.value_or("");
    if (!m_passwordFile)
        return;
    m_filesRead.push_back(*m_passwordFile);
    const std::string lines = readNamedFile(*m_passwordFile, largestPasswordFile, "the password file");
    m_password = lines.substr(0, lines.find_first_of("\r\n"));
}

} // namespace host
