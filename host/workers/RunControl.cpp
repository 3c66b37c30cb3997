#include "RunControl.h"

#include "host/terminal/StandardError.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <cstdint>

namespace host {

namespace {

const long beatNanoseconds = 100'000'000;
const std::size_t longestWord = 64;

} // namespace

void RunControl::takeSignals()
{
    if (!m_signals)
        m_signals.emplace();
}

void RunControl::hearWords()
{
    m_words.emplace(STDIN_FILENO, longestWord);
}

void RunControl::setBeat(std::function<void()> beat)
{
    m_beat = std::move(beat);
    m_timer = FileDescriptor(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK));
    const itimerspec often{{0, beatNanoseconds}, {0, beatNanoseconds}};
    timerfd_settime(m_timer.get(), 0, &often, nullptr); // without a timer there is no beat
}

void RunControl::addTo(std::vector<pollfd>& waiting) const
{
    if (m_signals)
        waiting.push_back({m_signals->descriptor(), POLLIN, 0});
    if (m_words && !m_words->isAtEnd())
        waiting.push_back({m_words->descriptor(), POLLIN, 0});
    if (m_timer.isOpen())
        waiting.push_back({m_timer.get(), POLLIN, 0});
}

void RunControl::take()
{
    if (m_signals)
        m_signalCount = m_signals->count();
    if (m_words) {
        while (const auto word = m_words->next())
            heed(*word);
        if (m_words->isAtEnd() && m_wordCount == 0)
            m_wordCount = 1;
    }
    std::uint64_t beats = 0;
    if (m_timer.isOpen() && read(m_timer.get(), &beats, sizeof beats) == static_cast<ssize_t>(sizeof beats))
        m_beat();
}

void RunControl::waitWhilePaused()
{
    for (take(); isPaused(); take()) {
        std::vector<pollfd> waiting;
        addTo(waiting);
        poll(waiting.data(), waiting.size(), -1);
    }
}

void RunControl::heed(const std::string& word)
{
    if (word == "stop")
        ++m_wordCount;
    else if (word == "pause" || word == "resume")
        m_isPaused = word == "pause";
    else if (!m_hasComplained) {
        m_hasComplained = true;
        note("\"" + word + "\" on standard input is none of pause, resume and stop, and is passed over");
    }
}

} // namespace host
