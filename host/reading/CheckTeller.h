#pragma once

#include "DocumentReader.h"
#include "host/run/ActionSequence.h"

#include <string>
#include <vector>

class CActionInterface;

namespace host {

class ViewChange;

/// Tells whether documents open as asked, and how they differ: what the change would alter. Nothing is
/// written.
class CheckTeller : public DocumentTeller
{
public:
    /// What documents are asked for, and how it is told. Everything lent must outlive the tellers.
    struct Question
    {
        const ViewChange& change;
        /// Count in the place of the change, unless there are none.
        const std::vector<ActionEntry>& entries;
        CActionInterface& action;
        bool json = false;
    };

    CheckTeller(TelvarPDFLibraryCPDylibCPP1311& library, const Question& question);

    Reading tell(const std::string& file) override;

    /// The line of a document that cannot be read.
    static std::string failureInJson(const std::string& file, const Failure& reason);

private:
    /// What has become of a document in memory.
    struct Trial
    {
        Failure reason; ///< Why it cannot open as asked.
        std::string note;
        std::string details; ///< What the change alone can tell.
    };

    Trial tryOut(const std::string& file);
    Trial tryChange(const std::string& file);

    TelvarPDFLibraryCPDylibCPP1311& m_library;
    Question m_question;
    ActionSequence m_sequence;
};

} // namespace host
