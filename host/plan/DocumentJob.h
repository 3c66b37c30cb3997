#pragma once

#include "host/failures/Failure.h"

#include <cstdint>
#include <optional>
#include <string>

namespace host {

/// What became of a document.
enum class Status { Changed, Unchanged, Failed };

/// How its output came about.
enum class Saved {
    Not,
    Appended, ///< To a copy.
    AppendedInPlace,
    Rewritten,
    Copied
};

/// The words of the report.
const char* nameOf(Status status);
const char* nameOf(Saved saved);

/// One document to work on. Paths are bytes; both are absolute or relative to the current folder.
struct DocumentJob
{
    /// As the user named it, which a link may have made another name than the source's.
    std::string name;
    std::string source;
    std::string target;
    /// Where the new file is written before it takes the target's place; beside the target.
    std::string temporary;
};

struct DocumentResult
{
    Status status = Status::Failed;
    Saved saved = Saved::Not;
    /// Why it failed.
    Failure reason = {};
    std::int64_t milliseconds = 0;
    /// Of the document as it was read and of the output, see FileState.h; in place both are the document as
    /// it is now. Empty for a document that failed, and when nothing was to be written.
    std::string fileState = {};
    std::string outputState = {};
    /// What the user should know of a document that did not fail; may be empty.
    std::string note = {};
    /// The document carries a certification; false when it could not be read.
    bool certified = false;
    /// Of a document that an update was appended to in place, with a report: its state before, and the
    /// checksum (Checksum.h) of all that stood before the update. By these the update can be taken back.
    std::string stateBefore = {};
    std::string checksumBefore = {};
    /// While an update is being appended where the document lies: the checksum of what of it stands behind the
    /// document before its last lines do.
    std::string checksumUnfinished = {};
    /// What changed in how the document opens: JSON objects with the entries that differ (ViewSnapshot.h), and
    /// in words. Empty when nothing did, or it was not asked for.
    std::string viewBefore = {};
    std::string viewAfter = {};
    std::string changes = {};

    static DocumentResult failed(Failure reason, std::int64_t milliseconds = 0);
    std::string toRecord() const;
    static std::optional<DocumentResult> fromRecord(const std::string& record);
};

} // namespace host
