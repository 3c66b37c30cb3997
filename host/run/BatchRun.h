#pragma once

#include "DocumentProcessor.h"
#include "host/plan/RunPlan.h"
#include "host/report/EventStream.h"
#include "host/report/Report.h"
#include "host/report/RunSummary.h"
#include "host/workers/RunControl.h"
#include "host/workers/WorkerPool.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

class CActionInterface;

namespace host {

class Cell;
class Progress;
class StreamFiles;

/// What a run tells, each with all before it.
enum class Tells {
    Nothing, ///< The events do.
    Failures,
    Notes,
    Counts, ///< On standard error, as standard output has the report.
    Lines,  ///< About each document, and the counts on standard output.
};

/// Works through a plan: gives the documents to worker processes, reports what became of each, and sums up.
class BatchRun
{
public:
    /// What is done already, and the lines about it for the report, by the place in the plan.
    using Done = std::map<std::size_t, std::string>;

    struct Setup
    {
        RunControl& control;
        EventStream* events = nullptr; ///< Null for none.
        Report* report = nullptr;      ///< Null for none.
        Tells tells = Tells::Lines;
        /// Stands for "-" in the plan; null where there is none.
        const StreamFiles* streams = nullptr;
        Done done = {};
    };

    /// Everything lent must outlive the object.
    BatchRun(const RunPlan& plan, const ProcessingOptions& options, Cell& cell, Setup setup);
    ~BatchRun();

    /// \returns the exit status. Throws std::runtime_error when plug-in or library cannot be used.
    int run(const WorkerPool::Limits& limits);

private:
    void planJobs();
    DocumentJob jobFor(const RunPlan::Document& document) const;
    void removeLeftovers() const;
    void allowJobs();
    void runJobs(CActionInterface& action, const WorkerPool::Limits& limits);
    void announce(std::size_t job, const DocumentResult& expected);
    void jobEnded(std::size_t job, const WorkOutcome& outcome);
    void jobLost(std::size_t job, const WorkOutcome& outcome);
    void doneBefore(std::size_t document, const std::string& line);
    Report::Line lineFor(const RunPlan::Document& document, const DocumentResult& result) const;
    void documentEnded(std::size_t document, const DocumentResult& result);
    void tell(std::size_t document, const DocumentResult& result) const;
    void sumUp() const;
    int exitStatus() const;

    const RunPlan& m_plan;
    const ProcessingOptions& m_options;
    Cell& m_cell;
    Setup m_setup;
    std::vector<DocumentJob> m_jobs;
    /// The document that each job is about.
    std::vector<std::size_t> m_documentOfJob;
    std::vector<bool> m_ended;
    std::unique_ptr<Progress> m_progress;
    RunSummary m_summary;
};

} // namespace host
