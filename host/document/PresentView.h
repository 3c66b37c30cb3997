#pragma once

#include "host/change/ViewChange.h"

#include <string>

class TelvarPDFLibraryCPDylibCPP1311;

namespace host {

/// How the selected document of a library opens, entry by entry.
class PresentView
{
public:
    /// Reads the document's entries as they are asked for. The library must outlive the object.
    explicit PresentView(TelvarPDFLibraryCPDylibCPP1311& library) : m_library(library) {}

    /// Unset for an entry that the document does not have; of an open action that is no destination, for its
    /// page and its zoom. Throws std::runtime_error when the library cannot tell.
    ViewValue operator[](ViewEntry entry) const;

    /// The title that a viewer finds: where the information dictionary has none, that of the XMP metadata.
    ViewValue shownTitle() const;

    /// What kind of action the document opens with, as ISO 32000 names it ("GoTo" for destinations as well);
    /// empty for none.
    std::string openAction() const;

    /// Everything that says how a document opens: all entries but its title and language.
    ViewChange entries() const;

    /// The change that makes any document open as this one does. Throws std::runtime_error also for a
    /// document whose open action cannot be given to others.
    ViewChange asChange() const;

private:
    ViewValue pageMode() const;
    ViewValue pageLayout() const;
    ViewValue openPage() const;
    ViewValue zoom() const;
    ViewValue preference(int option) const;
    ViewValue title() const;
    ViewValue language() const;
    /// Throws when the library refused its last operation.
    void requireRead(ViewEntry entry) const;

    TelvarPDFLibraryCPDylibCPP1311& m_library;
};

} // namespace host
