#include "DocumentRecord.h"

#include "host/desktop/texts/PlainText.h"

#include <QFile>

namespace host::desktop {

namespace {

using State = DocumentRecord::State;

State stateOf(const Outcome& outcome)
{
    switch (outcome.kind) {
    case Outcome::Kind::WillChange:
        return State::WillChange;
    case Outcome::Kind::AsAsked:
        return State::AsAsked;
    case Outcome::Kind::Cannot:
        return State::Cannot;
    case Outcome::Kind::Changed:
        return outcome.file.isEmpty() ? State::Changed : State::Written;
    case Outcome::Kind::Unchanged:
        return outcome.file.isEmpty() ? State::Unchanged : State::Copied;
    case Outcome::Kind::Failed:
        return State::Failed;
    case Outcome::Kind::NotDone:
        return State::NotDone;
    case Outcome::Kind::Undone:
        return State::Undone;
    case Outcome::Kind::LeftAlone:
        return State::LeftAlone;
    }
    return State::NotDone;
}

} // namespace

DocumentRecord DocumentRecord::of(DocumentId id, const QByteArray& path)
{
    DocumentRecord record;
    record.id = id;
    record.path = path;
    const auto slash = path.lastIndexOf('/');
    record.name = plaintext::shown(QFile::decodeName(path.mid(slash + 1)));
    record.folder = plaintext::shown(QFile::decodeName(slash > 0 ? path.left(slash) : path.left(slash + 1)));
    return record;
}

State DocumentRecord::state() const
{
    if (const Outcome* latest = outcome())
        return stateOf(*latest);
    if (facts)
        return State::Known;
    return troubleCode.isEmpty() && trouble.isEmpty() ? State::Waiting : State::Unreadable;
}

const Outcome* DocumentRecord::outcome() const
{
    return result ? result.get() : isAside ? nullptr : check.get();
}

QString DocumentRecord::reasonCode() const
{
    const Outcome* latest = outcome();
    return latest != nullptr ? latest->reasonCode : troubleCode;
}

bool DocumentRecord::isInTrouble() const
{
    const State now = state();
    return now == State::Unreadable || now == State::Cannot || now == State::Failed ||
           now == State::LeftAlone;
}

void DocumentRecord::forget()
{
    facts.reset();
    check.reset();
    result.reset();
    troubleCode.clear();
    trouble.clear();
}

} // namespace host::desktop
