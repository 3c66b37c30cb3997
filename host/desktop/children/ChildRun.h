#pragma once

#include "ChildProcess.h"
#include "Event.h"
#include "LineSplitter.h"

#include <QTimer>

namespace host::desktop {

/// One run of the program as a child process: starts it, gives its events in batches, tells how it ended.
/// Destroying the object stops the child and hears no more of it.
class ChildRun : public QObject
{
    Q_OBJECT

public:
    struct Ending
    {
        /// It said all that it had to say.
        bool isComplete = false;
        bool wasStopped = false;
        /// What the child said last on its standard error, or why it could not be heard; for people.
        QString words;
        QJsonObject counts;
    };

    explicit ChildRun(QObject* parent = nullptr);
    ~ChildRun() override;

    /// \param arguments without those that ask for events and take orders. \param handed descriptors that the child
    /// inherits, -1 for none.
    void start(const QString& program, const QStringList& arguments,
               const std::array<int, 2>& handed = {-1, -1});
    void pause() { order("pause"); }
    void resume() { order("resume"); }
    /// Documents that are being worked on are finished. A child that does not end within ten seconds is killed.
    void stop();

signals:
    void came(const host::desktop::Events& events);
    void ended(const host::desktop::ChildRun::Ending& ending);

private:
    void order(const char* word);
    void tick();
    bool take();
    void keepErrors();
    QString errorsInWords() const;
    void breakOff(const QString& reason);
    void end();
    void finish();

    ChildProcess* m_process;
    QTimer m_tick;
    LineSplitter m_lines;
    QByteArray m_errors;
    Ending m_ending;
    bool m_isOver = false;
    bool m_isBroken = false;
};

} // namespace host::desktop
