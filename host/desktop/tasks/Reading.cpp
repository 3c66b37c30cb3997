#include "Reading.h"

namespace host::desktop {

void Reading::add(const QVector<QByteArray>& paths)
{
    m_paths = paths;
    queue({});
    startPart();
}

QStringList Reading::arguments(const Part&)
{
    return m_paths.isEmpty() ? QStringList{"show", "--no-folders"} : QStringList{"show"};
}

QVector<QByteArray> Reading::names(const Part& part) const
{
    return m_paths.isEmpty() ? DocumentTask::names(part) : m_paths;
}

/// A document that is in the list already has its answer there; the number is used up all the same.
void Reading::takeFound(const FoundEvent& event)
{
    if (m_paths.isEmpty() || event.number != underWay().size())
        return;
    countMore();
    const DocumentTable::Ids ids = table().append({event.path});
    underWay().append(ids.isEmpty() ? table().idOf(event.path) : ids.front());
    if (ids.isEmpty())
        ++m_known;
    else
        emit added(ids);
}

void Reading::takeDocument(DocumentId id, const DocumentEvent& event)
{
    table().change(id, [&event, this](DocumentRecord& record) {
        record.facts = std::make_shared<DocumentFacts>(DocumentFacts::fromJson(event.facts));
        record.password = part().password >= 0 ? part().password : record.password;
        record.troubleCode.clear();
        record.trouble.clear();
    });
}

void Reading::takeResult(DocumentId id, const ResultEvent& event)
{
    table().change(id, [&event](DocumentRecord& record) {
        const Outcome outcome = Outcome::fromJson(event.result, true);
        record.troubleCode = outcome.reasonCode;
        record.trouble = outcome.reason.isEmpty() ? tr("it cannot be read") : outcome.reason;
    });
}

void Reading::leave(DocumentId id, const ChildRun::Ending& ending)
{
    table().change(id, [&ending](DocumentRecord& record) {
        if (!record.facts && record.trouble.isEmpty())
            record.trouble = ending.wasStopped || ending.words.isEmpty() ? tr("not read: reading was stopped")
                                                                         : ending.words;
    });
}

} // namespace host::desktop
