#include "RowTexts.h"

#include "host/desktop/texts/ReasonTexts.h"
#include "host/desktop/texts/ViewTexts.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <initializer_list>

namespace host::desktop::rowtexts {

namespace {

using State = DocumentRecord::State;

struct StateText
{
    State state;
    const char* text;
    const char* sign;
};

// clang-format off
const StateText stateTexts[] = {
    {State::Waiting, QT_TRANSLATE_NOOP("RowTexts", "waiting"), "…"},
    {State::Known, QT_TRANSLATE_NOOP("RowTexts", "ready"), ""},
    {State::Unreadable, QT_TRANSLATE_NOOP("RowTexts", "cannot be read"), "!"},
    {State::WillChange, QT_TRANSLATE_NOOP("RowTexts", "will change"), "✎"},
    {State::AsAsked, QT_TRANSLATE_NOOP("RowTexts", "opens so already"), "="},
    {State::Cannot, QT_TRANSLATE_NOOP("RowTexts", "cannot be changed"), "!"},
    {State::Changed, QT_TRANSLATE_NOOP("RowTexts", "changed"), "✓"},
    {State::Unchanged, QT_TRANSLATE_NOOP("RowTexts", "as it was"), "="},
    {State::Written, QT_TRANSLATE_NOOP("RowTexts", "result written"), "✓"},
    {State::Copied, QT_TRANSLATE_NOOP("RowTexts", "copied as it was"), "="},
    {State::Failed, QT_TRANSLATE_NOOP("RowTexts", "failed"), "✗"},
    {State::NotDone, QT_TRANSLATE_NOOP("RowTexts", "not done"), "…"},
    {State::Undone, QT_TRANSLATE_NOOP("RowTexts", "undone"), "↶"},
    {State::LeftAlone, QT_TRANSLATE_NOOP("RowTexts", "left alone"), "!"},
};
// clang-format on

const StateText& find(State state)
{
    return *std::find_if(std::begin(stateTexts), std::end(stateTexts),
                         [state](const StateText& each) { return each.state == state; });
}

bool isOf(State state, std::initializer_list<State> states)
{
    return std::find(states.begin(), states.end(), state) != states.end();
}

QString arrow(const QString& before, const QString& after)
{
    return QCoreApplication::translate("RowTexts", "%1 → %2").arg(before, after);
}

CellText flag(bool yes)
{
    return {yes ? QCoreApplication::translate("RowTexts", "Yes") : QStringLiteral("–"), {}, !yes};
}

CellText number(int value)
{
    return value > 0 ? CellText{QLocale().toString(value), {}, false}
                     : CellText{QStringLiteral("–"), {}, true};
}

/// Both are of the same document: what the outcome says counts before what was read earlier.
CellText entryCell(const DocumentRecord& record, ViewEntry entry)
{
    const Outcome* outcome = record.outcome();
    const bool differs = outcome != nullptr && (outcome->before.view[entry] || outcome->after.view[entry]);
    if (differs) {
        const QString now = outcome->before.textOf(entry);
        return {now == viewtexts::unset() ? QStringLiteral("–") : now, outcome->after.textOf(entry), false};
    }
    const ViewReading& view = record.facts->view;
    const bool isUnset = !view.view[entry] || view.view[entry] == ViewValue(Unset());
    if (isUnset && !(entry == ViewEntry::OpenPage && !view.action.isEmpty()))
        return {QStringLiteral("–"), {}, true};
    return {view.textOf(entry), {}, false};
}

/// The window options and what else has no column: what is set, in a list.
CellText entriesCell(const DocumentRecord& record, std::span<const ViewEntry> entries)
{
    QStringList now;
    QStringList after;
    bool differs = false;
    for (const ViewEntry entry : entries) {
        const CellText text = entryCell(record, entry);
        const auto named = [entry](const QString& value) { return viewtexts::nameOf(entry) + ": " + value; };
        if (!text.isQuiet && text.now != QStringLiteral("–"))
            now += named(text.now);
        if (!text.after.isEmpty())
            after += named(text.after);
        differs = differs || !text.after.isEmpty();
    }
    const QString separator = QCoreApplication::translate("RowTexts", ", ");
    return {now.isEmpty() ? QStringLiteral("–") : now.join(separator),
            differs ? after.join(separator) : QString(), now.isEmpty()};
}

CellText factCell(const DocumentRecord& record, Column column)
{
    const DocumentFacts& facts = *record.facts;
    switch (column) {
    case Column::Pages:
        return number(facts.pages);
    case Column::Bookmarks:
        return number(facts.bookmarks);
    case Column::Signed:
        return flag(facts.signatures > 0);
    case Column::Certified:
        return flag(facts.isCertified);
    case Column::Encrypted:
        return flag(facts.isEncrypted);
    default:
        break;
    }
    const std::span<const ViewEntry> entries = columns::describe(column).entries;
    return entries.size() == 1 ? entryCell(record, entries.front()) : entriesCell(record, entries);
}

} // namespace

CellText cell(const DocumentRecord& record, Column column)
{
    switch (column) {
    case Column::Name:
        return {record.name, {}, false};
    case Column::Folder:
        return {record.folder, {}, false};
    case Column::State: {
        const State state = record.state();
        const bool isFine = isOf(state, {State::WillChange, State::AsAsked, State::Changed, State::Unchanged,
                                         State::Written, State::Copied}); // notes are told below the list
        const QString reason = isFine ? QString() : reasonOf(record);
        return {reason.isEmpty() ? stateOf(record) : reason,
                {},
                state == State::Waiting || state == State::Known};
    }
    default:
        return record.facts ? factCell(record, column) : CellText{{}, {}, true};
    }
}

QString spoken(const DocumentRecord& record, Column column)
{
    const CellText text = cell(record, column);
    if (column == Column::Name)
        return QCoreApplication::translate("RowTexts", "%1, %2").arg(record.name, stateOf(record));
    if (text.after.isEmpty())
        return text.isQuiet && !text.now.isEmpty() && column != Column::State ? viewtexts::unset() : text.now;
    const QString now = text.now == QStringLiteral("–") ? viewtexts::unset() : text.now;
    if (record.state() == State::Written)
        return QCoreApplication::translate("RowTexts", "%1, in the result %2").arg(now, text.after);
    return record.result ? QCoreApplication::translate("RowTexts", "%1, became %2").arg(now, text.after)
                         : QCoreApplication::translate("RowTexts", "%1, will be %2").arg(now, text.after);
}

QString stateOf(const DocumentRecord& record)
{
    return QCoreApplication::translate("RowTexts", find(record.state()).text);
}

QString signOf(State state)
{
    return QString::fromUtf8(find(state).sign);
}

QString reasonOf(const DocumentRecord& record)
{
    if (const Outcome* outcome = record.outcome()) {
        const QString reason = reasontexts::textOf(outcome->reasonCode, outcome->reason);
        return reason.isEmpty() ? reasontexts::textOf({}, outcome->note) : reason;
    }
    return record.facts ? QString() : reasontexts::textOf(record.troubleCode, record.trouble);
}

QString differences(const Outcome& outcome)
{
    QStringList texts;
    for (const ViewEntry entry : outcome.differences())
        texts += QCoreApplication::translate("RowTexts", "%1: %2")
                     .arg(viewtexts::nameOf(entry),
                          arrow(outcome.before.textOf(entry), outcome.after.textOf(entry)));
    return texts.join(QCoreApplication::translate("RowTexts", "; "));
}

} // namespace host::desktop::rowtexts
