#pragma once

#include "host/change/ViewChange.h"

#include <QJsonObject>

#include <array>
#include <optional>
#include <string>

class TelvarPDFLibraryCPDylibCPP1311;

namespace host {

/// How a document opens at one moment, to be held against another one. What a document makes unreadable is no
/// difference.
class ViewSnapshot
{
public:
    /// Reads the selected document. \param withMetadata where the title may differ in the XMP metadata alone.
    explicit ViewSnapshot(TelvarPDFLibraryCPDylibCPP1311& library, bool withMetadata = false);

    /// This one's values of the entries in which the two differ, as ViewJson.h writes a document's view. Texts
    /// are cut off at 200 characters.
    QJsonObject unlike(const ViewSnapshot& other) const;

    /// "page mode: unset -> use-outlines; open page: 2 -> 1"; empty when nothing differs.
    std::string changeTo(const ViewSnapshot& after) const;

private:
    using Value = std::optional<ViewValue>;

    const Value& value(ViewEntry entry) const { return m_values[static_cast<std::size_t>(entry)]; }
    Value& value(ViewEntry entry) { return m_values[static_cast<std::size_t>(entry)]; }
    bool differs(ViewEntry entry, const ViewSnapshot& other) const;
    std::string wordFor(ViewEntry entry, const ViewSnapshot& other) const;

    /// The value to be told of an entry in which the two differ.
    const Value& told(ViewEntry entry, const ViewSnapshot& other) const;

    std::array<Value, viewEntryCount> m_values;
    Value m_titleInMetadata;
};

} // namespace host
