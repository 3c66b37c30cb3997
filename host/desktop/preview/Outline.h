#pragma once

#include "PreviewScene.h"

#include "host/desktop/children/ChildRun.h"
#include "host/desktop/children/HandedFile.h"

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

    using Facts = std::shared_ptr<const DocumentFacts>;

    /// \param password empty for none. \param facts others when the document was read again. \returns what is known; asks for it otherwise, and says so by came().
    QVector<PreviewScene::Bookmark> of(const QByteArray& path, const QByteArray& password,
                                       const Facts& facts);

signals:
    void came();

private:
    void ask();
    void take(const Events& events);

    QString m_program;
    struct Known
    {
        Facts facts;
        QVector<PreviewScene::Bookmark> bookmarks;
    };

    QHash<QByteArray, Known> m_known;
    QByteArray m_wanted;
    Facts m_wantedFacts;
    /// What the child was asked for, which need not be wanted any more.
    QByteArray m_asked;
    Facts m_askedFacts;
    QByteArray m_password;
    HandedFile m_names;
    HandedFile m_passwordFile;
    std::unique_ptr<ChildRun> m_child;
    QTimer m_soon;
};

} // namespace host::desktop
