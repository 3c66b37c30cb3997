#include "Session.h"

#include "host/change/ViewJson.h"
#include "host/terminal/UsageError.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QUuid>

#include <optional>

namespace host::desktop {

namespace {

const int quietMilliseconds = 1000;
const qint64 largestSession = 64 << 20;

QJsonObject toJson(const Destination& destination)
{
    return {{"kind", static_cast<int>(destination.kind)},
            {"folder", destination.folder},
            {"suffix", destination.suffix}};
}

Destination destinationFrom(const QJsonObject& object)
{
    const int kind = object.value("kind").toInt();
    return {kind >= 0 && kind <= 2 ? static_cast<Destination::Kind>(kind) : Destination::Kind::InPlace,
            object.value("folder").toString(), object.value("suffix").toString("new")};
}

QJsonObject toJson(const ChangeDraft& draft)
{
    QJsonObject object{{"view", viewjson::write(draft.view())}};
    if (const auto& stored = draft.stored())
        object.insert("stored", QJsonObject{{"name", stored->name},
                                            {"options", QJsonArray::fromStringList(stored->options)},
                                            {"lines", QJsonArray::fromStringList(stored->lines)},
                                            {"view", viewjson::write(stored->view)}});
    return object;
}

QStringList textsIn(const QJsonValue& value)
{
    QStringList texts;
    for (const auto& each : value.toArray())
        texts += each.toString();
    return texts;
}

ViewChange viewFrom(const QJsonValue& value)
{
    try {
        return viewjson::parse(value.toObject());
    } catch (const UsageError&) { // of another version: nothing is prepared then
        return {};
    }
}

ChangeDraft draftFrom(const QJsonObject& object)
{
    ChangeDraft draft;
    draft.setView(viewFrom(object.value("view")));
    const QJsonObject stored = object.value("stored").toObject();
    if (!stored.isEmpty())
        draft.setStored({stored.value("name").toString(), textsIn(stored.value("options")),
                         textsIn(stored.value("lines")), viewFrom(stored.value("view"))});
    return draft;
}

/// Nothing for what no session has written, or for what cannot be read now.
std::optional<QJsonObject> stored(const QString& path)
{
    QFile file(path);
    const bool isRead = file.open(QIODevice::ReadOnly) && file.size() <= largestSession;
    const QJsonDocument json = isRead ? QJsonDocument::fromJson(file.readAll()) : QJsonDocument();
    return json.isObject() ? std::optional(json.object()) : std::nullopt;
}

bool isPrepared(const QJsonObject& object)
{
    return !object.value("documents").toArray().isEmpty() ||
           !draftFrom(object.value("draft").toObject()).isEmpty();
}

} // namespace

Session::Session(Workbench& workbench, const QString& folder, QObject* parent)
    : QObject(parent), m_workbench(workbench), m_folder(folder)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quietMilliseconds);
    connect(&m_quiet, &QTimer::timeout, this, &Session::save);
    connect(&workbench.machine(), &RunMachine::changed, &m_quiet, QOverload<>::of(&QTimer::start));
    connect(&workbench, &Workbench::draftChanged, &m_quiet, QOverload<>::of(&QTimer::start));
    connect(&workbench.table(), &DocumentTable::appended, &m_quiet, QOverload<>::of(&QTimer::start));
    connect(&workbench.table(), &DocumentTable::rearranged, &m_quiet, QOverload<>::of(&QTimer::start));
    QDir().mkpath(folder);
}

Session::~Session()
{
    if (m_quiet.isActive())
        save();
}

void Session::begin(const QVector<QByteArray>& paths)
{
    const QVector<QByteArray> earlier = restore();
    if (earlier.isEmpty())
        m_workbench.add(paths);
    else
        m_workbench.addAgain(earlier + paths);
}

/// The newest one that no window has, and has something prepared: one that was opened and closed meanwhile hides none.
/// \returns the documents that were in its list.
QVector<QByteArray> Session::restore()
{
    const QDir folder(m_folder);
    QJsonObject found;
    for (const QString& name : folder.entryList({"*.session"}, QDir::Files, QDir::Time)) {
        auto lock = std::make_unique<QLockFile>(folder.filePath(name + ".lock"));
        lock->setStaleLockTime(0);
        if (!lock->tryLock())
            continue;
        const auto object = stored(folder.filePath(name));
        if (!object) {
            emit failed(tr("A list of an earlier session cannot be read, and is left as it is: %1")
                            .arg(folder.filePath(name)));
            continue;
        }
        if (m_file.isEmpty() || isPrepared(*object)) {
            m_lock = std::move(lock);
            m_file = folder.filePath(name);
            found = *object;
        }
        if (isPrepared(found))
            break;
    }
    if (!m_file.isEmpty())
        return takeOver(found);
    m_file = folder.filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + ".session");
    m_lock = std::make_unique<QLockFile>(m_file + ".lock");
    m_lock->tryLock();
    return {};
}

QVector<QByteArray> Session::takeOver(const QJsonObject& object)
{
    m_workbench.restore({draftFrom(object.value("draft").toObject()),
                         destinationFrom(object.value("destination").toObject())});
    QVector<QByteArray> paths;
    for (const auto& path : object.value("documents").toArray())
        paths.append(QByteArray::fromPercentEncoding(path.toString().toLatin1()));
    return paths;
}

void Session::save()
{
    m_quiet.stop();
    if (m_file.isEmpty())
        return;
    QSaveFile file(m_file);
    const bool hadFailed = m_hasFailed;
    const QByteArray bytes = toJson();
    m_hasFailed = !file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit();
    if (!m_hasFailed || hadFailed)
        return;
    qWarning("%s: %s", qPrintable(m_file),
             qPrintable(file.errorString())); // nobody may see the window any more
    emit failed(
        tr("List and change will not be there the next time: %1: %2").arg(m_file, file.errorString()));
}

/// Paths are bytes, so they are percent-encoded.
QByteArray Session::toJson() const
{
    QJsonArray documents;
    for (const DocumentRecord& record : m_workbench.table().records())
        documents.append(QString::fromLatin1(record.path.toPercentEncoding("/")));
    for (const QByteArray& path : m_workbench.pending())
        documents.append(QString::fromLatin1(path.toPercentEncoding("/")));
    return QJsonDocument(QJsonObject{{"documents", documents},
                                     {"draft", desktop::toJson(m_workbench.draft())},
                                     {"destination", desktop::toJson(m_workbench.destination())}})
        .toJson(QJsonDocument::Compact);
}

} // namespace host::desktop
