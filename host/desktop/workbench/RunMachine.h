#pragma once

#include <QObject>

namespace host::desktop {

/// What the window is doing, and so what may be done. The only place that says what is enabled.
class RunMachine : public QObject
{
    Q_OBJECT

public:
    enum class State { Empty, Reading, Listed, Checking, Ready, Running, Paused, Stopping, Results, Undoing };
    enum class Step {
        Added,
        Read,
        Emptied,
        Edited,
        Cleared,
        Checked,
        Started,
        Paused,
        Resumed,
        Stopped,
        Ended,
        Undo,
        Undone
    };
    enum class Command {
        Add,
        Remove,
        Edit,
        Start,
        Pause,
        Resume,
        Stop,
        UndoEdit,
        UndoRun,
        TryAgain,
        Configure,
        Close
    };

    using QObject::QObject;

    State state() const { return m_state; }
    /// What the state has no arrow for is passed over. \returns whether there is one.
    bool handle(Step step);

    bool isEnabled(Command command) const { return reasonAgainst(command).isEmpty(); }
    /// Empty, or why it cannot be done now; for people.
    QString reasonAgainst(Command command) const;
    /// Whether closing would break something off that writes.
    bool isWriting() const;
    /// While a dialog of the action is open, nothing may start, close or be removed.
    void setBusy(bool busy);

signals:
    void changed();

private:
    State m_state = State::Empty;
    bool m_isBusy = false;
};

} // namespace host::desktop
