#include "Undoing.h"

#include "host/terminal/JsonLine.h"

namespace host::desktop {

void Undoing::start(const QStringList& reports)
{
    m_reports = reports;
    for (int part = 0; part < reports.size(); ++part)
        queue({});
    startPart();
}

QStringList Undoing::arguments(const Part&)
{
    return {"undo", m_reports.takeLast()};
}

void Undoing::takeFound(const FoundEvent& event)
{
    if (event.number == underWay().size())
        underWay().append(table().idOf(event.path));
    countMore();
}

void Undoing::takeResult(DocumentId id, const ResultEvent& event)
{
    const Outcome outcome = Outcome::fromJson(event.result, false);
    count(outcome);
    table().change(id, [&outcome](DocumentRecord& record) {
        record.forget();
        record.result = std::make_shared<Outcome>(outcome);
    });
}

/// The result's line may name the document itself.
void Undoing::takeElsewhere(const ResultEvent& event)
{
    countDone();
    const DocumentId id = table().idOf(QByteArray::fromStdString(nameIn(event.result, "file")));
    if (id != 0)
        return takeResult(id, event);
    count(Outcome::fromJson(event.result, false));
}

void Undoing::count(const Outcome& outcome)
{
    m_undone += outcome.kind == Outcome::Kind::Undone ? 1 : 0;
    m_leftAlone += outcome.kind == Outcome::Kind::LeftAlone ? 1 : 0;
}

} // namespace host::desktop
