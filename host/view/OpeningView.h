#pragma once

#include "host/change/ViewChange.h"

#include <QJsonObject>

#include <string>

class TelvarPDFLibraryCPDylibCPP1311;
namespace pdflibrary {
struct PreferenceRow;
}

namespace host {

/// How a document opens, and what else there is to tell of it.
class OpeningView
{
public:
    /// Reads the view of the selected document. Throws std::runtime_error when the library cannot tell.
    static OpeningView read(TelvarPDFLibraryCPDylibCPP1311& library);

    int pageCount() const { return m_pageCount; }
    /// Unset for what the document does not have.
    ViewValue operator[](ViewEntry entry) const { return m_entries[entry].value_or(Unset()); }
    /// What kind of action it opens with, where that is none that shows a page; else empty.
    std::string otherAction() const;

    /// Lines of a label and what it says, each with a line feed; safe to print.
    std::string inWords() const;
    /// The same with the names of ISO 32000, as ViewJson takes it.
    QJsonObject toJson() const;

private:
    std::string factsInWords() const;
    std::string openActionInWords() const;
    std::string preferencesInWords() const;
    std::string preferenceInWords(const pdflibrary::PreferenceRow& preference) const;

    int m_pageCount = 0;
    int m_signatures = 0;
    int m_bookmarks = 0;
    bool m_certified = false;
    bool m_encrypted = false;
    ViewChange m_entries;          ///< The magnification only where there is a destination.
    std::string m_destinationName; ///< UTF-8; empty unless the destination is a named one.
};

} // namespace host
