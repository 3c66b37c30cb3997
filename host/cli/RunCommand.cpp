#include "RunCommand.h"

#include "host/arguments/LimitOptions.h"
#include "host/arguments/OptionParser.h"
#include "host/change/ViewJson.h"
#include "host/plan/RunPlan.h"
#include "host/report/EarlierReport.h"
#include "host/report/Report.h"
#include "host/run/BatchRun.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include <sys/stat.h>

#include <cerrno>

namespace host {

namespace {

SignedDocuments signedDocuments(const std::string& value)
{
    if (value == "append")
        return SignedDocuments::Append;
    if (value == "append-certified")
        return SignedDocuments::AppendCertified;
    if (value != "refuse")
        throw UsageError("--signed takes refuse, append or append-certified, not \"" + value + "\"" +
                         suggestion::didYouMean(value == "yes"  ? "append"
                                                : value == "no" ? "refuse"
                                                                : value,
                                                {"refuse", "append", "append-certified"}));
    return SignedDocuments::Refuse;
}

/// Null for workers that are not locked in.
QJsonValue sandboxInJson(const CellState& state)
{
    if (!state.wanted)
        return {};
    const std::string missing = state.missing();
    return QJsonObject{{"files", state.limitsFiles()},
                       {"calls", state.limitsCalls()},
                       {"missing", missing.empty() ? QJsonValue() : QString::fromStdString(missing)}};
}

} // namespace

int RunCommand::work(const std::vector<std::string>& words)
{
    m_words = words;
    m_options.flush = m_options.flush || m_options.inPlace;
    check();
    const RunDestination destination = this->destination();
    checkStandardOutput();
    Cell cell(m_sandbox);
    if (!m_quiet)
        noteMissing(cell, m_sandbox);
    readOptions(cell);

    const RunPlan plan = this->plan(destination);
    std::optional<Report> report;
    if (m_reportFile)
        report.emplace(*m_reportFile, continuesReport() ? Report::Start::Continue : Report::Start::New);
    BatchRun::Done done = doneBefore(plan);
    openStreams();
    if (!m_options.dryRun)
        if (const Failure problem = destination.makeFolder(); problem)
            throw UsageError(problem.text);
    m_options.tellStates = m_reportFile.has_value();
    m_options.tellChanges = m_reportFile.has_value() || !m_quiet || m_live.events() != nullptr;
    if (report) // only now, for it may lie in the output folder
        begin(*report, plan, cell);
    const int status = BatchRun(plan, m_options, cell,
                                {m_live.control(), m_live.events(), report ? &*report : nullptr, tells(),
                                 m_streams ? &*m_streams : nullptr, std::move(done)})
                           .run(m_limits);
    if (m_streams && destination.isStandardOutput())
        m_streams->printResult();
    return status;
}

void RunCommand::begin(Report& report, const RunPlan& plan, const Cell& cell) const
{
    const bool changesView = !m_options.change.isEmpty();
    report.begin({{"command", name()},
                  {"documents", static_cast<qint64>(plan.documents().size())},
                  {"inPlace", m_options.inPlace},
                  {"dryRun", m_options.dryRun},
                  {"sandbox", sandboxInJson(cell.state())},
                  {"change", changesView ? QJsonValue(viewjson::write(m_options.change)) : QJsonValue()}});
    if (!report.doubt().empty())
        note(report.doubt());
}

void RunCommand::openStreams()
{
    if (hasStandardInput() || printsResult())
        m_streams.emplace();
    if (hasStandardInput())
        m_streams->readInput();
    m_options.keepsAttributes = !hasStandardInput() && !printsResult();
}

bool RunCommand::hasStandardInput() const
{
    return DocumentOptions::haveStandardInput(m_words);
}

/// How much: standard output takes one thing only, events, the report or a result.
Tells RunCommand::tells()
{
    if (m_live.events() != nullptr)
        return Tells::Nothing;
    if (m_quiet)
        return Tells::Failures;
    if (m_reportFile == Report::standardOutput)
        return Tells::Counts;
    return printsResult() && !m_options.dryRun ? Tells::Notes : Tells::Lines;
}

void RunCommand::takeOptions(OptionParser& parser)
{
    m_changeOptions.take(parser);
    m_documentOptions.take(parser);
    takeLimits(parser, m_limits);
    takeSandbox(parser, m_sandbox);
    m_live.take(parser);
    parser.takeValue("output", setOnce(m_output, "-o"));
    parser.takeValue("base", setOnce(m_base, "--base"));
    parser.takeValue("suffix", setOnce(m_suffix, "--suffix"));
    parser.takeFlag("in-place", m_options.inPlace);
    parser.takeFlag("replace", m_options.replace);
    parser.takeValue("report", setOnce(m_reportFile, "--report"));
    parser.takeValue("resume", setOnce(m_resumedReport, "--resume"));
    parser.takeValue(
        "signed", [this](const std::string& value) { m_options.signedDocuments = signedDocuments(value); });
    parser.takeFlag("rewrite", m_options.rewrite);
    parser.takeFlag("dry-run", m_options.dryRun);
    parser.takeFlag("sync", m_options.flush);
    parser.takeFlag("quiet", m_quiet);
}

void RunCommand::check() const
{
    m_changeOptions.check();
    if (m_options.rewrite && m_options.inPlace)
        throw UsageError("--rewrite goes with -o: in place, the document's own bytes would be gone");
    if (m_options.replace && !m_options.inPlace)
        throw UsageError("--replace goes with --in-place: other results are always files of their own");
    if (m_base && (m_base->empty() || !m_output))
        throw UsageError(m_base->empty() ? "the name of the base folder is empty" : "--base goes with -o");
    m_documentOptions.check(m_words, m_changeOptions.readsStandardInput());
}

RunDestination RunCommand::destination() const
{
    const int places = (m_output ? 1 : 0) + (m_suffix ? 1 : 0) + (m_options.inPlace ? 1 : 0);
    if (places != 1)
        throw UsageError(places == 0 ? "where to? Give -o DIR, -o FILE.pdf, --suffix TEXT or --in-place"
                                     : "-o, --suffix and --in-place exclude each other");
    if (m_suffix)
        return RunDestination::beside(*m_suffix);
    return m_output ? RunDestination::named(*m_output, m_base.value_or("")) : RunDestination::inPlace();
}

bool RunCommand::printsResult() const
{
    return m_output == RunDestination::standardStream;
}

/// Throws UsageError when more than one thing is to be printed there, or read from standard input.
void RunCommand::checkStandardOutput() const
{
    const bool printsReport = m_reportFile == Report::standardOutput;
    const bool readsInput =
        hasStandardInput() || m_documentOptions.readsStandardInput() || m_changeOptions.readsStandardInput();
    m_live.check(printsResult() ? "-o -" : printsReport ? "--report -" : "", readsInput);
    if (printsResult() && printsReport)
        throw UsageError("-o - and --report - exclude each other: standard output takes one of them");
    if (printsResult() && !m_options.dryRun)
        StreamFiles::checkOutput();
}

void RunCommand::readOptions(Cell& cell)
{
    m_documentOptions.read(m_words);
    m_options.password = m_documentOptions.password();
    m_changeOptions.read(m_options.password, cell, hasStandardInput());
    m_options.entries = m_changeOptions.entries();
    m_options.change = m_changeOptions.change();
    for (const std::string& odd : m_changeOptions.notes())
        note(odd);
    m_options.noteOnAll = m_changeOptions.noteOnAll();
}

void RunCommand::note(const std::string& text) const
{
    if (!m_quiet)
        host::note(text);
}

bool RunCommand::continuesReport() const
{
    if (!m_reportFile || !m_resumedReport || m_reportFile == Report::standardOutput)
        return false;
    struct stat report;
    struct stat resumed;
    if (stat(m_reportFile->c_str(), &report) != 0 || stat(m_resumedReport->c_str(), &resumed) != 0)
        return *m_reportFile == *m_resumedReport;
    return report.st_dev == resumed.st_dev && report.st_ino == resumed.st_ino;
}

BatchRun::Done RunCommand::doneBefore(const RunPlan& plan) const
{
    struct stat status;
    const bool firstRun =
        continuesReport() && stat(m_resumedReport->c_str(), &status) != 0 && errno == ENOENT;
    if (!m_resumedReport || firstRun)
        return {};
    BatchRun::Done done = EarlierReport(*m_resumedReport, plan).done();
    if (continuesReport()) // the file has these lines already
        for (auto& [place, line] : done)
            line.clear();
    return done;
}

RunPlan RunCommand::plan(const RunDestination& destination)
{
    m_live.begin(name(), m_documentOptions.inputs(), m_reportFile.value_or(""));
    RunPlan plan(destination, m_live.found());
    m_documentOptions.addTo(plan);
    const std::vector<std::string> filesRead = this->filesRead();
    plan.checkTargets(filesRead);
    if (!m_options.dryRun) // which writes nothing
        plan.checkCase();
    if (m_reportFile && m_reportFile != Report::standardOutput)
        plan.checkReport(*m_reportFile, filesRead);
    for (const std::string& text : plan.notes())
        note(text);
    return plan;
}

/// But for the documents.
std::vector<std::string> RunCommand::filesRead() const
{
    std::vector<std::string> files = m_documentOptions.filesRead();
    for (const std::string& file : m_changeOptions.filesRead())
        files.push_back(file);
    if (m_resumedReport && !continuesReport())
        files.push_back(*m_resumedReport);
    return files;
}

} // namespace host
