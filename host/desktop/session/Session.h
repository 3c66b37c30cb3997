#pragma once

#include "host/desktop/workbench/Workbench.h"

#include <QLockFile>
#include <QTimer>

#include <memory>

namespace host::desktop {

/// Keeps list and change on the disk, so that they survive a crash or a
/// session that is closed. Passwords are no part of it.
class Session : public QObject
{
    Q_OBJECT

public:
    /// \param folder where sessions are kept, one file a window.
    Session(Workbench& workbench, const QString& folder, QObject* parent = nullptr);
    ~Session() override;

    /// Takes over the newest session that no window holds and that can be read; begins a new one where there is none.
    /// \param paths of documents that come besides those that were in its list.
    void begin(const QVector<QByteArray>& paths);
    void save();

signals:
    /// What is prepared would not survive, in a sentence. Told once until it goes well again.
    void failed(const QString& text);

private:
    QVector<QByteArray> restore();
    QVector<QByteArray> takeOver(const QJsonObject& object);
    QByteArray toJson() const;

    Workbench& m_workbench;
    QString m_folder;
    std::unique_ptr<QLockFile> m_lock;
    QString m_file;
    QTimer m_quiet;
    bool m_hasFailed = false;
};

} // namespace host::desktop
