#include "Workbench.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace host::desktop {

using Command = RunMachine::Command;
using Step = RunMachine::Step;
using State = RunMachine::State;

void Workbench::start()
{
    if (m_machine.isEnabled(Command::Start))
        run(startable(), base());
}

void Workbench::tryAgain()
{
    if (!m_machine.isEnabled(Command::TryAgain))
        return;
    Ids ids;
    for (const DocumentRecord& record : m_table.records())
        if (record.result && (record.result->isTrouble() || record.result->kind == Outcome::Kind::NotDone))
            ids.append(record.id);
    if (!ids.isEmpty())
        run(ids, m_lastBase); // where the others have been written
}

void Workbench::run(const Ids& ids, const QString& base)
{
    auto* running = new Running(Running::Mode::Do, m_runOrder, m_history.folder(), m_table, means(), this);
    if (!QDir().mkpath(m_history.folder())) {
        delete running;
        return emit failed(
            tr("Nothing is begun: the folder for reports cannot be made: %1").arg(m_history.folder()));
    }
    m_lastOrder = m_runOrder;
    m_lastBase = base;
    if (m_machine.state() != State::Results)
        m_lastNote.clear();
    begin(running, &Workbench::endRunning);
    m_machine.handle(Step::Started);
    running->start(ids, base);
}

void Workbench::pause()
{
    if (!m_machine.isEnabled(Command::Pause))
        return;
    m_task->pause();
    m_machine.handle(Step::Paused);
}

void Workbench::resume()
{
    if (!m_machine.isEnabled(Command::Resume))
        return;
    m_task->resume();
    m_machine.handle(Step::Resumed);
}

void Workbench::stop()
{
    if (!m_machine.isEnabled(Command::Stop) || m_task.isNull())
        return;
    m_machine.handle(Step::Stopped);
    m_task->stop();
}

void Workbench::endRunning(const ChildRun::Ending& ending)
{
    if (!ending.isComplete)
        emit failed(ending.words.isEmpty() ? tr("The run broke off.") : ending.words);
    writeDown(*qobject_cast<const Running*>(m_task.data()), ending.isComplete);
    m_task->deleteLater();
    m_task.clear();
    m_machine.handle(Step::Ended);
    m_order.settle();
    emit progressed();
    emit countsChanged();
    emit runEnded();
}

QString Workbench::resultFolder() const
{
    const bool isInFolder = m_lastOrder.destination.kind == Destination::Kind::Folder;
    if (m_machine.state() != State::Results || !isInFolder)
        return {};
    const Counts now = counts();
    return now.written + now.copied > 0 ? m_lastOrder.destination.folderPath() : QString();
}

/// What a run has changed that broke off is not known, if it began at all.
void Workbench::writeDown(const Running& running, bool isComplete)
{
    RunHistory::Run done;
    done.what = running.order().draft.inWords();
    done.where = running.order().destination.inWords();
    done.isInPlace = running.order().destination.kind == Destination::Kind::InPlace;
    done.reports = running.reports();
    const bool hasBegun = std::any_of(done.reports.begin(), done.reports.end(),
                                      [](const QString& report) { return QFile::exists(report); });
    const Counts now = counts();
    done.changed = isComplete || !hasBegun ? now.changed + now.written + now.copied : -1;
    const auto& [note, problem] = m_history.add(done, m_lastNote);
    m_lastNote = note;
    if (!problem.isEmpty())
        emit failed(problem);
}

void Workbench::undoRun(int row)
{
    if (!m_machine.isEnabled(Command::UndoRun) || !m_history.canUndo(row))
        return;
    dropTask();
    leaveResults();
    m_undoing = m_history.runs().at(static_cast<std::size_t>(row)).note;
    auto* undoing = new Undoing(m_table, means(), this);
    begin(undoing, &Workbench::endUndoing);
    m_machine.handle(Step::Undo);
    undoing->start(m_history.runs().at(static_cast<std::size_t>(row)).reports);
}

void Workbench::tellOfUndoing(const Undoing& undoing, const ChildRun::Ending& ending)
{
    const QString undone = tr("%Ln document(s) are as they were before the run.", "", undoing.undone());
    if (!ending.isComplete && undoing.undone() == 0)
        return emit failed(ending.words.isEmpty() ? tr("Undoing broke off.") : ending.words);
    if (ending.wasStopped)
        return emit said(tr("Undoing was stopped: %Ln document(s) are as they were before the run.", "",
                            undoing.undone()));
    if (undoing.leftAlone() == 0)
        return emit said(undone);
    const QString leftAlone =
        tr("%Ln document(s) were left alone, since they are no longer as the run left them.", "",
           undoing.leftAlone());
    emit failed(undoing.undone() == 0 ? leftAlone : leftAlone + " " + undone);
}

/// The documents of the run are read again; what was left alone says why until a person has it read again.
void Workbench::endUndoing(const ChildRun::Ending& ending)
{
    const auto* undoing = qobject_cast<const Undoing*>(m_task.data());
    const int leftAlone = undoing->leftAlone();
    tellOfUndoing(*undoing, ending);
    m_task->deleteLater();
    m_task.clear();
    m_history.reload(); // its report may have been passed over while it was locked
    if (ending.isComplete && !ending.wasStopped && leftAlone == 0)
        if (const QString problem = m_history.setUndone(m_undoing); !problem.isEmpty())
            emit failed(problem);
    m_edits.changeKept([](DocumentRecord& record) { record.forget(); });
    Ids ids;
    for (const DocumentRecord& record : m_table.records())
        if (record.result && record.result->kind == Outcome::Kind::Undone)
            ids.append(record.id);
    m_machine.handle(m_table.count() > 0 ? Step::Undone : Step::Emptied);
    emit progressed();
    emit runEnded();
    if (ids.isEmpty())
        return edited();
    readAgain(ids);
}

void Workbench::appendAllTheSame(const Ids& ids)
{
    Ids again;
    for (const DocumentId id : ids) {
        const DocumentRecord* record = m_table.find(id);
        const QString code = record != nullptr ? record->reasonCode() : QString();
        if (code != "signed" && code != "certified")
            continue;
        again.append(id);
        m_table.change(id, [&code](DocumentRecord& each) {
            each.check.reset();
            each.howSigned =
                code == "signed" ? DocumentRecord::Signed::Append : DocumentRecord::Signed::AppendCertified;
        });
    }
    m_table.flush();
    if (again.isEmpty())
        return;
    if (m_machine.state() == State::Results)
        run(again, m_lastBase);
    else
        edited();
}

void Workbench::givePassword(const QByteArray& password)
{
    if (!m_machine.isEnabled(Command::Remove))
        return;
    dropTask();
    const Ids ids = m_passwordTrial.begin(m_table, m_passwords.add(password), PasswordTrial::On::All);
    if (ids.isEmpty())
        return emit said(tr("No document of the list wants a password."));
    readAgain(ids);
}

/// Whether a document may be changed is known once it has been tried out.
void Workbench::tellOfPassword()
{
    if (!m_passwordTrial.isUnderWay() || m_machine.state() == State::Checking)
        return;
    const auto& [text, hasOpened] = m_passwordTrial.end(m_table);
    if (!text.isEmpty())
        hasOpened ? emit said(text) : emit failed(text);
}

/// What came since they were given, or has turned out to want one since, asks nobody again.
void Workbench::tryKnownPasswords()
{
    if (m_passwordTrial.isUnderWay())
        return;
    for (int password = 0; password < m_passwords.count(); ++password)
        if (const Ids ids = m_passwordTrial.begin(m_table, password, PasswordTrial::On::NewOnes);
            !ids.isEmpty())
            return readAgain(ids);
}

} // namespace host::desktop
