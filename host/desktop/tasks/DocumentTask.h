#pragma once

#include "Passwords.h"

#include "host/desktop/children/ChildRun.h"
#include "host/desktop/children/HandedFile.h"
#include "host/desktop/documents/DocumentTable.h"

#include <deque>

namespace host::desktop {

/// Work of the program on documents of the list: starts it, and puts what it tells into their records.
/// Documents that need different options have a child process each kind, one after the other.
class DocumentTask : public QObject
{
    Q_OBJECT

public:
    /// Where the program is, and what opens encrypted documents.
    struct Means
    {
        QString program;
        const Passwords& passwords;
    };

    DocumentTask(DocumentTable& table, const Means& means, QObject* parent);

    void start(const DocumentTable::Ids& ids);
    /// Until it goes on, no further part is begun either.
    void pause();
    void resume();
    void stop();
    bool isRunning() const { return m_child != nullptr; }

    int total() const { return m_total; }
    int done() const { return m_done; }

signals:
    void progressed();
    void finished(const host::desktop::ChildRun::Ending& ending);

protected:
    struct Part
    {
        DocumentTable::Ids ids;
        int password = -1;
        DocumentRecord::Signed howSigned = DocumentRecord::Signed::Refuse;
    };

    DocumentTable& table() { return m_table; }
    /// The command and its options, without the list of documents and the password.
    virtual QStringList arguments(const Part& part) = 0;
    /// The names that the child is given; by default those of the documents.
    virtual QVector<QByteArray> names(const Part& part) const;
    virtual void takeResult(DocumentId id, const ResultEvent& event) = 0;
    virtual void takeDocument(DocumentId id, const DocumentEvent& event);
    virtual void takeFound(const FoundEvent& event);
    /// A result whose number belongs to no document of the list.
    virtual void takeElsewhere(const ResultEvent& event);
    /// The ids of the part under way, by the numbers that events have.
    DocumentTable::Ids& underWay() { return m_parts.front().ids; }
    const Part& part() const { return m_parts.front(); }
    /// Documents without an answer when a part has ended.
    virtual void leave(DocumentId id, const ChildRun::Ending& ending) = 0;
    void startPart();
    void countDone() { ++m_done; }
    void countMore() { ++m_total; }
    void queue(Part part);

private:
    void takeAll(const Events& events);
    void takeOne(const Event& event);
    void endPart(const ChildRun::Ending& ending);
    void leavePart(const ChildRun::Ending& ending);
    void end(const ChildRun::Ending& ending);
    DocumentId idOf(int number) const;

    DocumentTable& m_table;
    Means m_means;
    std::deque<Part> m_parts;
    std::vector<bool> m_answered;
    HandedFile m_names;
    HandedFile m_password;
    ChildRun* m_child = nullptr;
    bool m_isPaused = false;
    bool m_isStopping = false;
    int m_total = 0;
    int m_done = 0;
};

} // namespace host::desktop
