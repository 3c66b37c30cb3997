#pragma once

#include "pdflibrary/ViewerPreferences.h"

#include <QJsonObject>

#include <array>
#include <optional>
#include <string>

class TelvarPDFLibraryCPDylibCPP1311;

namespace host {

/// How a document opens.
class OpeningView
{
public:
    struct Destination
    {
        int type = 0;
        int page = 0;
        /// Percent, 0 for none.
        double zoom = 0;
        /// UTF-8; empty unless the destination is a named one.
        std::string name;
    };

    int pageCount = 0;
    int signatures = 0;
    bool encrypted = false;
    int pageMode = 0;
    int pageLayout = 0;
    std::optional<Destination> destination;
    /// The library's number for each row of pdflibrary::viewerPreferences.
    std::array<int, pdflibrary::viewerPreferences.size()> preferences{};

    /// Reads the view of the selected document.
    static OpeningView read(TelvarPDFLibraryCPDylibCPP1311& library);

    /// Lines of a label and what it says, each with a line feed. May hold characters of the document's names.
    std::string inWords() const;
    /// The same with the names of ISO 32000.
    QJsonObject toJson() const;
};

} // namespace host
