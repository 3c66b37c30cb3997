#include "Outline.h"

#include <QJsonArray>

namespace host::desktop {

namespace {

const int soonMilliseconds = 150;
/// As many as a panel has room for.
const int mostBookmarks = 60;
const int mostKnown = 200;

} // namespace

Outline::Outline(const QString& program, QObject* parent) : QObject(parent), m_program(program)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(soonMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &Outline::ask);
}

/// What was known of the document before it was read again stays until there is an answer.
QVector<PreviewScene::Bookmark> Outline::of(const QByteArray& path, const QByteArray& password,
                                            const Facts& facts)
{
    const auto known = m_known.constFind(path);
    const bool isThere = known != m_known.constEnd();
    if (isThere && known->facts == facts)
        return known->bookmarks;
    if (path != m_wanted || facts != m_wantedFacts) {
        m_wanted = path;
        m_wantedFacts = facts;
        m_password = password;
        m_soon.start();
    }
    return isThere ? known->bookmarks : QVector<PreviewScene::Bookmark>();
}

void Outline::ask()
{
    m_asked = m_wanted;
    m_askedFacts = m_wantedFacts;
    m_names = HandedFile::ofNames(QVector<QByteArray>{m_asked});
    QStringList words{"show",         "--outline",    QString::number(mostBookmarks), "--events", "--control",
                      "--no-folders", "--files-from", m_names.pathForChild(),         "--null"};
    m_passwordFile = {};
    if (!m_password.isEmpty()) {
        m_passwordFile = HandedFile::ofPassword(m_password);
        words += {"--password-file", m_passwordFile.pathForChild()};
    }
    m_child = std::make_unique<ChildRun>();
    connect(m_child.get(), &ChildRun::came, this, &Outline::take);
    m_child->start(m_program, words, {m_names.descriptor(), m_passwordFile.descriptor()});
}

void Outline::take(const Events& events)
{
    for (const Event& event : events) {
        const auto* document = std::get_if<DocumentEvent>(&event);
        if (document == nullptr)
            continue;
        QVector<PreviewScene::Bookmark> bookmarks;
        for (const auto& each : document->facts.value("outline").toArray())
            if (const QJsonObject entry = each.toObject(); bookmarks.size() < mostBookmarks)
                bookmarks.append(
                    {entry.value("level").toInt(1) - 1, entry.value("title").toString().simplified()});
        if (m_known.size() >= mostKnown)
            m_known.clear();
        m_known.insert(m_asked, {m_askedFacts, bookmarks});
        emit came();
    }
}

} // namespace host::desktop
