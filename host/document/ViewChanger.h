#pragma once

#include "PresentView.h"
#include "host/change/ViewChange.h"
#include "host/failures/Failure.h"

#include <string>
#include <vector>

class QString;
class TelvarPDFLibraryCPDylibCPP1311;

namespace host {

/// An entry that a change has altered, with what it was and what it is, in words.
struct ViewDifference
{
    ViewEntry entry;
    std::string before;
    std::string after;
};

/// Applies a change to documents that are open in a library. Only what differs from what is asked for is
/// written.
class ViewChanger
{
public:
    /// Both must outlive the object.
    ViewChanger(TelvarPDFLibraryCPDylibCPP1311& library, const ViewChange& change)
        : m_library(library), m_change(change), m_present(library)
    {}

    /// Changes the selected document.
    /// \param file its name, for a title that comes from it.
    /// \returns why it cannot be changed. After a failure part of the change may have been made: the document
    ///     must not be saved.
    Failure apply(const std::string& file);

    /// What the last call has altered.
    const std::vector<ViewDifference>& differences() const { return m_differences; }
    /// What may be a mistake about the document of the last call.
    const std::vector<std::string>& notes() const { return m_notes; }
    /// What was asked for and can be given to no document, if anything. Everything else is as asked.
    const Failure& leftOut() const { return m_leftOut; }

private:
    void changeEntry(ViewEntry entry, const ViewValue& wanted);
    int write(ViewEntry entry, const ViewValue& wanted);
    void changeOpenAction();
    void removeOpenAction();
    void leaveOpenAction(const OtherAction& wanted);
    void openAt(int page);
    void openAt(int page, const Magnification& zoom);
    void setDestination(int page, const Magnification& zoom);
    int wantedPage() const;
    void changeTitle(const ViewValue& wanted);
    void changeMetadata(const QString& packet, const ViewValue& title);
    void noteMissingTitle();
    void require(int result, ViewEntry entry) const;
    void altered(ViewEntry entry, const ViewValue& before, const ViewValue& after);

    TelvarPDFLibraryCPDylibCPP1311& m_library;
    const ViewChange& m_change;
    PresentView m_present;
    std::vector<ViewDifference> m_differences;
    std::vector<std::string> m_notes;
    Failure m_leftOut;
};

/// The title that a file's name makes: without folder and suffix, what is no UTF-8 as U+FFFD.
std::string titleFromFileName(const std::string& file);

} // namespace host
