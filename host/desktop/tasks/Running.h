#pragma once

#include "DocumentTask.h"
#include "host/desktop/change/RunOrder.h"

namespace host::desktop {

/// Runs a change over documents, or tries out what a run would do to them.
class Running : public DocumentTask
{
    Q_OBJECT

public:
    enum class Mode { Try, Do };

    /// \param reports the folder for the reports of what is done; unused when trying.
    Running(Mode mode, const RunOrder& order, const QString& reports, DocumentTable& table,
            const Means& means, QObject* parent);

    const RunOrder& order() const { return m_order; }
    /// The reports that were begun.
    const QStringList& reports() const { return m_reports; }
    /// \param base the folder below which results in a folder keep their paths.
    void start(const DocumentTable::Ids& ids, const QString& base);

protected:
    QStringList arguments(const Part& part) override;
    void takeResult(DocumentId id, const ResultEvent& event) override;
    void leave(DocumentId id, const ChildRun::Ending& ending) override;

private:
    Mode m_mode;
    RunOrder m_order;
    QString m_folder;
    QString m_base;
    QStringList m_reports;
};

} // namespace host::desktop
