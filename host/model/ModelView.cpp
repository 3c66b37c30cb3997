#include "ModelView.h"

#include "ModelReader.h"
#include "ViewRecord.h"
#include "host/cell/Cell.h"
#include "host/terminal/NamedFile.h"
#include "host/terminal/UsageError.h"
#include "host/workers/RunControl.h"
#include "host/workers/SignalMask.h"

#include <sys/stat.h>

#include <cerrno>
#include <memory>
#include <optional>

namespace host::modelview {

namespace {

[[noreturn]] void refuse(const std::string& file, const Failure& why)
{
    throw UsageError(file + ": " + why.text +
                     (why.code == ReasonCode::NotFound ? suggestion::nearbyFile(file) : ""));
}

ViewChange fromOutcome(const std::string& file, const WorkOutcome& outcome)
{
    if (outcome.kind == WorkOutcome::Stopped)
        throw StoppedEarly();
    if (outcome.kind == WorkOutcome::Lost)
        refuse(file, outcome.failure);
    const std::optional<ViewChange> view = viewrecord::parse(outcome.answer);
    if (!view)
        refuse(file, {ReasonCode::Crashed, "the worker process gave no proper answer"});
    return *view;
}

} // namespace

ViewChange read(const std::string& file, std::string_view password, Cell& cell, const Ask& ask)
{
    struct stat status;
    const bool isThere = stat(file.c_str(), &status) == 0;
    if (!isThere && errno != ENOENT)
        refuse(file, Failure::ofSystem(errno, ReasonCode::ReadFailed));
    if (isThere && S_ISDIR(status.st_mode)) // which no worker can reach
        refuse(file, Failure{ReasonCode::NotAFile, "it is a folder; one document is wanted"});
    const PdfLibrary keptOpen; // so that the worker finds it in memory
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
    return fromOutcome(file, outcome);
}

} // namespace host::modelview
