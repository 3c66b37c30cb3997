#include "BatchRun.h"

#include "host/cell/Cell.h"
#include "host/cell/Reach.h"
#include "host/files/FileDescriptor.h"
#include "host/plan/Placement.h"
#include "host/plan/StreamFiles.h"
#include "host/program/InstallLayout.h"
#include "host/program/PdfLibrary.h"
#include "host/program/PluginHost.h"
#include "host/report/Progress.h"
#include "host/saving/SafeOutput.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/workers/WorkerSlot.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

#include <algorithm>
#include <functional>
#include <new>
#include <set>

namespace host {

namespace {

/// A document at a time, in a process of its own.
class DocumentWorker : public Worker
{
public:
    using Announce = std::function<void(std::size_t job, const DocumentResult& expected)>;

    DocumentWorker(const std::vector<DocumentJob>& jobs, CActionInterface& action,
                   const ProcessingOptions& options, Announce announce, int report)
        : m_jobs(jobs), m_processor(action, options), m_announce(std::move(announce)), m_report(report)
    {}

    Answer answer(std::size_t job, WorkerSlot& slot) override
    {
        const auto note = [&](const Placement& placement) {
            slot.note(placement.toRecord());
            m_announce(job, placement.result());
        };
        const DocumentResult result = m_processor.process(m_jobs[job], note);
        return {result.toRecord(), m_processor.isWornOut(), m_processor.isKeptOut()};
    }

    std::vector<int> descriptors() const override { return {m_report}; }

private:
    const std::vector<DocumentJob>& m_jobs;
    DocumentProcessor m_processor;
    Announce m_announce;
    int m_report; ///< Where it announces, -1 for nowhere.
};

} // namespace

BatchRun::BatchRun(const RunPlan& plan, const ProcessingOptions& options, Cell& cell, Setup setup)
    : m_plan(plan), m_options(options), m_cell(cell), m_setup(std::move(setup)),
      m_ended(plan.documents().size(), false)
{}

BatchRun::~BatchRun() = default;

int BatchRun::run(const WorkerPool::Limits& limits)
{
    PluginHost plugin(installlayout::pluginFile());
    const PdfLibrary keptOpen; // so that every worker finds it in memory

    if (m_setup.tells >= Tells::Counts && !m_options.dryRun && isatty(STDERR_FILENO) != 0)
        m_progress = std::make_unique<Progress>(STDERR_FILENO, m_plan.documents().size());
    planJobs();
    if (!m_options.dryRun)
        removeLeftovers();
    try {
        runJobs(plugin.action(), limits);
        m_progress.reset();
        sumUp();
        return exitStatus();
    } catch (const std::bad_alloc&) {
        m_progress.reset();
        complainOfEarlyEnd();
        return exitstatus::someFailed;
    }
}

void BatchRun::planJobs()
{
    const std::vector<RunPlan::Document>& documents = m_plan.documents();
    for (std::size_t index = 0; index < documents.size(); ++index) {
        const RunPlan::Document& document = documents[index];
        if (const auto done = m_setup.done.find(index); done != m_setup.done.end()) {
            doneBefore(index, done->second);
            continue;
        }
        if (document.problem) {
            documentEnded(index, DocumentResult::failed(document.problem));
            continue;
        }
        m_jobs.push_back(jobFor(document));
        m_documentOfJob.push_back(index);
    }
}

DocumentJob BatchRun::jobFor(const RunPlan::Document& document) const
{
    const bool isInput = document.name == RunDestination::standardStream;
    const bool isOutput = document.target == RunDestination::standardStream;
    const std::string target = isOutput ? m_setup.streams->result() : document.target;
    // In place, the library opens what links lead to: the file that is about to be replaced.
    const std::string& source = m_options.inPlace ? target : document.name;
    return {document.name, isInput ? m_setup.streams->document() : source, target,
            SafeOutput::temporaryNameFor(target)};
}

void BatchRun::removeLeftovers() const
{
    std::set<std::string> folders;
    for (const DocumentJob& job : m_jobs)
        if (folders.insert(SafeOutput::folderOf(job.target)).second)
            SafeOutput::removeLeftovers(SafeOutput::folderOf(job.target));
}

/// Workers read the documents, and write beside the results.
void BatchRun::allowJobs()
{
    Reach reach;
    for (const DocumentJob& job : m_jobs) {
        reach.addFileToRead(job.source);
        if (!m_options.dryRun)
            reach.addFolderToWrite(SafeOutput::folderOf(job.target));
    }
    if (m_options.rewrite) // to compare the result
        reach.readWritten();
    m_cell.allow(reach);
}

void BatchRun::runJobs(CActionInterface& action, const WorkerPool::Limits& limits)
{
    WorkerPool::Limits fitting = limits;
    fitting.workers =
        static_cast<int>(std::clamp<std::size_t>(m_jobs.size(), 1, static_cast<std::size_t>(limits.workers)));
    allowJobs();
    m_setup.control.takeSignals();
    const auto makeWorker = [&] {
        const int report = m_setup.report != nullptr ? m_setup.report->leave() : -1;
        return std::make_unique<DocumentWorker>(
            m_jobs, action, m_options,
            [this](std::size_t job, const DocumentResult& expected) { announce(job, expected); },
            m_options.inPlace && !m_options.dryRun ? report : -1);
    };
    WorkerPool pool(fitting, makeWorker, m_cell);
    pool.run(
        m_jobs.size(), [this](std::size_t job, const WorkOutcome& outcome) { jobEnded(job, outcome); },
        m_setup.control);
}

/// Only in place: there what was before is gone then, or half a change may be left.
void BatchRun::announce(std::size_t job, const DocumentResult& expected)
{
    const RunPlan::Document& planned = m_plan.documents()[m_documentOfJob[job]];
    if (m_setup.report != nullptr && m_options.inPlace)
        m_setup.report->announce({planned.name, planned.target, expected});
}

void BatchRun::jobEnded(std::size_t job, const WorkOutcome& outcome)
{
    if (outcome.kind != WorkOutcome::Answered)
        return jobLost(job, outcome);
    const auto result = DocumentResult::fromRecord(outcome.answer);
    documentEnded(m_documentOfJob[job],
                  result.value_or(DocumentResult::failed(
                      {ReasonCode::Crashed, "the worker process gave no proper answer"})));
}

/// The worker may have put the change in place before it ended. Not in a dry run, whatever a worker says that
/// was taken over: nothing is written, not by this process either.
void BatchRun::jobLost(std::size_t job, const WorkOutcome& outcome)
{
    std::optional<DocumentResult> result;
    if (const auto placement = m_options.dryRun ? std::nullopt : Placement::fromRecord(outcome.note))
        result = placement->settle(m_jobs[job].target, outcome.failure, m_options.flush);
    SafeOutput::removeTemporary(m_jobs[job].temporary);
    if (result)
        documentEnded(m_documentOfJob[job], *result);
    else if (outcome.kind == WorkOutcome::Lost)
        documentEnded(m_documentOfJob[job], DocumentResult::failed(outcome.failure));
}

void BatchRun::documentEnded(std::size_t document, const DocumentResult& result)
{
    const RunPlan::Document& planned = m_plan.documents()[document];
    m_ended[document] = true;
    m_summary.add(document, shownName(planned.name), result);
    const Report::Line line = lineFor(planned, result);
    if (m_setup.report != nullptr)
        m_setup.report->add(document, line);
    if (m_setup.events != nullptr)
        tell(document, line.result);
    if (m_progress)
        m_progress->advance(result.status == Status::Failed);
    else if (m_setup.tells >= Tells::Lines && result.status != Status::Failed)
        printLines(RunSummary::lineFor(shownName(planned.name), result, m_options.dryRun));
}

Report::Line BatchRun::lineFor(const RunPlan::Document& document, const DocumentResult& result) const
{
    if (result.status == Status::Failed)
        return {document.name, {}, result};
    Report::Line line{document.name, document.target, result};
    if (!m_options.noteOnAll.empty())
        line.result.note = m_options.noteOnAll + (result.note.empty() ? "" : "; ") + result.note;
    return line;
}

void BatchRun::tell(std::size_t document, const DocumentResult& result) const
{
    const auto objectIn = [](const std::string& text) {
        return QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
    };
    const QString note = QString::fromStdString(result.note);
    m_setup.events->result(document, result.reason, result.status == Status::Failed,
                           {{"status", nameOf(result.status)},
                            {"note", note.isEmpty() ? QJsonValue() : QJsonValue(note)},
                            {"before", objectIn(result.viewBefore)},
                            {"after", objectIn(result.viewAfter)}});
}

void BatchRun::doneBefore(std::size_t document, const std::string& line)
{
    m_ended[document] = true;
    m_summary.addDoneBefore();
    if (m_setup.report != nullptr)
        m_setup.report->add(document, line);
    if (m_setup.events != nullptr)
        m_setup.events->result(document, {}, false,
                               {{"status", "done before"},
                                {"note", QJsonValue()},
                                {"before", QJsonObject()},
                                {"after", QJsonObject()}});
    if (m_progress)
        m_progress->advance(false);
}

void BatchRun::sumUp() const
{
    RunSummary summary = m_summary;
    for (std::size_t index = 0; index < m_ended.size(); ++index)
        if (!m_ended[index])
            summary.addNotDone(shownName(m_plan.documents()[index].name));
    if (m_setup.tells >= Tells::Failures)
        printError(summary.failures() + (m_setup.tells >= Tells::Notes ? summary.notes() : "") +
                   summary.notDone());
    if (m_setup.tells == Tells::Lines)
        printLines(summary.counts(m_options.dryRun));
    else if (m_setup.tells == Tells::Counts)
        printError(summary.counts(m_options.dryRun));
    if (m_setup.report != nullptr) {
        QJsonObject counts = summary.toJson();
        counts.insert("stopped", m_setup.control.isStopped());
        m_setup.report->end(counts);
        if (!m_setup.report->problem().empty())
            complain(m_setup.report->problem());
    }
    if (m_setup.events != nullptr)
        m_setup.events->end(summary.toJson(), m_setup.control.isStopped());
}

int BatchRun::exitStatus() const
{
    if (m_setup.control.isStopped())
        return exitstatus::stopped;
    const bool reportComplete = m_setup.report == nullptr || m_setup.report->problem().empty();
    return m_summary.anyFailed() || !reportComplete ? exitstatus::someFailed : exitstatus::done;
}

} // namespace host
