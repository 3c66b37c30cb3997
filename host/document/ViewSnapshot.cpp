#include "ViewSnapshot.h"

#include "PresentView.h"
#include "host/change/ViewJson.h"
#include "host/change/ViewValues.h"
#include "host/failures/Joined.h"

#include <QString>

#include <stdexcept>

namespace host {

namespace {

const int longestText = 200;

/// Documents may hold texts of any length.
ViewValue cutOff(const ViewValue& value)
{
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr)
        return value;
    const QString whole = QString::fromStdString(*text);
    return whole.size() > longestText ? whole.left(longestText).toStdString() + "..." : whole.toStdString();
}

} // namespace

ViewSnapshot::ViewSnapshot(TelvarPDFLibraryCPDylibCPP1311& library, bool withMetadata)
{
    const PresentView view(library);
    for (const viewentries::Description& each : viewentries::all())
        try {
            value(each.entry) = view[each.entry];
        } catch (const std::runtime_error&) { // left out
        }
    if (withMetadata) {
        m_titleInMetadata = view.titleInMetadata();
        if (value(ViewEntry::Title) == ViewValue(Unset())) // a viewer finds the other one
            value(ViewEntry::Title) = m_titleInMetadata;
    }
    if (!value(ViewEntry::OpenPage) || !value(ViewEntry::Zoom))
        value(ViewEntry::OpenPage) = value(ViewEntry::Zoom) = std::nullopt;
}

bool ViewSnapshot::differs(ViewEntry entry, const ViewSnapshot& other) const
{
    const Value& own = told(entry, other);
    const Value& others = other.told(entry, *this);
    return own && others && own != others;
}

/// Of the two titles the one in which they differ, as far as they do.
const ViewSnapshot::Value& ViewSnapshot::told(ViewEntry entry, const ViewSnapshot& other) const
{
    return entry == ViewEntry::Title && value(entry) == other.value(entry) ? m_titleInMetadata : value(entry);
}

QJsonObject ViewSnapshot::unlike(const ViewSnapshot& other) const
{
    ViewChange own;
    for (const viewentries::Description& each : viewentries::all())
        if (differs(each.entry, other))
            own.set(each.entry, cutOff(*told(each.entry, other)));
    if (own[ViewEntry::Zoom] == ViewValue(Unset())) // no destination: the page says so
        own.remove(ViewEntry::Zoom);
    return viewjson::write(own);
}

std::string ViewSnapshot::changeTo(const ViewSnapshot& after) const
{
    std::string text;
    for (const viewentries::Description& each : viewentries::all())
        if (differs(each.entry, after))
            text = joined(text, viewentries::label(each.entry) + ": " + wordFor(each.entry, after) + " -> " +
                                    after.wordFor(each.entry, *this));
    return text;
}

std::string ViewSnapshot::wordFor(ViewEntry entry, const ViewSnapshot& other) const
{
    return viewvalues::told(entry, cutOff(*told(entry, other)));
}

} // namespace host
