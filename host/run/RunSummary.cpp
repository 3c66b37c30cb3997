#include "RunSummary.h"

#include "host/terminal/FileNames.h"

namespace host {

namespace {

const std::size_t mostNames = 20;

} // namespace

void RunSummary::add(std::size_t place, const std::string& name, const DocumentResult& result)
{
    m_changed += result.status == Status::Changed ? 1 : 0;
    m_unchanged += result.status == Status::Unchanged ? 1 : 0;
    if (result.status == Status::Failed)
        m_failures.insert_or_assign(place, Failure{name, result.reason});
}

std::string RunSummary::lineFor(const std::string& name, const DocumentResult& result, bool dryRun)
{
    std::string line = dryRun && result.status == Status::Changed ? "would change" : nameOf(result.status);
    if (result.saved != Saved::Not)
        line += std::string(" (") + nameOf(result.saved) + ")";
    line += "  " + forTerminal(name);
    if (!result.reason.empty())
        line += ": " + forTerminal(result.reason);
    return line + "\n";
}

std::string RunSummary::failures() const
{
    std::string text;
    for (const auto& [place, failure] : m_failures)
        text += "failed: " + forTerminal(failure.name) + ": " + forTerminal(failure.reason) + "\n";
    for (std::size_t index = 0; index < m_notDone.size() && index < mostNames; ++index)
        text += "not done: " + forTerminal(m_notDone[index]) + "\n";
    if (m_notDone.size() > mostNames)
        text += "not done: " + std::to_string(m_notDone.size() - mostNames) + " more\n";
    return text;
}

std::string RunSummary::counts(bool dryRun) const
{
    std::string text = std::to_string(m_changed) + (dryRun ? " would change, " : " changed, ") +
                       std::to_string(m_unchanged) + " unchanged, " + std::to_string(m_failures.size()) +
                       " failed";
    if (m_doneBefore > 0)
        text += ", " + std::to_string(m_doneBefore) + " done before";
    if (!m_notDone.empty())
        text += ", stopped with " + std::to_string(m_notDone.size()) + " not done";
    return text + "\n";
}

} // namespace host
