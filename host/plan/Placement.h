#pragma once

#include "DocumentJob.h"

#include <sys/stat.h>

#include <optional>
#include <string>

namespace host {

/// A change that is about to take its target's place, and what its worker will answer once it has: a new file
/// that is renamed, or an update that is appended where the document lies. Noted before that, it tells what
/// became of a document whose worker ended without an answer.
class Placement
{
public:
    /// A finished file about to be renamed.
    Placement(DocumentResult result, const struct stat& finished);
    /// An update about to be appended to a document. \param before the document's state.
    Placement(DocumentResult result, const struct stat& before, std::string update);

    std::string toRecord() const;
    static std::optional<Placement> fromRecord(const std::string& record);

    /// What became of the target now that the worker has ended, nothing when that is as it was. An update
    /// that stands there by half is cut off.
    /// \param why the worker ended. \param flush makes sure that what is in place is on the disk.
    std::optional<DocumentResult> settle(const std::string& target, const Failure& why, bool flush) const;

    const DocumentResult& result() const { return m_result; }

private:
    std::optional<DocumentResult> settleRename(const std::string& target, const Failure& why,
                                               bool flush) const;
    std::optional<DocumentResult> settleAppend(const std::string& target, const Failure& why) const;
    DocumentResult placed(const Failure& why, const std::string& note) const;

    DocumentResult m_result;
    struct stat m_file;   ///< Only what tells one file from another counts.
    std::string m_update; ///< Empty for a file that is renamed.
};

} // namespace host
