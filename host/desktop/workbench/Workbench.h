#pragma once

#include "PasswordTrial.h"
#include "RunHistory.h"
#include "RunMachine.h"

#include "host/desktop/change/RunOrder.h"
#include "host/desktop/change/SelectionSummary.h"
#include "host/desktop/documents/EditHistory.h"
#include "host/desktop/rows/DocumentOrder.h"
#include "host/desktop/tasks/Passwords.h"
#include "host/desktop/tasks/Reading.h"
#include "host/desktop/tasks/Running.h"
#include "host/desktop/tasks/Undoing.h"

#include <QMap>
#include <QPointer>

namespace host::desktop {

/// What a person works on: the documents, the change that is being prepared, and the work that is under way. It
/// decides what begins and what follows from it; windows show it and pass on what is clicked.
class Workbench : public QObject
{
    Q_OBJECT

public:
    using Ids = DocumentTable::Ids;

    /// Which documents the change is for.
    enum class Scope {
        Automatic, ///< The selected ones if there are several, else all that are shown.
        Shown,
        Selected,
    };

    struct Counts
    {
        int targets = 0;
        int waiting = 0;
        int willChange = 0;
        int asAsked = 0;
        int cannot = 0;
        int changed = 0;
        int unchanged = 0;
        /// Results that are files of their own; the documents are as they were.
        int written = 0;
        int copied = 0;
        int failed = 0;
        int notDone = 0;
        /// Those that are in trouble by the code of their reason.
        QMap<QString, int> reasons;
    };

    /// \param program the program that does the work. \param reports the folder for the reports of runs.
    Workbench(const QString& program, const QString& reports, QObject* parent = nullptr);

    DocumentTable& table() { return m_table; }
    DocumentOrder& order() { return m_order; }
    EditHistory& edits() { return m_edits; }
    RunMachine& machine() { return m_machine; }
    RunHistory& history() { return m_history; }

    /// Files and folders by their absolute paths. While a run goes on they wait for its end.
    void add(const QVector<QByteArray>& paths);
    /// What an earlier session had, before anything else: it is no step that could be undone.
    void addAgain(const QVector<QByteArray>& paths);
    /// What was added and is not in the list yet: it waits, is being looked through, or reading it broke off.
    QVector<QByteArray> pending() const;
    void remove(const Ids& ids);
    void readAgain(const Ids& ids);
    void undoEdit();
    void redoEdit();

    const ChangeDraft& draft() const { return m_runOrder.draft; }
    void setDraft(const ChangeDraft& draft);
    const Destination& destination() const { return m_runOrder.destination; }
    void setDestination(const Destination& destination);
    /// Without a step that could be undone, as what an earlier session had prepared.
    void restore(const RunOrder& order);
    const RunOrder& runOrder() const { return m_runOrder; }
    /// The folder below which results in a folder keep their paths.
    QString base() const { return RunOrder::commonFolder(m_table, startable()); }
    /// Empty, or why it cannot be found out what would change.
    const QString& problem() const { return m_problem; }

    Scope scope() const { return m_scope; }
    void setScope(Scope scope);
    /// Whether the change is for the selected documents, not for all that are shown.
    bool isForSelected() const;
    const Ids& targets() const { return m_targets; }
    SelectionSummary summary() const { return SelectionSummary::of(m_table, m_targets); }
    Counts counts() const;

    /// Whether a run is being taken back, or that is being stopped.
    bool isUndoing() const { return qobject_cast<const Undoing*>(m_task.data()) != nullptr; }

    void start();
    void pause();
    void resume();
    void stop();
    void tryAgain();
    void undoRun(int row);
    /// Changes of these documents are appended although viewers will report them.
    void appendAllTheSame(const Ids& ids);
    /// Tries the password on all documents that want one; kept in memory only.
    void givePassword(const QByteArray& password);

    const QString& program() const { return m_program; }
    /// What opens the document; empty for none.
    QByteArray passwordOf(const DocumentRecord& record) const { return m_passwords.at(record.password); }
    /// The work under way; null when there is none.
    const DocumentTask* task() const { return m_task; }
    /// Where the newest run stands in the history that can be undone, 0 for the last one; -1 for none.
    int undoableRun() const { return m_history.newestUndoable(); }
    /// The folder that holds the results which are told of; empty if they lie elsewhere, or there are none.
    QString resultFolder() const;

signals:
    void draftChanged();
    void targetsChanged();
    void countsChanged();
    void progressed();
    /// Something that a person should know of, in a sentence.
    void said(const QString& text);
    /// The same, and it went wrong.
    void failed(const QString& text);
    /// Nothing writes any more, after a run or after undoing one.
    void runEnded();

private:
    void begin(DocumentTask* task, void (Workbench::*end)(const ChildRun::Ending&));
    void dropTask();
    void edit(const RunOrder& order);
    void edited();
    void leaveResults();
    void changeAll(const DocumentTable::Change& change);
    void check();
    void collectTargets();
    /// The targets without those that undoing left alone: they are no longer what they were when they were read.
    Ids startable() const;
    void markAside();
    void endReading(const ChildRun::Ending& ending);
    void endChecking(const ChildRun::Ending& ending);
    void endRunning(const ChildRun::Ending& ending);
    void tellOfUndoing(const Undoing& undoing, const ChildRun::Ending& ending);
    void endUndoing(const ChildRun::Ending& ending);
    void addWaiting();
    void addBy(Reading* reading, const QVector<QByteArray>& paths);
    void startReading(Reading* reading);
    void run(const Ids& ids, const QString& base);
    void writeDown(const Running& running, bool isComplete);
    void follow();
    void tellOfPassword();
    void tryKnownPasswords();
    DocumentTask::Means means() const { return {m_program, m_passwords}; }

    QString m_program;
    DocumentTable m_table;
    DocumentOrder m_order{m_table};
    EditHistory m_edits{m_table};
    RunMachine m_machine;
    RunHistory m_history;
    Passwords m_passwords;
    PasswordTrial m_passwordTrial;
    RunOrder m_runOrder;
    QString m_problem;
    /// Of the run whose results are shown.
    RunOrder m_lastOrder;
    QString m_lastBase;
    Scope m_scope = Scope::Automatic;
    Ids m_targets;
    /// Of the run whose results are shown.
    QString m_lastNote;
    QPointer<DocumentTask> m_task;
    QVector<QByteArray> m_waiting;
    /// Reading these broke off; they are tried again with what is added next.
    QVector<QByteArray> m_unread;
    QTimer m_checkSoon;
    QTimer m_collectSoon;
    /// The note of the run that is being undone.
    QString m_undoing;
};

} // namespace host::desktop
