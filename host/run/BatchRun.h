#pragma once

#include "DocumentProcessor.h"
#include "RunSummary.h"
#include "host/workers/WorkerPool.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

class CActionInterface;

namespace host {

class Progress;
class Report;
class RunPlan;

/// Works through a plan: gives the documents to worker processes, reports what became of each, and sums up.
class BatchRun
{
public:
    /// What is done already, and the lines about it for the report, by the place in the plan.
    using Done = std::map<std::size_t, std::string>;

    /// Everything lent must outlive the object. \param report null for none. \param quiet shows failures
    /// only.
    BatchRun(const RunPlan& plan, const ProcessingOptions& options, Report* report, bool quiet,
             Done done = {});
    ~BatchRun();

    /// \returns the exit status. Throws std::runtime_error when plug-in or library cannot be used.
    int run(const WorkerPool::Limits& limits);

private:
    void planJobs();
    void removeLeftovers() const;
    void runJobs(CActionInterface& action, const std::string& libraryFile, const WorkerPool::Limits& limits);
    void announce(std::size_t job, const DocumentResult& expected);
    void jobEnded(std::size_t job, const WorkOutcome& outcome);
    void jobLost(std::size_t job, const WorkOutcome& outcome);
    void doneBefore(std::size_t document, const std::string& line);
    void documentEnded(std::size_t document, const DocumentResult& result);
    void sumUp() const;
    int exitStatus() const;

    const RunPlan& m_plan;
    const ProcessingOptions& m_options;
    Report* m_report;
    bool m_quiet;
    Done m_done;
    std::vector<DocumentJob> m_jobs;
    /// The document that each job is about.
    std::vector<std::size_t> m_documentOfJob;
    std::vector<bool> m_ended;
    std::unique_ptr<Progress> m_progress;
    RunSummary m_summary;
    bool m_stopped = false;
};

} // namespace host
