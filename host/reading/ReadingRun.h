#pragma once

#include "DocumentReader.h"
#include "OrderedOutput.h"
#include "host/report/EventStream.h"
#include "host/workers/RunControl.h"
#include "host/workers/WorkerPool.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>

namespace host {

class Cell;
class StreamFiles;

/// Has documents read by worker processes, many at a time, and prints in the documents' order what there is
/// to tell of them: the texts, and on standard error failures and notes. Or it tells that as events, as it
/// comes.
class ReadingRun
{
public:
    /// Has a line for standard output when a document cannot be read; empty for none.
    using FailureLine = std::function<std::string(const std::string& file, const Failure& reason)>;

    struct Options
    {
        std::string_view password;
        WorkerPool::Limits limits;
        RunControl& control;
        /// Is told what there would be to print; null for none. The tellers' texts are JSON lines then.
        EventStream* events = nullptr;
        /// Prints no notes.
        bool quiet = false;
        /// Null for failures on standard error alone.
        FailureLine failureLine = nullptr;
        /// Has the document "-"; null where there is none.
        const StreamFiles* streams = nullptr;
    };

    /// Plan and cell must outlive the object.
    ReadingRun(const RunPlan& plan, Cell& cell, Options options)
        : m_plan(plan), m_cell(cell), m_options(std::move(options))
    {}

    /// \returns the exit status. Throws std::runtime_error when the library cannot be used; OutputError.
    int run(const MakeTeller& makeTeller);

    /// How many documents were of a kind.
    std::size_t count(Reading::Kind kind) const { return m_counts.at(kind); }

private:
    void ended(std::size_t place, const WorkOutcome& outcome);
    void tell(std::size_t place, const Reading& reading) const;
    void print(std::size_t place, Reading reading);

    const RunPlan& m_plan;
    Cell& m_cell;
    Options m_options;
    OrderedOutput m_output;
    std::array<std::size_t, 3> m_counts{};
};

} // namespace host
