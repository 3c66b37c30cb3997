#include "UndoCommand.h"

#include "host/arguments/OptionParser.h"
#include "host/terminal/UsageError.h"
#include "host/undo/UndoPlan.h"
#include "host/undo/UndoRun.h"

namespace host {

void UndoCommand::takeOptions(OptionParser& parser)
{
    parser.takeFlag("dry-run", m_dryRun);
    parser.takeFlag("quiet", m_quiet);
    m_list.take(parser);
    m_live.take(parser);
}

int UndoCommand::work(const std::vector<std::string>& words)
{
    if (words.size() != 1)
        throw UsageError(words.empty() ? "which run? Name its report"
                                       : "undo takes one report; of several the newest first");
    m_list.check();
    m_live.check({}, m_list.isStandardInput());
    UndoPlan plan(words.front());
    if (m_list.isGiven())
        plan.restrictTo(m_list.read());
    m_live.begin(name(), plan.documents().size() + plan.leftAlone().size(), words.front());
    return UndoRun(plan, {m_live.control(), m_live.events(), m_dryRun, m_quiet}).run();
}

} // namespace host
