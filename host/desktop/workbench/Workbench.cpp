#include "Workbench.h"

#include <QDir>
#include <QSet>

#include <algorithm>

namespace host::desktop {

using Command = RunMachine::Command;
using Step = RunMachine::Step;
using State = RunMachine::State;

namespace {

const int checkMilliseconds = 300;
const int collectMilliseconds = 30;

bool wantsPassword(const DocumentRecord& record)
{
    const QString code = record.reasonCode();
    return code == "password" || code == "permission";
}

} // namespace

Workbench::Workbench(const QString& program, const QString& reports, QObject* parent)
    : QObject(parent), m_program(program), m_history(reports)
{
    m_checkSoon.setSingleShot(true);
    m_checkSoon.setInterval(checkMilliseconds);
    m_collectSoon.setSingleShot(true);
    m_collectSoon.setInterval(collectMilliseconds);
    connect(&m_checkSoon, &QTimer::timeout, this, &Workbench::check);
    connect(&m_collectSoon, &QTimer::timeout, this, &Workbench::collectTargets);
    for (auto signal : {&DocumentOrder::shownChanged, &DocumentOrder::selectionMoved})
        connect(&m_order, signal, &m_collectSoon, QOverload<>::of(&QTimer::start));
    connect(&m_table, &DocumentTable::changed, &m_collectSoon, QOverload<>::of(&QTimer::start));
    connect(&m_table, &DocumentTable::rearranged, this, [this] {
        if (m_table.count() == 0)
            m_machine.handle(Step::Emptied);
        m_collectSoon.start();
    });
}

void Workbench::add(const QVector<QByteArray>& paths)
{
    if (paths.isEmpty())
        return;
    if (!m_machine.isEnabled(Command::Add) || m_machine.state() == State::Reading) {
        m_waiting += paths;
        emit said(tr("What you added waits until this is done."));
        return;
    }
    dropTask();
    m_list.beginAdding();
    auto* reading = new Reading(m_table, means(), this);
    connect(reading, &Reading::added, &m_list, &ListHistory::added);
    startReading(reading);
    reading->add(paths);
}

void Workbench::startReading(Reading* reading)
{
    leaveResults();
    m_machine.handle(Step::Added);
    begin(reading, &Workbench::endReading);
}

void Workbench::readAgain(const Ids& ids)
{
    if (!m_machine.isEnabled(Command::Remove) || ids.isEmpty())
        return;
    dropTask();
    auto* reading = new Reading(m_table, means(), this);
    startReading(reading);
    for (const DocumentId id : ids)
        m_table.change(id, [](DocumentRecord& record) { record.forget(); });
    m_table.flush();
    reading->start(ids);
}

void Workbench::remove(const Ids& ids)
{
    if (!m_machine.isEnabled(Command::Remove))
        return;
    dropTask();
    m_list.remove(ids);
    follow();
}

void Workbench::undoList()
{
    if (!m_machine.isEnabled(Command::UndoList))
        return;
    dropTask();
    m_list.undo();
    follow();
}

void Workbench::redoList()
{
    if (!m_machine.isEnabled(Command::UndoList))
        return;
    dropTask();
    m_list.redo();
    follow();
}

/// After the list has changed without reading: what has come back is read already.
void Workbench::follow()
{
    if (m_table.count() > 0 && m_machine.state() == State::Empty) {
        m_machine.handle(Step::Added);
        m_machine.handle(Step::Read);
    }
    collectTargets();
    edited();
}

void Workbench::setDraft(const ChangeDraft& draft)
{
    if (draft == m_runOrder.draft)
        return;
    m_runOrder.draft = draft;
    leaveResults();
    m_table.changeAll([](DocumentRecord& record) { record.check.reset(); });
    edited();
    emit draftChanged();
}

void Workbench::setDestination(const Destination& destination)
{
    if (destination == m_runOrder.destination)
        return;
    m_runOrder.destination = destination;
    leaveResults();
    m_table.changeAll([](DocumentRecord& record) { record.check.reset(); });
    edited();
    emit draftChanged();
}

void Workbench::setScope(Scope scope)
{
    m_scope = scope;
    collectTargets();
}

bool Workbench::isForSelected() const
{
    const int selected = m_order.selected().size();
    return m_scope == Scope::Automatic ? selected > 1 : m_scope == Scope::Selected && selected > 0;
}

/// What is said of documents that the change is not for would mislead.
void Workbench::collectTargets()
{
    m_collectSoon.stop();
    const Ids targets = isForSelected() ? m_order.selected() : m_order.shown();
    const bool isOther = targets != m_targets;
    m_targets = targets;
    if (isOther && m_machine.state() != State::Results && !m_machine.isWriting()) {
        const QSet<DocumentId> within(targets.begin(), targets.end());
        for (const DocumentRecord& each : m_table.records())
            if (each.isAside == within.contains(each.id))
                m_table.change(each.id, [](DocumentRecord& record) { record.isAside = !record.isAside; });
        m_table.flush();
        m_collectSoon.stop();
        edited();
    }
    emit targetsChanged();
    emit countsChanged();
}

/// What would change has to be found out, once nothing has been edited for a moment.
void Workbench::edited()
{
    const State state = m_machine.state();
    if (state == State::Reading || state == State::Empty || m_machine.isWriting())
        return;
    if (state == State::Checking)
        dropTask();
    if (m_runOrder.draft.isEmpty() || m_targets.isEmpty()) {
        m_checkSoon.stop();
        m_machine.handle(Step::Cleared);
    } else {
        m_machine.handle(Step::Edited);
        m_checkSoon.start();
    }
    emit countsChanged();
}

/// Results belong to the documents as they are now: what was changed in place is what is there.
void Workbench::leaveResults()
{
    if (m_machine.state() != State::Results)
        return;
    const bool inPlace = m_lastOrder.destination.kind == Destination::Kind::InPlace;
    m_table.changeAll([inPlace](DocumentRecord& record) {
        if (inPlace && record.result && record.facts && record.result->kind == Outcome::Kind::Changed) {
            auto facts = std::make_shared<DocumentFacts>(*record.facts);
            facts->view.view.add(record.result->after.view);
            if (record.result->after.view[ViewEntry::OpenPage])
                facts->view.action = record.result->after.action;
            record.facts = facts;
        }
        record.result.reset();
        record.check.reset();
    });
}

void Workbench::check()
{
    if (m_machine.state() != State::Checking)
        return;
    if (const QString problem = m_runOrder.destination.problem(); !problem.isEmpty()) {
        emit countsChanged();
        return;
    }
    const Ids chosen = m_order.selected();
    const QSet<DocumentId> first(chosen.begin(), chosen.end());
    Ids ids;
    for (const DocumentId id : m_targets)
        if (const DocumentRecord* record = m_table.find(id); record != nullptr && !record->check)
            ids.append(id);
    std::stable_partition(ids.begin(), ids.end(), [&first](DocumentId id) { return first.contains(id); });
    auto* trial = new Running(Running::Mode::Try, m_runOrder, {}, m_table, means(), this);
    begin(trial, &Workbench::endChecking);
    trial->start(ids);
}

void Workbench::begin(DocumentTask* task, void (Workbench::*end)(const ChildRun::Ending&))
{
    dropTask();
    m_task = task;
    connect(task, &DocumentTask::progressed, this, &Workbench::progressed);
    connect(task, &DocumentTask::finished, this, end);
    emit progressed();
}

void Workbench::dropTask()
{
    if (m_task.isNull())
        return;
    m_task->disconnect(this);
    delete m_task; // its child is told to stop
}

void Workbench::endReading(const ChildRun::Ending& ending)
{
    const int known = qobject_cast<const Reading*>(m_task.data())->known();
    m_task->deleteLater();
    m_task.clear();
    if (!ending.isComplete && !ending.wasStopped)
        emit failed(ending.words.isEmpty() ? tr("Reading broke off.") : ending.words);
    else if (known > 0)
        emit said(tr("%n document(s) were in the list already.", "", known));
    m_machine.handle(m_table.count() > 0 ? Step::Read : Step::Emptied);
    m_order.settle();
    collectTargets();
    emit progressed();
    if (!m_waiting.isEmpty())
        return add(std::exchange(m_waiting, {}));
    edited();
}

void Workbench::endChecking(const ChildRun::Ending& ending)
{
    m_task->deleteLater();
    m_task.clear();
    if (ending.wasStopped || !ending.isComplete) {
        m_machine.handle(Step::Cleared);
        if (!ending.isComplete && !ending.wasStopped)
            emit failed(ending.words.isEmpty() ? tr("Finding out what would change broke off.")
                                               : ending.words);
    } else {
        m_machine.handle(Step::Checked);
    }
    emit progressed();
    emit countsChanged();
}

void Workbench::start()
{
    if (m_machine.isEnabled(Command::Start))
        run(m_targets);
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
        run(ids);
}

void Workbench::run(const Ids& ids)
{
    auto* running = new Running(Running::Mode::Do, m_runOrder, m_history.folder(), m_table, means(), this);
    if (!QDir().mkpath(m_history.folder())) {
        delete running;
        return emit failed(
            tr("Nothing is begun: the folder for reports cannot be made: %1").arg(m_history.folder()));
    }
    m_lastOrder = m_runOrder;
    begin(running, &Workbench::endRunning);
    m_machine.handle(Step::Started);
    running->start(ids);
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
    writeDown(*qobject_cast<const Running*>(m_task.data()));
    m_task->deleteLater();
    m_task.clear();
    m_machine.handle(Step::Ended);
    m_order.settle();
    emit progressed();
    emit countsChanged();
    emit runEnded();
    if (!m_waiting.isEmpty())
        add(std::exchange(m_waiting, {}));
}

void Workbench::writeDown(const Running& running)
{
    RunHistory::Run done;
    done.what = running.order().draft.inWords();
    done.where = running.order().destination.inWords();
    done.isInPlace = running.order().destination.kind == Destination::Kind::InPlace;
    done.changed = counts().changed;
    done.reports = running.reports();
    if (const QString problem = m_history.add(done); !problem.isEmpty())
        emit failed(problem);
}

void Workbench::undoRun(int row)
{
    if (!m_machine.isEnabled(Command::UndoRun) || !m_history.canUndo(row))
        return;
    dropTask();
    leaveResults();
    m_undoing = row;
    auto* undoing = new Undoing(m_table, means(), this);
    begin(undoing, &Workbench::endUndoing);
    m_machine.handle(Step::Undo);
    undoing->start(m_history.runs().at(static_cast<std::size_t>(row)).reports);
}

/// The documents of the run are read again; what was left alone says why until then.
void Workbench::endUndoing(const ChildRun::Ending& ending)
{
    const auto* undoing = qobject_cast<const Undoing*>(m_task.data());
    const int undone = undoing->undone();
    const int leftAlone = undoing->leftAlone();
    m_task->deleteLater();
    m_task.clear();
    if (!ending.isComplete && undone == 0)
        emit failed(ending.words.isEmpty() ? tr("Undoing broke off.") : ending.words);
    else if (leftAlone == 0)
        emit said(tr("%n document(s) are as they were before the run.", "", undone));
    else
        emit failed(tr("%n document(s) were left alone, since they are no longer as the run left them.", "",
                       leftAlone));
    if (ending.isComplete && leftAlone == 0)
        if (const QString problem = m_history.setUndone(m_undoing); !problem.isEmpty())
            emit failed(problem);
    Ids ids;
    for (const DocumentRecord& record : m_table.records())
        if (record.result && record.result->kind == Outcome::Kind::Undone)
            ids.append(record.id);
    m_machine.handle(m_table.count() > 0 ? Step::Undone : Step::Emptied);
    emit progressed();
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
        run(again);
    else
        edited();
}

void Workbench::givePassword(const QByteArray& password)
{
    const int place = m_passwords.add(password);
    Ids ids;
    for (const DocumentRecord& record : m_table.records())
        if (wantsPassword(record))
            ids.append(record.id);
    for (const DocumentId id : ids)
        m_table.change(id, [place](DocumentRecord& record) { record.password = place; });
    readAgain(ids);
}

Workbench::Counts Workbench::counts() const
{
    Counts counts;
    const auto count = [&counts](const DocumentRecord& record) {
        const DocumentRecord::State state = record.state();
        ++counts.targets;
        counts.waiting +=
            state == DocumentRecord::State::Waiting || state == DocumentRecord::State::Known ? 1 : 0;
        counts.willChange += state == DocumentRecord::State::WillChange ? 1 : 0;
        counts.asAsked += state == DocumentRecord::State::AsAsked ? 1 : 0;
        counts.cannot +=
            state == DocumentRecord::State::Cannot || state == DocumentRecord::State::Unreadable ? 1 : 0;
        counts.changed += state == DocumentRecord::State::Changed ? 1 : 0;
        counts.unchanged += state == DocumentRecord::State::Unchanged ? 1 : 0;
        counts.failed += state == DocumentRecord::State::Failed ? 1 : 0;
        counts.notDone += state == DocumentRecord::State::NotDone ? 1 : 0;
    };
    const bool areResults = m_machine.state() == State::Results || m_machine.isWriting();
    if (areResults) {
        for (const DocumentRecord& record : m_table.records())
            if (record.result)
                count(record);
    } else {
        for (const DocumentId id : m_targets)
            if (const DocumentRecord* record = m_table.find(id))
                count(*record);
    }
    return counts;
}

} // namespace host::desktop
