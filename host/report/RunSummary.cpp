#include "RunSummary.h"

#include "host/terminal/TerminalText.h"

namespace host {

namespace {

const std::size_t mostNames = 20;

std::string further(const char* what, std::size_t count)
{
    return count > mostNames ? std::string(what) + ": " + std::to_string(count - mostNames) + " more\n" : "";
}

} // namespace

void RunSummary::add(std::size_t place, const std::string& name, const DocumentResult& result)
{
    m_changed += result.status == Status::Changed ? 1 : 0;
    m_unchanged += result.status == Status::Unchanged ? 1 : 0;
    if (result.status == Status::Failed)
        m_failures.insert_or_assign(place, About{name, result.reason.text});
    else if (!result.note.empty())
        m_notes.insert_or_assign(place, About{name, result.note});
}

std::string RunSummary::lineFor(const std::string& name, const DocumentResult& result, bool dryRun)
{
    std::string line = dryRun && result.status == Status::Changed ? "would change" : nameOf(result.status);
    if (result.saved != Saved::Not)
        line += std::string(" (") + nameOf(result.saved) + ")";
    line += "  " + forTerminal(name);
    if (result.reason)
        line += ": " + forTerminal(result.reason.text);
    if (!result.changes.empty())
        line += ": " + forTerminal(result.changes);
    return line + "\n";
}

std::string RunSummary::failures() const
{
    std::string text;
    for (const auto& [place, failure] : m_failures)
        text += "failed: " + forTerminal(failure.name) + ": " + forTerminal(failure.text) + "\n";
    return text;
}

std::string RunSummary::notes() const
{
    std::string text;
    std::size_t told = 0;
    for (auto note = m_notes.begin(); note != m_notes.end() && told < mostNames; ++note, ++told)
        text += "note: " + forTerminal(note->second.name) + ": " + forTerminal(note->second.text) + "\n";
    return text + further("note", m_notes.size());
}

std::string RunSummary::notDone() const
{
    std::string text;
    for (std::size_t index = 0; index < m_notDone.size() && index < mostNames; ++index)
        text += "not done: " + forTerminal(m_notDone[index]) + "\n";
    return text + further("not done", m_notDone.size());
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

QJsonObject RunSummary::toJson() const
{
    const auto number = [](std::size_t count) { return static_cast<qint64>(count); };
    return {{"changed", number(m_changed)},
            {"unchanged", number(m_unchanged)},
            {"failed", number(m_failures.size())},
            {"doneBefore", number(m_doneBefore)},
            {"notDone", number(m_notDone.size())}};
}

} // namespace host
