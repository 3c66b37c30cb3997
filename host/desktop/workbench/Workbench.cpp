#include "Workbench.h"

#include <QSet>

#include <algorithm>

namespace host::desktop {

using Command = RunMachine::Command;
using Step = RunMachine::Step;
using State = RunMachine::State;

namespace {

const int checkMilliseconds = 300;
const int collectMilliseconds = 30;

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
    connect(&m_machine, &RunMachine::changed, this, [this] {
        m_order.hold(m_machine.state() == State::Checking);
    }); // of which nothing is known for a while
    connect(&m_machine, &RunMachine::changed, this, &Workbench::addWaiting, Qt::QueuedConnection);
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
    auto* reading = new Reading(m_table, means(), this);
    m_edits.beginAdding();
    connect(reading, &Reading::added, &m_edits, &EditHistory::added);
    addBy(reading, paths);
}

void Workbench::addAgain(const QVector<QByteArray>& paths)
{
    addBy(new Reading(m_table, means(), this), paths);
}

void Workbench::addBy(Reading* reading, const QVector<QByteArray>& paths)
{
    dropTask();
    startReading(reading);
    reading->add(paths + std::exchange(m_unread, {}));
}

/// Once nothing stands against it any more.
void Workbench::addWaiting()
{
    if (m_machine.isEnabled(Command::Add) && m_machine.state() != State::Reading)
        add(std::exchange(m_waiting, {}));
}

QVector<QByteArray> Workbench::pending() const
{
    QVector<QByteArray> paths;
    if (const auto* reading = qobject_cast<const Reading*>(m_task.data()))
        paths += reading->paths();
    for (const QByteArray& path : m_unread + m_waiting)
        paths += path;
    paths.erase(std::remove_if(paths.begin(), paths.end(),
                               [this](const QByteArray& path) { return m_table.idOf(path) != 0; }),
                paths.end());
    return paths;
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
    const DocumentId next = m_order.besides(ids);
    m_edits.remove(ids);
    if (next != 0)
        m_order.select({next}, next);
    follow();
}

void Workbench::undoEdit()
{
    if (!m_machine.isEnabled(Command::UndoEdit))
        return;
    dropTask();
    if (const Ids back = m_edits.undo(); !back.isEmpty())
        m_order.select(back, back.front()); // as they were when they were removed
    follow();
}

void Workbench::redoEdit()
{
    if (!m_machine.isEnabled(Command::UndoEdit))
        return;
    dropTask();
    m_edits.redo();
    follow();
}

/// After the list has changed without reading: what has come back is read already, unless it was undone meanwhile.
void Workbench::follow()
{
    if (m_table.count() > 0 && m_machine.state() == State::Empty) {
        m_machine.handle(Step::Added);
        m_machine.handle(Step::Read);
    }
    collectTargets();
    Ids unread;
    for (const DocumentRecord& record : m_table.records())
        if (record.state() == DocumentRecord::State::Waiting)
            unread.append(record.id);
    if (!unread.isEmpty())
        return readAgain(unread);
    if (m_machine.state() != State::Results) // which stay those of the documents that are left
        edited();
}

void Workbench::setDraft(const ChangeDraft& draft)
{
    edit({draft, m_runOrder.destination});
}

void Workbench::setDestination(const Destination& destination)
{
    edit({m_runOrder.draft, destination});
}

void Workbench::edit(const RunOrder& order)
{
    if (order == m_runOrder)
        return;
    const auto& [name, isTyped] = order.differenceFrom(m_runOrder);
    m_edits.set({name, isTyped, [this, other = m_runOrder]() mutable {
                     const RunOrder now = m_runOrder;
                     restore(other);
                     other = now;
                 }});
    restore(order);
}

void Workbench::restore(const RunOrder& order)
{
    m_runOrder = order;
    leaveResults();
    changeAll([](DocumentRecord& record) { record.check.reset(); });
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
        markAside();
        m_collectSoon.stop();
        edited();
    }
    emit targetsChanged();
    emit countsChanged();
}

Workbench::Ids Workbench::startable() const
{
    Ids ids;
    for (const DocumentId id : m_targets)
        if (const DocumentRecord* record = m_table.find(id);
            record != nullptr && record->state() != DocumentRecord::State::LeftAlone)
            ids.append(id);
    return ids;
}

void Workbench::markAside()
{
    const QSet<DocumentId> within(m_targets.begin(), m_targets.end());
    for (const DocumentRecord& each : m_table.records())
        if (each.isAside == within.contains(each.id))
            m_table.change(each.id, [](DocumentRecord& record) { record.isAside = !record.isAside; });
    m_table.flush();
}

/// What would change has to be found out, once nothing has been edited for a moment.
void Workbench::edited()
{
    const State state = m_machine.state();
    if (state == State::Reading || state == State::Empty || m_machine.isWriting())
        return;
    if (state == State::Checking)
        dropTask();
    m_problem.clear();
    if (m_runOrder.draft.isEmpty() || m_targets.isEmpty()) {
        m_checkSoon.stop();
        m_machine.handle(Step::Cleared);
    } else {
        m_machine.handle(Step::Edited);
        m_checkSoon.start();
    }
    emit countsChanged();
}

void Workbench::changeAll(const DocumentTable::Change& change)
{
    m_edits.changeKept(change);
    m_table.changeAll(change);
}

/// Results belong to the documents as they are now: what was changed in place is what is there.
void Workbench::leaveResults()
{
    if (m_machine.state() != State::Results)
        return;
    changeAll([](DocumentRecord& record) {
        if (record.facts && record.state() == DocumentRecord::State::Changed) {
            auto facts = std::make_shared<DocumentFacts>(*record.facts);
            facts->view.view.add(record.result->after.view);
            if (record.result->after.view[ViewEntry::OpenPage])
                facts->view.action = record.result->after.action;
            record.facts = facts;
        }
        record.result.reset();
        record.check.reset();
    });
    markAside(); // others may have been shown or selected meanwhile
}

void Workbench::check()
{
    if (m_machine.state() != State::Checking)
        return;
    const QString folder = base();
    m_problem = m_runOrder.problem(folder);
    if (!m_problem.isEmpty()) {
        emit countsChanged();
        return;
    }
    const Ids chosen = m_order.selected();
    const QSet<DocumentId> first(chosen.begin(), chosen.end());
    Ids ids;
    for (const DocumentId id : startable())
        if (!m_table.find(id)->check)
            ids.append(id);
    std::stable_partition(ids.begin(), ids.end(), [&first](DocumentId id) { return first.contains(id); });
    auto* trial = new Running(Running::Mode::Try, m_runOrder, {}, m_table, means(), this);
    begin(trial, &Workbench::endChecking);
    trial->start(ids, folder);
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
    const auto* reading = qobject_cast<const Reading*>(m_task.data());
    const int known = reading->known();
    const bool wasLooking = !reading->paths().isEmpty();
    const bool isNoneFound = wasLooking && reading->total() == 0;
    if (!ending.isComplete && !ending.wasStopped)
        m_unread = reading->paths();
    m_task->deleteLater();
    m_task.clear();
    if (!ending.isComplete && !ending.wasStopped)
        emit failed(ending.words.isEmpty() ? tr("Reading broke off.") : ending.words);
    else if (ending.wasStopped && wasLooking)
        emit said(tr("Reading was stopped. What was not found until then is not in the list."));
    else if (known > 0)
        emit said(tr("%Ln document(s) were in the list already.", "", known));
    else if (isNoneFound)
        emit failed(tr("No PDF document was found there."));
    m_passwordTrial.restore(m_table);
    m_machine.handle(m_table.count() > 0 ? Step::Read : Step::Emptied);
    m_order.settle();
    collectTargets();
    emit progressed();
    edited();
    tellOfPassword();
    if (ending.isComplete && !ending.wasStopped)
        tryKnownPasswords();
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
    tellOfPassword();
    if (ending.isComplete && !ending.wasStopped)
        tryKnownPasswords();
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
        counts.cannot += record.isInTrouble() && state != DocumentRecord::State::Failed ? 1 : 0;
        counts.changed += state == DocumentRecord::State::Changed ? 1 : 0;
        counts.written += state == DocumentRecord::State::Written ? 1 : 0;
        counts.copied += state == DocumentRecord::State::Copied ? 1 : 0;
        counts.unchanged += state == DocumentRecord::State::Unchanged ? 1 : 0;
        counts.failed += state == DocumentRecord::State::Failed ? 1 : 0;
        if (record.isInTrouble())
            ++counts.reasons[record.reasonCode()];
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
