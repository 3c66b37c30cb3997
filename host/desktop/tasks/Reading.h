#pragma once

#include "DocumentTask.h"

namespace host::desktop {

/// Reads how documents open, of the list, or of files and folders that are added to it as they are found.
class Reading : public DocumentTask
{
    Q_OBJECT

public:
    using DocumentTask::DocumentTask;

    /// Files and folders by their absolute paths.
    void add(const QVector<QByteArray>& paths);

    /// Those that were to be added; none when documents of the list are read.
    const QVector<QByteArray>& paths() const { return m_paths; }
    /// Of those that were to be added: how many were in the list already.
    int known() const { return m_known; }

signals:
    void added(const host::desktop::DocumentTable::Ids& ids);

protected:
    QStringList arguments(const Part& part) override;
    QVector<QByteArray> names(const Part& part) const override;
    void takeDocument(DocumentId id, const DocumentEvent& event) override;
    void takeResult(DocumentId id, const ResultEvent& event) override;
    void takeFound(const FoundEvent& event) override;
    void leave(DocumentId id, const ChildRun::Ending& ending) override;

private:
    QVector<QByteArray> m_paths;
    int m_known = 0;
};

} // namespace host::desktop
