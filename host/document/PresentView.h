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

    /// Unset for an entry that the document does not have, Invalid for one that says nothing. Where the open
    /// action shows no page, the page is an OtherAction and the zoom Unset. Throws std::runtime_error when the
    /// library cannot tell.
    ViewValue operator[](ViewEntry entry) const;

    /// The magnification that other pages can be given: where the document's own means nothing, what viewers
    /// make of it. That of a document without a destination is the default.
    Magnification magnification() const;

    /// The title that a viewer finds: where the information dictionary has none, that of the XMP metadata.
    ViewValue shownTitle() const;
    /// That of the XMP metadata; Unset where there is none that can be read.
    ViewValue titleInMetadata() const;
    /// Whether a viewer finds any title.
    bool hasTitle() const;

    /// Everything that says how a document opens: all entries but its title and language.
    ViewChange entries() const;

    /// The change that makes any document open as this one does, as far as its open action can be given to
    /// others. Throws std::runtime_error as operator[] does.
    ViewChange asChange() const;

private:
    ViewValue openPage() const;
    ViewValue zoom() const;
    /// \param option with AsWritten an entry of GetViewerPreferences.
    ViewValue numbered(int option) const;
    /// A text, or what the entry is where it has none.
    ViewValue text(const std::wstring& found, int option) const;
    /// Throws when the library refused its last operation.
    void requireRead(ViewEntry entry) const;

    TelvarPDFLibraryCPDylibCPP1311& m_library;
};

} // namespace host
