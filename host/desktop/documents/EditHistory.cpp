#include "EditHistory.h"

#include <algorithm>

namespace host::desktop {

namespace {

const std::size_t mostSteps = 50;

} // namespace

EditHistory::EditHistory(DocumentTable& table, QObject* parent) : QObject(parent), m_table(table) {}

void EditHistory::beginAdding()
{
    ++m_batch;
}

/// Settings may have been made since the adding began.
void EditHistory::added(const DocumentTable::Ids& ids)
{
    const auto begun = std::find_if(m_steps.begin(), m_steps.begin() + std::ptrdiff_t(m_next),
                                    [this](const Step& step) { return step.batch == m_batch; });
    if (begun == m_steps.begin() + std::ptrdiff_t(m_next))
        return push({Step::Kind::Adding, ids, {}, m_batch, {}});
    begun->ids += ids;
    emit changed();
}

void EditHistory::remove(const DocumentTable::Ids& ids)
{
    Step step{Step::Kind::Removal, ids, m_table.remove(ids), 0, {}};
    if (!step.kept.empty())
        push(std::move(step));
}

void EditHistory::set(Setting setting)
{
    const Setting* last = m_next > 0 ? &m_steps[m_next - 1].setting : nullptr;
    const bool goesOn = last != nullptr && last->isTyped && setting.isTyped && last->name == setting.name;
    if (goesOn && !canRedo())
        return;
    push({Step::Kind::Setting, {}, {}, 0, std::move(setting)});
}

void EditHistory::push(Step step)
{
    m_steps.erase(m_steps.begin() + std::ptrdiff_t(m_next), m_steps.end());
    if (m_steps.size() == mostSteps)
        m_steps.erase(m_steps.begin());
    m_steps.push_back(std::move(step));
    m_next = m_steps.size();
    emit changed();
}

DocumentTable::Ids EditHistory::undo()
{
    if (!canUndo())
        return {};
    Step& step = m_steps[--m_next];
    turn(step);
    emit changed();
    return step.kind == Step::Kind::Removal ? step.ids : DocumentTable::Ids();
}

void EditHistory::redo()
{
    if (!canRedo())
        return;
    turn(m_steps[m_next++]);
    emit changed();
}

void EditHistory::changeKept(const DocumentTable::Change& change)
{
    for (Step& step : m_steps)
        for (DocumentRecord& record : step.kept)
            change(record);
}

/// What is kept comes back, what is in the list goes and is kept.
void EditHistory::turn(Step& step)
{
    if (step.kind == Step::Kind::Setting)
        step.setting.turn();
    else if (step.kept.empty())
        step.kept = m_table.remove(step.ids);
    else
        m_table.restore(std::exchange(step.kept, {}));
}

QString EditHistory::undoText() const
{
    return canUndo() ? textOf(m_steps[m_next - 1], false) : tr("&Undo");
}

QString EditHistory::redoText() const
{
    return canRedo() ? textOf(m_steps[m_next], true) : tr("&Redo");
}

QString EditHistory::textOf(const Step& step, bool again)
{
    if (step.kind == Step::Kind::Setting && step.setting.name.isEmpty())
        return again ? tr("&Redo Changing the Settings") : tr("&Undo Changing the Settings");
    if (step.kind == Step::Kind::Setting)
        return (again ? tr("&Redo Setting “%1”") : tr("&Undo Setting “%1”")).arg(step.setting.name);
    if (step.kind == Step::Kind::Removal)
        return again ? tr("&Redo Removing %Ln Document(s)", "", step.ids.size())
                     : tr("&Undo Removing %Ln Document(s)", "", step.ids.size());
    return again ? tr("&Redo Adding %Ln Document(s)", "", step.ids.size())
                 : tr("&Undo Adding %Ln Document(s)", "", step.ids.size());
}

} // namespace host::desktop
