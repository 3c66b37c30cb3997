#include "Running.h"

#include <QDateTime>

namespace host::desktop {

Running::Running(Mode mode, const RunOrder& order, const QString& reports, DocumentTable& table,
                 const Means& means, QObject* parent)
    : DocumentTask(table, means, parent), m_mode(mode), m_order(order), m_folder(reports)
{}

void Running::start(const DocumentTable::Ids& ids, const QString& base)
{
    m_base = base;
    for (const DocumentId id : ids)
        table().change(id, [this](DocumentRecord& record) {
            record.result.reset();
            if (m_mode == Mode::Try)
                record.check.reset();
        });
    table().flush();
    DocumentTask::start(ids);
}

QStringList Running::arguments(const Part& part)
{
    const QStringList words = QStringList{"run", "--no-folders"} + m_order.arguments(m_base) +
                              RunOrder::argumentsOf(part.howSigned);
    if (m_mode == Mode::Try)
        return words + QStringList{"--dry-run"};
    const QString time = QDateTime::currentDateTimeUtc().toString("yyyy-MM-ddTHHmmss.zzzZ");
    m_reports += m_folder + "/" + time + ".jsonl";
    return words + QStringList{"--report", m_reports.back()};
}

void Running::takeResult(DocumentId id, const ResultEvent& event)
{
    table().change(id, [&event, this](DocumentRecord& record) {
        Outcome outcome = Outcome::fromJson(event.result, m_mode == Mode::Try);
        if (m_mode == Mode::Do && m_order.destination.kind != Destination::Kind::InPlace &&
            !outcome.isTrouble())
            outcome.file = m_order.resultOf(record.path, m_base);
        (m_mode == Mode::Try ? record.check : record.result) = std::make_shared<Outcome>(outcome);
    });
}

void Running::leave(DocumentId id, const ChildRun::Ending& ending)
{
    if (m_mode == Mode::Try)
        return;
    table().change(id, [&ending](DocumentRecord& record) {
        Outcome outcome;
        outcome.kind = Outcome::Kind::NotDone;
        outcome.reason = ending.wasStopped ? QString() : ending.words.section('\n', -1);
        record.result = std::make_shared<Outcome>(outcome);
    });
}

} // namespace host::desktop
