#include "ListHistory.h"

namespace host::desktop {

namespace {

const std::size_t mostSteps = 50;

} // namespace

ListHistory::ListHistory(DocumentTable& table, QObject* parent) : QObject(parent), m_table(table) {}

void ListHistory::beginAdding()
{
    push({});
}

void ListHistory::added(const DocumentTable::Ids& ids)
{
    if (m_next == 0 || m_steps[m_next - 1].isRemoval)
        push({});
    m_steps[m_next - 1].ids += ids;
    emit changed();
}

void ListHistory::remove(const DocumentTable::Ids& ids)
{
    Step step{true, ids, m_table.remove(ids)};
    if (!step.kept.empty())
        push(std::move(step));
}

/// A step that added nothing, since all was in the list already, leaves no trace.
void ListHistory::push(Step step)
{
    m_steps.resize(m_next);
    if (!m_steps.empty() && m_steps.back().ids.isEmpty())
        m_steps.pop_back();
    if (m_steps.size() == mostSteps)
        m_steps.erase(m_steps.begin());
    m_steps.push_back(std::move(step));
    m_next = m_steps.size();
    emit changed();
}

DocumentTable::Ids ListHistory::undo()
{
    if (!canUndo())
        return {};
    Step& step = m_steps[--m_next];
    turn(step);
    emit changed();
    return step.isRemoval ? step.ids : DocumentTable::Ids();
}

void ListHistory::redo()
{
    if (!canRedo())
        return;
    turn(m_steps[m_next++]);
    emit changed();
}

void ListHistory::changeKept(const DocumentTable::Change& change)
{
    for (Step& step : m_steps)
        for (DocumentRecord& record : step.kept)
            change(record);
}

/// What is kept comes back, what is in the list goes and is kept.
void ListHistory::turn(Step& step)
{
    if (step.kept.empty())
        step.kept = m_table.remove(step.ids);
    else
        m_table.restore(std::exchange(step.kept, {}));
}

QString ListHistory::undoText() const
{
    return canUndo() ? textOf(m_steps[m_next - 1], false) : tr("&Undo");
}

QString ListHistory::redoText() const
{
    return canRedo() ? textOf(m_steps[m_next], true) : tr("&Redo");
}

QString ListHistory::textOf(const Step& step, bool again)
{
    if (step.isRemoval)
        return again ? tr("&Redo Removing %n Document(s)", "", step.ids.size())
                     : tr("&Undo Removing %n Document(s)", "", step.ids.size());
    return again ? tr("&Redo Adding %n Document(s)", "", step.ids.size())
                 : tr("&Undo Adding %n Document(s)", "", step.ids.size());
}

} // namespace host::desktop
