#include "PresentView.h"

#include "XmpTitle.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/ViewNumbers.h"

#include <QString>

#include <stdexcept>

namespace host {

namespace {

bool isSaid(const ViewValue& title)
{
    const auto* text = std::get_if<std::string>(&title);
    return text != nullptr && !text->empty();
}

} // namespace

ViewValue PresentView::operator[](ViewEntry entry) const
{
    const int option = viewentries::describe(entry).preference;
    ViewValue value =
        option != 0                      ? numbered(option)
        : entry == ViewEntry::PageMode   ? numbered(pdflibrary::PageModeEntry)
        : entry == ViewEntry::PageLayout ? numbered(pdflibrary::PageLayoutEntry)
        : entry == ViewEntry::OpenPage   ? openPage()
        : entry == ViewEntry::Zoom       ? zoom()
        : entry == ViewEntry::Title
            ? text(m_library.GetInformation(pdflibrary::InformationTitle), pdflibrary::TitleEntry)
            : text(m_library.GetCatalogInformation(L"Lang"), pdflibrary::LanguageEntry);
    requireRead(entry);
    return value;
}

Magnification PresentView::magnification() const
{
    const ViewValue value = (*this)[ViewEntry::Zoom];
    const auto* zoom = std::get_if<Magnification>(&value);
    return zoom == nullptr || zoom->type == 0 || zoom->percent < 0 ? Magnification() : *zoom;
}

ViewValue PresentView::shownTitle() const
{
    ViewValue title = (*this)[ViewEntry::Title];
    if (isSaid(title))
        return title;
    const ViewValue inMetadata = titleInMetadata();
    return isSaid(inMetadata) ? inMetadata : title;
}

ViewValue PresentView::titleInMetadata() const
{
    const QString packet = QString::fromStdWString(m_library.GetDocumentMetadata());
    const QString title = xmptitle::read(packet).value_or(QString());
    return title.isEmpty() ? ViewValue(Unset()) : title.toStdString();
}

bool PresentView::hasTitle() const
{
    return isSaid(shownTitle());
}

ViewChange PresentView::entries() const
{
    ViewChange view;
    for (const viewentries::Description& each : viewentries::all())
        if (each.entry != ViewEntry::Title && each.entry != ViewEntry::Lang)
            view.set(each.entry, (*this)[each.entry]);
    return view;
}

ViewChange PresentView::asChange() const
{
    ViewChange change = entries();
    for (const viewentries::Description& each : viewentries::all())
        if (change[each.entry] == ViewValue(Invalid()))
            change.set(each.entry, Unset());
    if (change[ViewEntry::Zoom] == ViewValue(Unset()))
        change.remove(ViewEntry::Zoom);
    else
        change.set(ViewEntry::Zoom, magnification());
    return change;
}

ViewValue PresentView::openPage() const
{
    const int destination = m_library.GetOpenActionDestination();
    if (destination != 0)
        return m_library.GetDestPage(destination);
    const std::string type = engine::fileNameFromWide(m_library.GetActionType(pdflibrary::OpenAction));
    return type.empty() ? ViewValue(Unset()) : ViewValue(OtherAction{type});
}

ViewValue PresentView::zoom() const
{
    using namespace pdflibrary;
    const int destination = m_library.GetOpenActionDestination();
    if (destination == 0)
        return Unset();
    const auto value = [&](int key) { return m_library.GetDestValue(destination, key); };
    Magnification zoom{static_cast<int>(value(DestinationForm)), value(DestinationZoom)};
    if (zoom.type == FitRectangle)
        zoom.rectangle = {value(DestinationLeft), value(DestinationBottom), value(DestinationRight),
                          value(DestinationTop)};
    return zoom;
}

ViewValue PresentView::numbered(int option) const
{
    const int value = m_library.GetViewerPreferences(pdflibrary::AsWritten + option);
    if (value == pdflibrary::NoPreference)
        return Unset();
    if (value == pdflibrary::InvalidPreference)
        return Invalid();
    return value;
}

ViewValue PresentView::text(const std::wstring& found, int option) const
{
    if (!found.empty() || m_library.LastErrorCode() != 0)
        return engine::fileNameFromWide(found);
    const ViewValue value = numbered(option);
    return value == ViewValue(0) ? ViewValue(std::string()) : value;
}

void PresentView::requireRead(ViewEntry entry) const
{
    if (const int code = m_library.LastErrorCode(); code != 0)
        throw std::runtime_error("its " + viewentries::label(entry) +
                                 " cannot be read: " + std::string(engine::errorText(code)));
}

} // namespace host
