#include "ReadingRun.h"

#include "host/cell/Cell.h"
#include "host/cell/Reach.h"
#include "host/plan/StreamFiles.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/TerminalText.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace host {

namespace {

Reading readingOf(const WorkOutcome& outcome)
{
    if (outcome.kind != WorkOutcome::Answered)
        return Reading::failed(outcome.failure);
    return Reading::fromRecord(outcome.answer)
        .value_or(Reading::failed({ReasonCode::Crashed, "the worker process gave no proper answer"}));
}

} // namespace

int ReadingRun::run(const MakeTeller& makeTeller)
{
    const PdfLibrary keptOpen; // so that every worker finds it in memory
    const std::vector<RunPlan::Document>& documents = m_plan.documents();
    WorkerPool::Limits limits = m_options.limits;
    limits.workers = static_cast<int>(
        std::clamp<std::size_t>(documents.size(), 1, static_cast<std::size_t>(limits.workers)));
    const std::string input = m_options.streams != nullptr ? m_options.streams->document() : std::string();
    Reach reach;
    for (const RunPlan::Document& document : documents)
        reach.addFileToRead(document.name == RunDestination::standardStream ? input : document.name);
    m_cell.allow(reach);
    m_options.control.takeSignals();
    const auto makeWorker = [&] {
        return std::make_unique<DocumentReader>(documents, input, m_options.password, makeTeller);
    };
    WorkerPool pool(limits, makeWorker, m_cell);
    pool.run(
        documents.size(), [this](std::size_t place, const WorkOutcome& outcome) { ended(place, outcome); },
        m_options.control);
    m_output.finish();
    if (m_options.control.isStopped())
        return exitstatus::stopped;
    return count(Reading::Good) < documents.size() ? exitstatus::someFailed : exitstatus::done;
}

void ReadingRun::ended(std::size_t place, const WorkOutcome& outcome)
{
    if (outcome.kind == WorkOutcome::Stopped)
        return;
    Reading reading = readingOf(outcome);
    ++m_counts.at(reading.kind);
    if (m_options.events != nullptr)
        tell(place, reading);
    else
        print(place, std::move(reading));
}

void ReadingRun::tell(std::size_t place, const Reading& reading) const
{
    QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(reading.text)).object();
    object.remove("fileBytes"); // which says it otherwise than events do
    const bool isChecked = object.contains("status");
    if (reading.kind != Reading::Failed && !isChecked)
        return m_options.events->document(place, object);
    object.remove("file");
    if (reading.kind == Reading::Failed)
        object = {{"status", "failed"}, {"before", QJsonObject()}, {"after", QJsonObject()}};
    if (!object.contains("note"))
        object.insert("note", QJsonValue());
    m_options.events->result(place, reading.reason, reading.kind == Reading::Failed, object);
}

void ReadingRun::print(std::size_t place, Reading reading)
{
    const std::string& file = m_plan.documents()[place].name;
    const std::string about = forTerminal(shownName(file)) + ": ";
    std::string errors;
    reading.text = surelyForTerminal(std::move(reading.text));
    if (reading.kind == Reading::Failed) {
        errors = "quintar: " + about + forTerminal(reading.reason.text) + "\n";
        reading.text = m_options.failureLine ? m_options.failureLine(file, reading.reason) : std::string();
    }
    if (!reading.note.empty() && !m_options.quiet)
        errors += "quintar: note: " + about + forTerminal(reading.note) + "\n";
    m_output.add(place, std::move(reading.text), std::move(errors));
}

} // namespace host
