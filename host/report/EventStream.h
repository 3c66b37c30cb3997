#pragma once

#include "host/failures/Failure.h"

#include <QJsonObject>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace host {

/// Tells another program what a run does while it does it: JSON objects on standard output, a line each.
/// Documents are numbered from 0 in the order in which they were found.
class EventStream
{
public:
    /// What becomes of a run that nobody listens to any more.
    enum class Unheard { GoesOn, Ends };

    /// With Ends, all below throw OutputError when nobody listens.
    explicit EventStream(Unheard unheard) : m_unheard(unheard) {}

    /// \param documents nothing while their number is not known. \param report empty for none.
    void start(const std::string& command, std::optional<std::size_t> documents, const std::string& report);
    /// \returns its number.
    std::size_t found(const std::string& file);
    /// How a document opens.
    void document(std::size_t number, QJsonObject shown);
    /// What became of a document. `status`, `note`, `before` and `after` are the caller's, as is what else it
    /// wants to tell.
    void result(std::size_t number, const Failure& reason, bool failed, QJsonObject result);
    /// Lets the other program know that the run lives: tells how far it is, if that is news or nothing was told
    /// for a while. To be called ten times a second.
    void beat();
    /// The last line. \param counts what there is to count, besides what was found and not done.
    void end(QJsonObject counts, bool stopped);

    std::size_t notDone() const { return m_found - m_done; }

private:
    using Clock = std::chrono::steady_clock;

    void progress();
    void write(const char* event, QJsonObject& object);

    Unheard m_unheard;
    std::size_t m_found = 0;
    std::size_t m_done = 0;
    std::size_t m_failed = 0;
    std::size_t m_told = 0; ///< Of those done.
    Clock::time_point m_lastTold = Clock::now();
    bool m_isUnheard = false;
};

} // namespace host
