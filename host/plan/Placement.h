#pragma once

#include "DocumentJob.h"

#include <sys/stat.h>

#include <optional>
#include <string>

namespace host {

/// A new file that is about to take its target's place, and what its worker will answer once it has. Noted
/// before the rename, it tells what became of a document whose worker ended without an answer.
class Placement
{
public:
    Placement(DocumentResult result, const struct stat& finished);

    std::string toRecord() const;
    static std::optional<Placement> fromRecord(const std::string& record);

    /// Whether the new file is what is at the target.
    bool isAt(const std::string& target) const;
    const DocumentResult& result() const { return m_result; }

private:
    DocumentResult m_result;
    struct stat m_finished; ///< Only what tells one file from another counts.
};

} // namespace host
