#pragma once

#include <QHash>
#include <QImage>
#include <QProcess>
#include <QTimer>

#include <memory>

class QJsonObject;

namespace host::desktop {

/// Pictures of one document's pages, drawn by a child process while somebody looks at them. Nothing that the
/// child says is believed; where it says nothing in time, there are no pictures.
class PagePictures : public QObject
{
    Q_OBJECT

public:
    /// \param program draws pages; it need not be there.
    explicit PagePictures(const QString& program, QObject* parent = nullptr);
    ~PagePictures() override;

    /// From now on of this document. \param state tells one state of the file from another: pictures of the
    /// same document in the same state are kept. \param password empty for none.
    void setDocument(const QByteArray& path, const QByteArray& password,
                     const std::shared_ptr<const void>& state);

    /// \param page from 1. \param width in pixels, as it is shown; 0 asks for none.
    ///     \returns the largest picture that is known, or a null image; a larger one that
    ///     is needed is asked for, and said by came().
    QImage of(int page, double width);

signals:
    void came();

private:
    struct Page
    {
        QImage image;
        int asked = 0; ///< The width in pixels that was asked for.
    };

    void ask();
    void start();
    void take();
    bool takeAnswer(const QJsonObject& answer);
    bool takePicture();
    void giveUp();
    void drop();

    QString m_program;
    QByteArray m_path;
    QByteArray m_password;
    std::shared_ptr<const void> m_state;
    QHash<int, Page> m_pages;
    QHash<int, int> m_wanted;
    std::unique_ptr<QProcess> m_child;
    QByteArray m_bytes;
    QSize m_coming;
    int m_comingPage = 0;
    int m_unanswered = 0;
    bool m_hasGivenUp = false;
    QTimer m_soon;
    QTimer m_late;
};

} // namespace host::desktop
