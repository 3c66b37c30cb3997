#pragma once

#include "DocumentReader.h"
#include "host/change/ViewDifference.h"
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
        /// Counts in the place of the change, unless it is empty.
        const std::vector<ActionEntry>& entries;
        CActionInterface& action;
        bool json = false;
    };

    CheckTeller(TelvarPDFLibraryCPDylibCPP1311& library, const Question& question);

    Reading tell(const std::string& file) override;

    /// The line of a document that cannot be read.
    static std::string failureInJson(const std::string& file, const std::string& reason);

private:
    struct Found
    {
        std::string reason; ///< Why the document cannot open as asked; empty when it can.
        std::vector<ViewDifference> differences;
        std::string note;
    };

    Found tryChange(const std::string& file);
    Found tryEntries();
    std::string textOf(const std::string& file, const Found& found) const;

    TelvarPDFLibraryCPDylibCPP1311& m_library;
    Question m_question;
    ActionSequence m_sequence;
};

} // namespace host
