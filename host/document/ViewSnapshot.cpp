#include "ViewSnapshot.h"

#include "PresentView.h"
#include "host/change/ViewJson.h"
#include "host/change/ViewValues.h"

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

ViewSnapshot::ViewSnapshot(TelvarPDFLibraryCPDylibCPP1311& library)
{
    const PresentView view(library);
    for (const viewentries::Description& each : viewentries::all())
        try {
            value(each.entry) = view[each.entry];
        } catch (const std::runtime_error&) { // left out
        }
    if (!value(ViewEntry::OpenPage) || !value(ViewEntry::Zoom))
        value(ViewEntry::OpenPage) = value(ViewEntry::Zoom) = std::nullopt;
}

bool ViewSnapshot::differs(ViewEntry entry, const ViewSnapshot& other) const
{
    if (!value(entry) || !other.value(entry))
        return false;
    return value(entry) != other.value(entry);
}

QJsonObject ViewSnapshot::unlike(const ViewSnapshot& other) const
{
    ViewChange own;
    for (const viewentries::Description& each : viewentries::all())
        if (differs(each.entry, other))
            own.set(each.entry, cutOff(*value(each.entry)));
    if (own[ViewEntry::Zoom] == ViewValue(Unset())) // no destination: the page says so
        own.remove(ViewEntry::Zoom);
    return viewjson::write(own);
}

std::string ViewSnapshot::changeTo(const ViewSnapshot& after) const
{
    std::string text;
    for (const viewentries::Description& each : viewentries::all())
        if (differs(each.entry, after))
            text += (text.empty() ? "" : "; ") + viewentries::label(each.entry) + ": " + wordFor(each.entry) +
                    " -> " + after.wordFor(each.entry);
    return text;
}

std::string ViewSnapshot::wordFor(ViewEntry entry) const
{
    return viewvalues::told(entry, cutOff(*value(entry)));
}

} // namespace host
