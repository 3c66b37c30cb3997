#pragma once

#include "DocumentTask.h"

namespace host::desktop {

/// Takes runs back by their reports, the newest first. Documents are known by their paths: they need not be in
/// the list.
class Undoing : public DocumentTask
{
    Q_OBJECT

public:
    using DocumentTask::DocumentTask;

    void start(const QStringList& reports);

    int undone() const { return m_undone; }
    int leftAlone() const { return m_leftAlone; }

protected:
    QStringList arguments(const Part& part) override;
    QVector<QByteArray> names(const Part&) const override { return {}; }
    void takeFound(const FoundEvent& event) override;
    void takeResult(DocumentId id, const ResultEvent& event) override;
    void leave(DocumentId, const ChildRun::Ending&) override {}
    void takeElsewhere(const ResultEvent& event) override;

private:
    void count(const Outcome& outcome);

    QStringList m_reports;
    int m_undone = 0;
    int m_leftAlone = 0;
};

} // namespace host::desktop
