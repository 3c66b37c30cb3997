#include "UndoRun.h"

#include "host/saving/SafeOutput.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/TerminalText.h"

#include <QJsonObject>

#include <new>
#include <set>

namespace host {

namespace {

const char* nameOf(UndoResult::Kind kind)
{
    switch (kind) {
    case UndoResult::Undone:
        return "undone";
    case UndoResult::UndoneAlready:
        return "undone already";
    case UndoResult::NothingDone:
        return "unchanged";
    case UndoResult::LeftAlone:
        break;
    }
    return "left alone";
}

} // namespace

int UndoRun::run()
{
    m_options.control.takeSignals();
    if (m_options.events != nullptr)
        tellFound();
    if (!m_options.dryRun)
        removeLeftovers();
    try {
        undoDocuments();
        for (std::size_t index = 0; index < m_plan.leftAlone().size(); ++index)
            leaveAlone(m_plan.documents().size() + index, m_plan.leftAlone()[index]);
        sumUp();
    } catch (const std::bad_alloc&) {
        complainOfEarlyEnd();
        return exitstatus::someFailed;
    }
    return m_options.control.isStopped() ? exitstatus::stopped
           : m_leftAlone > 0             ? exitstatus::someFailed
                                         : exitstatus::done;
}

void UndoRun::tellFound() const
{
    for (const UndoPlan::Document& document : m_plan.documents())
        m_options.events->found(document.path);
    for (const UndoPlan::LeftAlone& what : m_plan.leftAlone())
        m_options.events->found(what.name);
}

void UndoRun::removeLeftovers() const
{
    std::set<std::string> folders;
    for (const UndoPlan::Document& document : m_plan.documents())
        if (folders.insert(SafeOutput::folderOf(document.path)).second)
            SafeOutput::removeLeftovers(SafeOutput::folderOf(document.path));
}

void UndoRun::undoDocuments()
{
    const std::vector<UndoPlan::Document>& documents = m_plan.documents();
    for (std::size_t index = 0; index < documents.size(); ++index) {
        m_options.control.waitWhilePaused();
        if (m_options.control.isStopped())
            ++m_notDone;
        else
            add(index, documents[index].path, DocumentUndo(documents[index]).perform(m_options.dryRun));
    }
}

void UndoRun::add(std::size_t number, const std::string& path, const UndoResult& result)
{
    m_undone += result.kind == UndoResult::Undone ? 1 : 0;
    m_undoneAlready += result.kind == UndoResult::UndoneAlready ? 1 : 0;
    if (result.reason)
        ++m_leftAlone;
    if (m_options.events == nullptr)
        return print(path, result);
    const QString note = QString::fromStdString(result.note);
    m_options.events->result(number, result.reason, result.kind == UndoResult::LeftAlone,
                             {{"status", nameOf(result.kind)},
                              {"note", note.isEmpty() ? QJsonValue() : QJsonValue(note)},
                              {"before", QJsonObject()},
                              {"after", QJsonObject()}});
}

void UndoRun::leaveAlone(std::size_t number, const UndoPlan::LeftAlone& what)
{
    add(number, what.name, {UndoResult::LeftAlone, what.reason});
}

void UndoRun::print(const std::string& path, const UndoResult& result) const
{
    if (!m_options.quiet && result.kind == UndoResult::Undone)
        printLines((m_options.dryRun ? "would undo  " : "undone  ") + forTerminal(path) + "\n");
    if (!m_options.quiet && result.kind == UndoResult::UndoneAlready)
        printLines("undone already  " + forTerminal(path) + "\n");
    if (!m_options.quiet && !result.note.empty())
        printError("note: " + forTerminal(path) + ": " + forTerminal(result.note) + "\n");
    if (result.reason)
        printError("left alone: " + forTerminal(path) + ": " + forTerminal(result.reason.text) + "\n");
}

void UndoRun::sumUp() const
{
    const auto number = [](std::size_t count) { return static_cast<qint64>(count); };
    if (m_options.events != nullptr)
        m_options.events->end({{"undone", number(m_undone)},
                               {"undoneAlready", number(m_undoneAlready)},
                               {"leftAlone", number(m_leftAlone)}},
                              m_options.control.isStopped());
    else if (!m_options.quiet)
        printLines(counts());
}

/// "3 undone, 0 undone already, 1 left alone", with a line feed.
std::string UndoRun::counts() const
{
    return std::to_string(m_undone) + (m_options.dryRun ? " would be undone, " : " undone, ") +
           std::to_string(m_undoneAlready) + " undone already, " + std::to_string(m_leftAlone) +
           " left alone" +
           (m_notDone > 0 ? ", stopped with " + std::to_string(m_notDone) + " not done" : std::string()) +
           "\n";
}

} // namespace host
