#pragma once

#include "host/plan/RunPlan.h"
#include "host/report/EventStream.h"
#include "host/workers/RunControl.h"

#include <optional>
#include <string>
#include <vector>

namespace host {

class OptionParser;

/// The options by which another program follows a command and steers it: --events and --control.
class LiveOptions
{
public:
    /// \param unheard what becomes of the command when nobody listens to its events any more.
    explicit LiveOptions(EventStream::Unheard unheard) : m_unheard(unheard) {}

    /// The object must outlive the parser.
    void take(OptionParser& parser);
    /// Throws UsageError. \param otherOutput an option that wants standard output as well; empty for none.
    void check(const std::string& otherOutput, bool readsStandardInput) const;
    /// From now on standard input is heard, and it is told that the command starts.
    /// \param inputs documents and folders. \param report empty for none.
    void begin(const std::string& command, const std::vector<std::string>& inputs,
               const std::string& report = {});
    /// \param documents nothing while their number is not known.
    void begin(const std::string& command, std::optional<std::size_t> documents, const std::string& report);

    /// Null where no events are told.
    EventStream* events() { return m_events ? &*m_events : nullptr; }
    RunControl& control() { return m_control; }
    /// Tells of documents as they are found. It throws StoppedEarly, once it has told the end, when a stop is
    /// asked for. The object must outlive it.
    RunPlan::Found found();

private:
    EventStream::Unheard m_unheard;
    bool m_tellsEvents = false;
    bool m_hearsWords = false;
    std::optional<EventStream> m_events;
    RunControl m_control;
};

} // namespace host
