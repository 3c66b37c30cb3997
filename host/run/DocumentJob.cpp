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
    case Saved::Rewritten:
        return "rewritten";
    case Saved::Copied:
        return "copied";
    case Saved::Not:
        break;
    }
    return "";
}

DocumentResult DocumentResult::failed(const std::string& reason, std::int64_t milliseconds)
{
    return {Status::Failed, Saved::Not, reason, milliseconds};
}

std::string DocumentResult::toRecord() const
{
    return RecordWriter()
        .add(static_cast<std::int64_t>(status))
        .add(static_cast<std::int64_t>(saved))
        .add(reason)
        .add(milliseconds)
        .add(fileState)
        .add(outputState)
        .add(note)
        .add(static_cast<std::int64_t>(certified))
        .bytes();
}

std::optional<DocumentResult> DocumentResult::fromRecord(const std::string& record)
{
    RecordReader reader(record);
    const std::int64_t status = reader.number();
    const std::int64_t saved = reader.number();
    std::string reason = reader.text();
    const std::int64_t milliseconds = reader.number();
    std::string fileState = reader.text();
    std::string outputState = reader.text();
    std::string note = reader.text();
    const bool certified = reader.number() != 0;
    const bool known = status >= 0 && status <= static_cast<int>(Status::Failed) && saved >= 0 &&
                       saved <= static_cast<int>(Saved::Copied);
    if (!reader.complete() || !known)
        return std::nullopt;
    return DocumentResult{
        static_cast<Status>(status), static_cast<Saved>(saved), std::move(reason), milliseconds,
        std::move(fileState),        std::move(outputState),    std::move(note),   certified};
}

} // namespace host
