#pragma once

#include "host/failures/Failure.h"
#include "host/files/FileDescriptor.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class QJsonObject;

namespace host {

/// One update that a run has appended to a document in place.
struct AppendedUpdate
{
    /// The document's states, see FileState.h; it became larger. The one after an update that was begun where
    /// the document lies is not known.
    std::string before;
    std::string after;
    /// Of all that stood before the update, see Checksum.h.
    std::string checksum;
    /// The run noted that it was about to do it, and not what became of it.
    bool begun = false;
    /// Of an update whose state after is not known, all but its last lines, see Checksum.h.
    std::string unfinished = {};
    /// The run called the document failed afterwards: it is as it was, unless what became of it
    /// could not be told.
    bool failed = false;
};

/// What the report of a run, or of several that continued each other, tells of changes in place. A report may
/// be anybody's: what it says is nothing but a claim, which DocumentUndo holds against the files.
class UndoPlan
{
public:
    struct Document
    {
        /// Absolute.
        std::string path;
        /// The newest first.
        std::vector<AppendedUpdate> updates;
    };

    /// Something that the report names and that cannot be undone.
    struct LeftAlone
    {
        std::string name;
        Failure reason;
    };

    /// Reads the report, and keeps runs from writing it while the object lives. Throws UsageError when that
    /// is not possible, when it is no report, and for one of a run that changed nothing in place.
    explicit UndoPlan(const std::string& report);

    /// Forgets what is about other documents. \param names of those that are wanted; what the report does not
    /// tell of is left alone.
    void restrictTo(const std::vector<std::string>& names);

    /// The one with the newest update first.
    const std::vector<Document>& documents() const { return m_documents; }
    const std::vector<LeftAlone>& leftAlone() const { return m_leftAlone; }

private:
    void lock(const std::string& report) const;
    void readLines();
    void takeLine(std::string_view line, std::size_t number);
    void takeResult(const QJsonObject& object, std::size_t number);
    void takeFailure(const std::string& path);
    void takeUpdate(const std::string& path, AppendedUpdate update);
    void sumUp(const std::string& report);

    FileDescriptor m_file;
    std::vector<Document> m_documents;
    std::map<std::string, std::size_t> m_places; ///< Among the documents.
    std::vector<std::size_t> m_newestLine;       ///< Of each document.
    std::vector<LeftAlone> m_leftAlone;
    std::size_t m_lines = 0;
    std::size_t m_results = 0; ///< Of runs with -o.
    std::size_t m_unreadable = 0;
    std::size_t m_firstUnreadable = 0;
};

} // namespace host
