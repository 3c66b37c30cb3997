#include "RunMachine.h"

#include <algorithm>
#include <initializer_list>

namespace host::desktop {

namespace {

using State = RunMachine::State;
using Step = RunMachine::Step;
using Command = RunMachine::Command;

struct Arrow
{
    State from;
    Step step;
    State to;
};

// clang-format off
const Arrow arrows[] = {
    {State::Empty,    Step::Added,   State::Reading},
    {State::Empty,    Step::Undo,    State::Undoing},
    {State::Reading,  Step::Added,   State::Reading},
    {State::Reading,  Step::Read,    State::Listed},
    {State::Reading,  Step::Emptied, State::Empty},
    {State::Listed,   Step::Added,   State::Reading},
    {State::Listed,   Step::Edited,  State::Checking},
    {State::Listed,   Step::Emptied, State::Empty},
    {State::Listed,   Step::Undo,    State::Undoing},
    {State::Checking, Step::Added,   State::Reading},
    {State::Checking, Step::Edited,  State::Checking},
    {State::Checking, Step::Cleared, State::Listed},
    {State::Checking, Step::Emptied, State::Empty},
    {State::Checking, Step::Checked, State::Ready},
    {State::Checking, Step::Undo,    State::Undoing},
    {State::Ready,    Step::Added,   State::Reading},
    {State::Ready,    Step::Edited,  State::Checking},
    {State::Ready,    Step::Cleared, State::Listed},
    {State::Ready,    Step::Emptied, State::Empty},
    {State::Ready,    Step::Started, State::Running},
    {State::Ready,    Step::Undo,    State::Undoing},
    {State::Running,  Step::Paused,  State::Paused},
    {State::Running,  Step::Stopped, State::Stopping},
    {State::Running,  Step::Ended,   State::Results},
    {State::Paused,   Step::Resumed, State::Running},
    {State::Paused,   Step::Stopped, State::Stopping},
    {State::Paused,   Step::Ended,   State::Results},
    {State::Stopping, Step::Ended,   State::Results},
    {State::Stopping, Step::Undone,  State::Listed},
    {State::Stopping, Step::Emptied, State::Empty},
    {State::Results,  Step::Added,   State::Reading},
    {State::Results,  Step::Edited,  State::Checking},
    {State::Results,  Step::Cleared, State::Listed},
    {State::Results,  Step::Emptied, State::Empty},
    {State::Results,  Step::Started, State::Running},
    {State::Results,  Step::Undo,    State::Undoing},
    {State::Undoing,  Step::Stopped, State::Stopping},
    {State::Undoing,  Step::Undone,  State::Listed},
    {State::Undoing,  Step::Emptied, State::Empty},
};
// clang-format on

bool isOf(State state, std::initializer_list<State> states)
{
    return std::find(states.begin(), states.end(), state) != states.end();
}

bool isRunning(State state)
{
    return isOf(state, {State::Running, State::Paused, State::Stopping});
}

bool allows(Command command, State state)
{
    switch (command) {
    case Command::Add:
    case Command::Configure:
    case Command::Edit:
        return !isRunning(state) && state != State::Undoing;
    case Command::Remove:
        return !isRunning(state) && !isOf(state, {State::Undoing, State::Empty, State::Reading});
    case Command::UndoEdit:
        return !isRunning(state) && !isOf(state, {State::Undoing, State::Reading});
    case Command::Start:
        return state == State::Ready;
    case Command::Pause:
        return state == State::Running;
    case Command::Resume:
        return state == State::Paused;
    case Command::Stop:
        return isOf(state, {State::Running, State::Paused, State::Reading, State::Checking, State::Undoing});
    case Command::UndoRun:
        return !isRunning(state) && !isOf(state, {State::Undoing, State::Reading});
    case Command::TryAgain:
        return state == State::Results;
    case Command::Close:
        return true;
    }
    return false;
}

} // namespace

bool RunMachine::handle(Step step)
{
    for (const Arrow& arrow : arrows)
        if (arrow.from == m_state && arrow.step == step) {
            const bool isOther = m_state != arrow.to;
            m_state = arrow.to;
            if (isOther)
                emit changed();
            return true;
        }
    return false;
}

QString RunMachine::reasonAgainst(Command command) const
{
    if (m_isBusy)
        return tr("Close the settings first.");
    if (allows(command, m_state))
        return {};
    if (isRunning(m_state))
        return tr("Wait until the run has ended.");
    switch (m_state) {
    case State::Empty:
        return tr("Add documents first.");
    case State::Reading:
        return tr("Wait until all documents are read.");
    case State::Checking:
        return tr("Wait until it is known what would change.");
    case State::Undoing:
        return tr("Wait until the run is undone.");
    case State::Listed:
        return command == Command::Start ? tr("Say first what is to change.") : tr("Nothing is under way.");
    default:
        return command == Command::Start ? tr("This run is done. Change something to start another one.")
                                         : tr("Nothing is under way.");
    }
}

bool RunMachine::isWriting() const
{
    return isRunning(m_state) || m_state == State::Undoing;
}

void RunMachine::setBusy(bool busy)
{
    m_isBusy = busy;
    emit changed();
}

} // namespace host::desktop
