#pragma once

#include "UndoPlan.h"

#include "host/files/FileDescriptor.h"

#include <sys/stat.h>

#include <string>
#include <vector>

namespace host {

class InPlaceFile;
struct FileState;

struct UndoResult
{
    enum Kind {
        Undone,
        UndoneAlready,
        NothingDone, ///< The run called the document failed.
        LeftAlone
    };

    Kind kind = LeftAlone;
    /// Why the document, or an older update of one that was undone, is left alone.
    Failure reason = {};
    /// What the user should know of a document that was undone; may be empty.
    std::string note = {};
};

/// Cuts the updates that a run has appended off a document, newest first, as far as the document is what the
/// report says: its size, its time, and the checksum of what stood before each update. It then has every
/// byte, the mode and the time of change that it had. It stays the same file where a run would append to it
/// as it lies, else a new one takes its place.
class DocumentUndo
{
public:
    /// The plan's document must outlive the object.
    explicit DocumentUndo(const UndoPlan::Document& document) : m_document(document) {}

    /// \param dryRun writes nothing, and tells what would be. A failure of any kind leaves the document as it
    /// was.
    UndoResult perform(bool dryRun);

private:
    UndoResult attempt(bool dryRun);
    Failure open();
    std::string expected() const;
    bool follow(std::string state);
    const AppendedUpdate* cutOff() const;
    bool isAfter(const AppendedUpdate& update, const std::string& state) const;
    std::string restoreTime() const;
    Failure whyNotCut() const;
    UndoResult cut() const;
    UndoResult cutInPlace(const InPlaceFile& file, const FileState& before) const;
    UndoResult replace(const FileState& before) const;

    const UndoPlan::Document& m_document;
    FileDescriptor m_file;
    struct stat m_present = {};
    std::vector<const AppendedUpdate*> m_cuts; ///< What is to be cut off, the newest first.
    bool m_isBefore = false;                   ///< The document is as it was before one of the updates.
    bool m_undoneAlready = false;              ///< And the run did not call it failed at that update.
    const AppendedUpdate* m_cutOff = nullptr;  ///< One that is cut off already, but for the document's time.
    bool m_olderStays = false; ///< An older update is kept, since others changed the document after it.
};

} // namespace host
