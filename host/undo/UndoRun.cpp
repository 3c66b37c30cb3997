#include "UndoRun.h"

#include "host/saving/SafeOutput.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/TerminalText.h"
#include "host/workers/StopSignal.h"

#include <unistd.h>

#include <set>

namespace host {

namespace {

void print(const std::string& text)
{
    writeAll(STDOUT_FILENO, text.data(), text.size()); // nobody may be listening
}

} // namespace

int UndoRun::run()
{
    StopSignal stop;
    if (!m_dryRun)
        removeLeftovers();
    undoDocuments(stop);
    for (const UndoPlan::LeftAlone& what : m_plan.leftAlone())
        leaveAlone(what);
    if (!m_quiet)
        print(counts());
    return stop.count() > 0  ? exitstatus::stopped
           : m_leftAlone > 0 ? exitstatus::someFailed
                             : exitstatus::done;
}

void UndoRun::removeLeftovers() const
{
    std::set<std::string> folders;
    for (const UndoPlan::Document& document : m_plan.documents())
        if (folders.insert(SafeOutput::folderOf(document.path)).second)
            SafeOutput::removeLeftovers(SafeOutput::folderOf(document.path));
}

void UndoRun::undoDocuments(StopSignal& stop)
{
    for (const UndoPlan::Document& document : m_plan.documents())
        if (stop.count() > 0)
            ++m_notDone;
        else
            add(document.path, DocumentUndo(document).perform(m_dryRun));
}

void UndoRun::add(const std::string& path, const UndoResult& result)
{
    m_undone += result.kind == UndoResult::Undone ? 1 : 0;
    m_undoneAlready += result.kind == UndoResult::UndoneAlready ? 1 : 0;
    if (!m_quiet && result.kind == UndoResult::Undone)
        print((m_dryRun ? "would undo  " : "undone  ") + forTerminal(path) + "\n");
    if (!m_quiet && result.kind == UndoResult::UndoneAlready)
        print("undone already  " + forTerminal(path) + "\n");
    if (!m_quiet && !result.note.empty())
        printError("note: " + forTerminal(path) + ": " + forTerminal(result.note) + "\n");
    if (!result.reason.empty())
        leaveAlone({path, result.reason});
}

void UndoRun::leaveAlone(const UndoPlan::LeftAlone& what)
{
    ++m_leftAlone;
    printError("left alone: " + forTerminal(what.name) + ": " + forTerminal(what.reason) + "\n");
}

/// "3 undone, 0 undone already, 1 left alone", with a line feed.
std::string UndoRun::counts() const
{
    return std::to_string(m_undone) + (m_dryRun ? " would be undone, " : " undone, ") +
           std::to_string(m_undoneAlready) + " undone already, " + std::to_string(m_leftAlone) +
           " left alone" +
           (m_notDone > 0 ? ", stopped with " + std::to_string(m_notDone) + " not done" : std::string()) +
           "\n";
}

} // namespace host
