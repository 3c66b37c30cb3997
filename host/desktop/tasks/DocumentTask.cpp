#include "DocumentTask.h"

#include "host/desktop/change/RunOrder.h"

namespace host::desktop {

DocumentTask::DocumentTask(DocumentTable& table, const Means& means, QObject* parent)
    : QObject(parent), m_table(table), m_means(means)
{}

void DocumentTask::start(const DocumentTable::Ids& ids)
{
    for (const auto& [kind, members] : RunOrder::kindsOf(m_table, ids))
        queue({members, kind.first, kind.second});
    startPart();
}

void DocumentTask::queue(Part part)
{
    m_total += part.ids.size();
    m_parts.push_back(std::move(part));
}

void DocumentTask::pause()
{
    m_isPaused = true;
    if (m_child != nullptr)
        m_child->pause();
}

void DocumentTask::resume()
{
    m_isPaused = false;
    if (m_child != nullptr)
        m_child->resume();
    else if (!m_parts.empty())
        startPart();
}

void DocumentTask::stop()
{
    m_isStopping = true;
    if (m_child != nullptr)
        m_child->stop();
    else if (!m_parts.empty()) // which wait until it goes on
        end({true, true, {}, {}});
}

QVector<QByteArray> DocumentTask::names(const Part& part) const
{
    QVector<QByteArray> paths;
    for (const DocumentId id : part.ids)
        if (const DocumentRecord* record = m_table.find(id))
            paths.append(record->path);
    return paths;
}

void DocumentTask::startPart()
{
    if (m_parts.empty())
        return emit finished({true, false, {}, {}});
    const Part& next = m_parts.front();
    m_answered.assign(static_cast<std::size_t>(next.ids.size()), false);
    QStringList words = arguments(next);
    words += {"--events", "--control"};
    if (const QVector<QByteArray> list = names(next); !list.isEmpty()) {
        m_names = HandedFile::ofNames(list);
        words += {"--files-from", m_names.pathForChild(), "--null"};
    }
    if (next.password >= 0) {
        m_password = HandedFile::ofPassword(m_means.passwords.at(next.password));
        words += {"--password-file", m_password.pathForChild()};
    }
    m_child = new ChildRun(this);
    connect(m_child, &ChildRun::came, this, &DocumentTask::takeAll);
    connect(m_child, &ChildRun::ended, this, &DocumentTask::endPart);
    m_child->start(m_means.program, words, {m_names.descriptor(), m_password.descriptor()});
}

void DocumentTask::takeAll(const Events& events)
{
    for (const Event& event : events)
        takeOne(event);
    m_table.flush();
    emit progressed();
}

void DocumentTask::takeOne(const Event& event)
{
    if (const auto* found = std::get_if<FoundEvent>(&event))
        return takeFound(*found);
    const auto* document = std::get_if<DocumentEvent>(&event);
    const auto* result = std::get_if<ResultEvent>(&event);
    if (document == nullptr && result == nullptr)
        return;
    const int number = document != nullptr ? document->number : result->number;
    const DocumentId id = idOf(number);
    if (id == 0 && result != nullptr)
        return takeElsewhere(*result);
    if (id == 0)
        return;
    m_answered.resize(static_cast<std::size_t>(underWay().size()));
    if (!m_answered[static_cast<std::size_t>(number)])
        countDone();
    m_answered[static_cast<std::size_t>(number)] = true;
    if (document != nullptr)
        takeDocument(id, *document);
    else
        takeResult(id, *result);
}

DocumentId DocumentTask::idOf(int number) const
{
    return m_parts.empty() ? 0 : m_parts.front().ids.value(number);
}

void DocumentTask::takeDocument(DocumentId, const DocumentEvent&) {}

void DocumentTask::takeFound(const FoundEvent&) {}

void DocumentTask::takeElsewhere(const ResultEvent&) {}

/// A child that was stopped, or could not begin, leaves the further parts alone as well.
void DocumentTask::endPart(const ChildRun::Ending& ending)
{
    m_child->deleteLater();
    m_child = nullptr;
    m_password = {};
    m_names = {};
    leavePart(ending);
    const bool goesOn = ending.isComplete && !ending.wasStopped && !m_isStopping;
    if (!goesOn || m_parts.empty())
        return end(ending);
    m_table.flush();
    if (!m_isPaused)
        startPart();
}

void DocumentTask::leavePart(const ChildRun::Ending& ending)
{
    m_answered.resize(static_cast<std::size_t>(underWay().size()));
    for (int number = 0; number < underWay().size(); ++number)
        if (!m_answered[static_cast<std::size_t>(number)])
            leave(underWay().at(number), ending);
    m_parts.pop_front();
    m_answered.clear();
}

void DocumentTask::end(const ChildRun::Ending& ending)
{
    while (!m_parts.empty())
        leavePart(ending);
    m_table.flush();
    emit progressed();
    emit finished(ending);
}

} // namespace host::desktop
