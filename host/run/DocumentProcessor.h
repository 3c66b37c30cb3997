#pragma once

#include "ActionSequence.h"
#include "host/change/ViewChange.h"
#include "host/document/ViewSnapshot.h"
#include "host/plan/DocumentJob.h"
#include "host/plan/Placement.h"
#include "host/program/PdfLibrary.h"
#include "host/settings/SettingsFile.h"

#include <sys/stat.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class CActionInterface;

namespace host {

class InPlaceFile;
class SafeOutput;

/// What becomes of signed documents that would change; certified ones only change with AppendCertified.
enum class SignedDocuments { Refuse, Append, AppendCertified };

/// What holds for every document of a run.
struct ProcessingOptions
{
    std::vector<ActionEntry> entries;
    /// Applied in the place of entries, unless it is empty.
    ViewChange change;
    /// Somebody else's, who keeps it during the run.
    std::string_view password;
    SignedDocuments signedDocuments = SignedDocuments::Refuse;
    /// A document to which nothing can be appended may be written anew.
    bool rewrite = false;
    /// The target is the source: a document that needs no change is left alone instead of copied.
    bool inPlace = false;
    /// In place, a new file takes the document's place, also where the document could be appended to as it
    /// lies.
    bool replace = false;
    /// Nothing is written; the result says what would be.
    bool dryRun = false;
    /// Every output is flushed to the disk before it takes its place.
    bool flush = false;
    /// The output gets the document's rights and attributes; else those of any new file.
    bool keepsAttributes = true;
    /// What the report notes on every document that does not fail.
    std::string noteOnAll;
    /// The result tells what changes in how the document opens.
    bool tellChanges = false;
    /// The result tells the states of the files, for a report, and what it takes to undo a change in place.
    bool tellStates = false;
};

/// Runs the action over documents, one at a time: load, select, work, save, close. Brackets the run from its
/// construction to its destruction.
class DocumentProcessor
{
public:
    /// The action and the options must outlive the object. Throws std::runtime_error when the library file
    /// cannot be used.
    DocumentProcessor(CActionInterface& action, const ProcessingOptions& options);
    DocumentProcessor(const DocumentProcessor&) = delete;
    DocumentProcessor& operator=(const DocumentProcessor&) = delete;

    /// Is told before a new file takes its target's place, and before a document is changed where it lies.
    using BeforePlacement = std::function<void(const Placement&)>;

    /// Never throws; a failure of any kind leaves the target as it was.
    DocumentResult process(const DocumentJob& job, const BeforePlacement& beforePlacement);

    /// True once a document needed more memory than there is: what is left may be in pieces.
    bool isWornOut() const { return m_wornOut; }
    /// True when the last document failed, and what it needs is out of this process's reach (Reach.h).
    bool isKeptOut() const { return m_keptOut; }

private:
    using Clock = std::chrono::steady_clock;

    DocumentResult work(const DocumentJob& job);
    std::int64_t millisecondsTaken() const;
    void tellStates(DocumentResult& result, const struct stat& output) const;
    Failure tellWhatStoodBefore(DocumentResult& result, int source) const;
    DocumentResult applyAndSave(const DocumentJob& job);
    Failure apply(const std::string& file);
    void lookForPage(int page);
    DocumentResult changed(Saved saved) const;
    DocumentResult leave() const;
    std::string notesWith(const std::string& further) const;
    Failure refusal();
    DocumentResult tryOut();
    DocumentResult save(const DocumentJob& job);
    std::optional<DocumentResult> appendInPlace(const DocumentJob& job);
    DocumentResult append(const InPlaceFile& file, const std::string& update);
    DocumentResult write(const DocumentJob& job);
    DocumentResult rewrite(const DocumentJob& job);
    DocumentResult copy(const DocumentJob& job);
    DocumentResult commit(SafeOutput& output, const DocumentJob& job, DocumentResult result);
    DocumentResult notAsRead(const DocumentJob& job) const;
    DocumentResult notAppended(int code);
    DocumentResult libraryFailure(const std::string& what = {});

    const ProcessingOptions& m_options;
    PdfLibrary m_library;
    std::optional<ActionSequence> m_sequence; ///< Once the library is known to work.
    std::optional<ViewSnapshot> m_viewBefore;
    std::optional<ViewSnapshot> m_viewAfter;
    struct stat m_original = {}; ///< The document's file before it was read.
    Clock::time_point m_begin;
    std::vector<std::string> m_notes; ///< On the document that is worked on.
    const BeforePlacement* m_beforePlacement = nullptr;
    bool m_wornOut = false;
    bool m_keptOut = false;
};

} // namespace host
