#pragma once

#include "PreviewScene.h"

#include "host/desktop/children/ChildRun.h"
#include "host/desktop/children/NameList.h"
#include "host/desktop/children/PasswordFile.h"

#include <QHash>

#include <memory>

namespace host::desktop {

/// The first bookmarks of a document, read by a child process while somebody
/// looks at it. Of several wishes the newest counts.
class Outline : public QObject
{
    Q_OBJECT

public:
    explicit Outline(const QString& program, QObject* parent = nullptr);

    /// \param password empty for none. \returns what is known; asks for it otherwise, and says so by came().
    QVector<PreviewScene::Bookmark> of(const QByteArray& path, const QByteArray& password);

signals:
    void came();

private:
    void ask();
    void take(const Events& events);

    QString m_program;
    QHash<QByteArray, QVector<PreviewScene::Bookmark>> m_known;
    QByteArray m_wanted;
    QByteArray m_password;
    NameList m_names;
    PasswordFile m_passwordFile;
    std::unique_ptr<ChildRun> m_child;
    QTimer m_soon;
};

} // namespace host::desktop
