// What crosses between processes and from one run to the next: workers' records and memory, reports, lines of
// events. The first byte says which of them the others are. Whoever wrote them may mean ill.
#include "Oracle.h"
#include "host/change/ViewJson.h"
#include "host/desktop/children/EventReader.h"
#include "host/desktop/children/LineSplitter.h"
#include "host/files/FileState.h"
#include "host/files/PipeLines.h"
#include "host/model/ViewRecord.h"
#include "host/plan/Placement.h"
#include "host/reading/DocumentReader.h"
#include "host/report/EarlierReport.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/UsageError.h"
#include "host/undo/UndoPlan.h"
#include "host/workers/WorkerSlot.h"

#include <QJsonDocument>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <memory>
#include <sstream>
#include <vector>

namespace {

using namespace fuzz;
using namespace host;

template <class Kind>
void record(const std::string& bytes)
{
    const auto value = Kind::fromRecord(bytes);
    const auto again = value ? Kind::fromRecord(value->toRecord()) : std::nullopt;
    require(!value || (again && again->toRecord() == value->toRecord()), "a record is read again otherwise");
}

void records(std::string_view text)
{
    const std::string bytes(text);
    record<DocumentResult>(bytes);
    record<host::Reading>(bytes);
    record<Placement>(bytes);
    if (const auto view = viewrecord::parse(bytes)) {
        const auto again = viewrecord::parse(viewrecord::write(*view));
        require(again && viewrecord::write(*again) == viewrecord::write(*view),
                "a view is read again otherwise");
    }
}

/// The first bytes are the slot's numbers, the others what it has noted and answered.
void slot(std::string_view text)
{
    constexpr std::size_t numbers = 5 * sizeof(std::uint64_t);
    const auto worker = std::make_unique<WorkerSlot>();
    char* const memory = reinterpret_cast<char*>(worker.get());
    std::uint64_t taken = 0;
    std::memcpy(memory, text.data(), std::min(text.size(), numbers));
    std::memcpy(&taken, memory + numbers - sizeof taken, sizeof taken);
    text.remove_prefix(std::min(text.size(), numbers));
    text = text.substr(0, WorkerSlot::largestNote);
    std::memcpy(memory + numbers, text.data(), text.size());
    for (std::size_t index = 0; index < text.size(); ++index)
        memory[numbers + WorkerSlot::largestNote + (taken + index) % (WorkerSlot::largestAnswer * 2)] =
            text[index];
    require(worker->noted().size() <= WorkerSlot::largestNote, "a note is longer than any can be");
    worker->outsideCall();
    for (int answers = 0; answers < 5; ++answers)
        if (const auto answer = worker->takeAnswer())
            require(answer->text.size() <= WorkerSlot::largestAnswer * 2 && answer->kind <= WorkerSlot::Again,
                    "an answer is none that a worker gives");
}

void undoPlan(const std::string& report)
{
    try {
        UndoPlan plan(report);
        for (const UndoPlan::Document& document : plan.documents()) {
            require(document.path.starts_with('/') && document.path.find('\0') == document.path.npos,
                    "a document to undo has no absolute path");
            require(!document.updates.empty(), "a document to undo has nothing to undo");
            for (const AppendedUpdate& update : document.updates)
                require(update.checksum.size() == 64 && FileState::fromText(update.before),
                        "an update cannot be held against its document");
        }
        plan.restrictTo({"/nowhere.pdf"});
        require(plan.documents().size() <= 1, "documents that nobody asked for");
    } catch (const UsageError& error) {
        require(std::string(error.what()).find(report) != std::string::npos,
                "a refusal does not name the report");
    }
}

/// "@@" stands for the folder, where a.pdf is one byte from 1970.
void reports(std::string_view text)
{
    const Folder& folder = workFolder();
    static const std::string document = folder.put("a.pdf", "x");
    const timespec times[2] = {{0, 0}, {0, 0}};
    utimensat(AT_FDCWD, document.c_str(), times, 0);
    std::string lines(text);
    for (std::size_t at = lines.find("@@"); at != lines.npos; at = lines.find("@@", at + 1))
        lines.replace(at, 2, document.substr(0, document.rfind('/')));
    const std::string report = folder.put("report", lines);
    undoPlan(report);
    RunPlan plan(RunDestination::inPlace());
    plan.add(document);
    try {
        const EarlierReport earlier(report, plan);
        for (const auto& [place, line] : earlier.done())
            require(place == 0 && lines.find(line) != lines.npos && line.ends_with('\n'),
                    "a line of no report");
    } catch (const UsageError& error) {
        require(std::string(error.what()).find(report) != std::string::npos,
                "a refusal does not name the report");
    }
}

std::vector<std::string> linesOf(std::string_view text, std::size_t longest)
{
    std::vector<std::string> lines;
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n')) {
        lines.emplace_back(text.substr(0, std::min(end, longest)));
        text.remove_prefix(end + 1);
    }
    return lines;
}

/// However the bytes come, the lines are the same.
void events(std::string_view text)
{
    Choices choices(text);
    desktop::LineSplitter splitter;
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const auto count = std::min(text.size() - at, static_cast<std::size_t>(1 + choices.below(200)));
        splitter.add(QByteArray(text.data() + at, static_cast<int>(count)));
        at += count;
        while (const auto line = splitter.next()) {
            desktop::eventreader::read(*line);
            lines.push_back(line->toStdString());
        }
    }
    require(lines == linesOf(text, text.size()), "other lines");
}

void pipes(std::string_view text)
{
    const std::size_t longest = 50;
    std::array<int, 2> ends{};
    text = text.substr(0, 1 << 15); // what a pipe holds
    require(pipe(ends.data()) == 0 && write(ends[1], text.data(), text.size()) >= 0, "no pipe");
    close(ends[1]);
    PipeLines pipe(ends[0], longest);
    std::vector<std::string> lines;
    while (!pipe.isAtEnd())
        while (const auto line = pipe.next())
            lines.push_back(*line);
    close(ends[0]);
    require(lines == linesOf(text, longest), "other lines from a pipe");
}

void names(std::string_view text)
{
    const std::string name(text);
    QJsonObject object;
    insertName(object, "file", name);
    const std::string line = jsonLine(object);
    require(line.find('\n') == line.size() - 1, "a line that is none");
    const QJsonObject read = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
    requireSame(nameIn(read, "file"), name, "a name comes back as another one");
}

void views(std::string_view text)
{
    const QByteArray bytes(text.data(), static_cast<int>(text.size()));
    try {
        const ViewChange change = viewjson::parse(QJsonDocument::fromJson(bytes).object());
        const ViewChange again = viewjson::parse(viewjson::write(change));
        require(again == change, "a view in JSON is read again otherwise");
    } catch (const UsageError&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static constexpr void (*kinds[])(std::string_view) = {records, slot,  reports, events,
                                                          pipes,   names, views};
    if (size > 0)
        kinds[data[0] % std::size(kinds)](textOf(data, size).substr(1));
    return 0;
}
