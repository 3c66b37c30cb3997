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
}

int UndoCommand::work(const std::vector<std::string>& words)
{
    if (words.size() != 1)
        throw UsageError(words.empty() ? "which run? Name its report"
                                       : "undo takes one report; of several the newest first");
    const UndoPlan plan(words.front());
    return UndoRun(plan, m_dryRun, m_quiet).run();
}

} // namespace host
