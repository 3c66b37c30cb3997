#include "DocumentJob.h"

#include "host/workers/Record.h"

namespace host {

const char* nameOf(Status status)
{
    switch (status) {
    case Status::Changed:
        return "changed";
    case Status::Unchanged:
        return "unchanged";
    case Status::Failed:
        break;
    }
    return "failed";
}

const char* nameOf(Saved saved)
{
    switch (saved) {
    case Saved::Appended:
        return "appended";
    case Saved::AppendedInPlace:
        return "appended in place";
    case Saved::Rewritten:
        return "rewritten";
    case Saved::Copied:
        return "copied";
    case Saved::Not:
        break;
    }
    return "";
}

DocumentResult DocumentResult::failed(Failure reason, std::int64_t milliseconds)
{
    return {Status::Failed, Saved::Not, std::move(reason), milliseconds};
}

std::string DocumentResult::toRecord() const
{
    return RecordWriter()
        .add(static_cast<std::int64_t>(status))
        .add(static_cast<std::int64_t>(saved))
        .add(static_cast<std::int64_t>(reason.code))
        .add(reason.text)
        .add(milliseconds)
        .add(fileState)
        .add(outputState)
        .add(note)
        .add(static_cast<std::int64_t>(certified))
        .add(stateBefore)
        .add(checksumBefore)
        .add(checksumUnfinished)
        .add(viewBefore)
        .add(viewAfter)
        .add(changes)
        .bytes();
}

std::optional<DocumentResult> DocumentResult::fromRecord(const std::string& record)
{
    RecordReader reader(record);
    const std::int64_t status = reader.number();
    const std::int64_t saved = reader.number();
    const std::int64_t code = reader.number();
    DocumentResult result{static_cast<Status>(status),
                          static_cast<Saved>(saved),
                          {static_cast<ReasonCode>(code), reader.text()}};
    result.milliseconds = reader.number();
    result.fileState = reader.text();
    result.outputState = reader.text();
    result.note = reader.text();
    result.certified = reader.number() != 0;
    result.stateBefore = reader.text();
    result.checksumBefore = reader.text();
    result.checksumUnfinished = reader.text();
    result.viewBefore = reader.text();
    result.viewAfter = reader.text();
    result.changes = reader.text();
    const bool known = status >= 0 && status <= static_cast<int>(Status::Failed) && saved >= 0 &&
                       saved <= static_cast<int>(Saved::Copied) && isReasonCode(code);
    return reader.complete() && known ? std::optional(result) : std::nullopt;
}

} // namespace host
