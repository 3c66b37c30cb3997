#pragma once

#include "StopSignal.h"
#include "host/files/FileDescriptor.h"
#include "host/files/PipeLines.h"

#include <poll.h>

#include <exception>
#include <functional>
#include <optional>
#include <vector>

namespace host {

/// What is asked of a run from outside while it is under way, by signals, and by words on standard input
/// where it hears them: "pause", "resume", "stop". Their end means stop: who gave them has gone.
class RunControl
{
public:
    RunControl() = default;
    RunControl(const RunControl&) = delete;
    RunControl& operator=(const RunControl&) = delete;

    /// From now on; before, signals end the program.
    void takeSignals();
    /// From now on. Standard input belongs to the object.
    void hearWords();
    /// Is called by `take` about ten times a second, as long as whoever waits waits for this object as well.
    void setBeat(std::function<void()> beat);

    /// Appends what to wait for: something is to be taken when one of it becomes readable.
    void addTo(std::vector<pollfd>& waiting) const;
    /// Takes what has come, without waiting.
    void take();
    /// Takes what has come, and waits for more as long as it says pause.
    void waitWhilePaused();

    /// How often a stop was asked for. The second time is meant for those who do not want to wait.
    int stops() const { return m_signalCount + m_wordCount; }
    bool isStopped() const { return stops() > 0; }
    bool isPaused() const { return m_isPaused && !isStopped(); }

private:
    void heed(const std::string& word);

    std::optional<StopSignal> m_signals;
    std::optional<PipeLines> m_words;
    FileDescriptor m_timer;
    std::function<void()> m_beat;
    int m_signalCount = 0;
    int m_wordCount = 0;
    bool m_isPaused = false;
    bool m_hasComplained = false;
};

/// A stop was asked for before anything was begun.
class StoppedEarly : public std::exception
{
public:
    const char* what() const noexcept override { return "stopped"; }
};

} // namespace host
