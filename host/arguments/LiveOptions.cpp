#include "LiveOptions.h"

#include "OptionParser.h"
#include "host/terminal/UsageError.h"

#include <sys/stat.h>

#include <algorithm>

namespace host {

namespace {

bool isFolder(const std::string& name)
{
    struct stat status;
    return stat(name.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

void LiveOptions::take(OptionParser& parser)
{
    parser.takeFlag("events", m_tellsEvents);
    parser.takeFlag("control", m_hearsWords);
}

void LiveOptions::check(const std::string& otherOutput, bool readsStandardInput) const
{
    if (m_tellsEvents && !otherOutput.empty())
        throw UsageError("--events and " + otherOutput +
                         " exclude each other: standard output takes one of them");
    if (m_hearsWords && readsStandardInput)
        throw UsageError("--control takes words from standard input, which is to be read for something else");
}

void LiveOptions::begin(const std::string& command, const std::vector<std::string>& inputs,
                        const std::string& report)
{
    const bool isKnown = m_tellsEvents && std::none_of(inputs.begin(), inputs.end(), isFolder);
    begin(command, isKnown ? std::optional(inputs.size()) : std::nullopt, report);
}

void LiveOptions::begin(const std::string& command, std::optional<std::size_t> documents,
                        const std::string& report)
{
    if (m_hearsWords)
        m_control.hearWords();
    if (!m_tellsEvents)
        return;
    m_events.emplace(m_unheard);
    m_events->start(command, documents, report);
    m_control.setBeat([this] { m_events->beat(); });
}

RunPlan::Found LiveOptions::found()
{
    return [this](const RunPlan::Document* document) {
        if (m_events && document != nullptr)
            m_events->found(document->name);
        m_control.take();
        if (!m_control.isStopped())
            return;
        if (m_events)
            m_events->end({}, true);
        throw StoppedEarly();
    };
}

} // namespace host
