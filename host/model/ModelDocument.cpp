#include "ModelDocument.h"

#include "ModelReader.h"
#include "host/cell/Cell.h"
#include "host/cell/Reach.h"
#include "host/program/InstallLayout.h"
#include "host/terminal/UsageError.h"
#include "host/workers/Record.h"
#include "host/workers/RunControl.h"
#include "host/workers/SignalMask.h"

#include <bit>
#include <memory>
#include <stdexcept>

namespace host {

namespace {

enum Kind : std::int64_t { Stays, TakenAway, Number, Zoom }; // what a document's values can be

void add(RecordWriter& record, const std::optional<ViewValue>& value)
{
    const auto* zoom = value ? std::get_if<Magnification>(&*value) : nullptr;
    const int* number = value ? std::get_if<int>(&*value) : nullptr;
    record.add(!value ? Stays : zoom != nullptr ? Zoom : number != nullptr ? Number : TakenAway);
    record.add(zoom != nullptr ? zoom->type : number != nullptr ? *number : 0);
    record.add(std::bit_cast<std::int64_t>(zoom != nullptr ? zoom->percent : 0));
}

void take(RecordReader& record, ViewChange& view, ViewEntry entry)
{
    const std::int64_t kind = record.number();
    const auto number = static_cast<int>(record.number());
    const auto percent = std::bit_cast<double>(record.number());
    if (kind == TakenAway)
        view.set(entry, Unset());
    else if (kind == Number)
        view.set(entry, number);
    else if (kind == Zoom)
        view.set(entry, Magnification{number, percent});
}

[[noreturn]] void refuse(const std::string& file, const std::string& why)
{
    throw UsageError(file + ": " + why);
}

ModelDocument fromAnswer(const std::string& file, const WorkOutcome& outcome)
{
    if (outcome.kind == WorkOutcome::Stopped)
        throw StoppedEarly();
    if (outcome.kind == WorkOutcome::Lost)
        refuse(file, outcome.failure.text);
    RecordReader answer(outcome.answer);
    const std::string problem = answer.text();
    if (!problem.empty())
        refuse(file, problem);
    const std::optional<ModelDocument> model = ModelDocument::fromRecord(answer.text());
    if (!model || !answer.complete())
        refuse(file, "the worker process gave no proper answer");
    return *model;
}

} // namespace

ModelDocument ModelDocument::read(const std::string& file, std::string_view password, Cell& cell,
                                  const Ask& ask)
{
    // Kept open, so that the worker finds the library in memory.
    const std::string libraryFile = installlayout::libraryFile();
    const TelvarPDFLibraryCPDylibCPP1311 library(installlayout::toLibraryPath(libraryFile));
    if (!library.LibraryLoaded())
        throw std::runtime_error("the PDF library cannot be used: " + libraryFile);
    Reach reach;
    reach.addFileToRead(file);
    cell.allow(reach);
    WorkOutcome outcome{WorkOutcome::Stopped};
    const SignalMask mask;
    RunControl control;
    control.takeSignals();
    WorkerPool pool(
        {}, [&] { return std::make_unique<ModelReader>(file, password, ask); }, cell);
    pool.run(
        1, [&](std::size_t, const WorkOutcome& end) { outcome = end; }, control);
    return fromAnswer(file, outcome);
}

std::string ModelDocument::toRecord() const
{
    RecordWriter record;
    record.add(openAction);
    for (const viewentries::Description& each : viewentries::all())
        add(record, view[each.entry]);
    return record.bytes();
}

std::optional<ModelDocument> ModelDocument::fromRecord(const std::string& record)
{
    RecordReader reader(record);
    ModelDocument model;
    model.openAction = reader.text();
    for (const viewentries::Description& each : viewentries::all())
        take(reader, model.view, each.entry);
    return reader.complete() ? std::optional(model) : std::nullopt;
}

} // namespace host
