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

const int zoomValue = 5;   // of GetDestValue
const int titleKey = 1;    // of GetInformation
const int openAction0 = 0; // of GetActionType: the document's own

ViewValue textValue(const std::wstring& text)
{
    if (text.empty())
        return Unset();
    return engine::fileNameFromWide(text);
}

} // namespace

ViewValue PresentView::operator[](ViewEntry entry) const
{
    const int option = viewentries::describe(entry).preference;
    const ViewValue value = option != 0                      ? preference(option)
                            : entry == ViewEntry::PageMode   ? pageMode()
                            : entry == ViewEntry::PageLayout ? pageLayout()
                            : entry == ViewEntry::OpenPage   ? openPage()
                            : entry == ViewEntry::Zoom       ? zoom()
                            : entry == ViewEntry::Title      ? title()
                                                             : language();
    requireRead(entry);
    return value;
}

ViewValue PresentView::shownTitle() const
{
    const ViewValue title = (*this)[ViewEntry::Title];
    if (title != ViewValue(Unset()))
        return title;
    // Metadata that cannot be read shows no title.
    const QString packet = QString::fromStdWString(m_library.GetDocumentMetadata());
    return textValue(xmptitle::read(packet).value_or(QString()).toStdWString());
}

std::string PresentView::openAction() const
{
    const std::string type = engine::fileNameFromWide(m_library.GetActionType(openAction0));
    requireRead(ViewEntry::OpenPage);
    return type;
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
    if (const std::string action = openAction(); !action.empty() && m_library.GetOpenActionDestination() == 0)
        throw std::runtime_error("it opens with an action (" + action + ") that cannot be given to others");
    ViewChange change = entries();
    if (change[ViewEntry::OpenPage] == ViewValue(Unset()))
        change.remove(ViewEntry::Zoom);
    return change;
}

ViewValue PresentView::pageMode() const
{
    const int mode = m_library.GetPageMode();
    if (mode == pdflibrary::PageOnly && m_library.LastErrorCode() == 0 &&
        m_library.GetCatalogInformation(L"PageMode").empty())
        return Unset();
    return mode;
}

ViewValue PresentView::pageLayout() const
{
    const int layout = m_library.GetPageLayout();
    if (layout == pdflibrary::NoPageLayout)
        return Unset();
    return layout;
}

ViewValue PresentView::openPage() const
{
    const int destination = m_library.GetOpenActionDestination();
    if (destination == 0)
        return Unset();
    return m_library.GetDestPage(destination);
}

ViewValue PresentView::zoom() const
{
    const int destination = m_library.GetOpenActionDestination();
    if (destination == 0)
        return Unset();
    return Magnification{m_library.GetDestType(destination), m_library.GetDestValue(destination, zoomValue)};
}

ViewValue PresentView::preference(int option) const
{
    const int value = m_library.GetViewerPreferences(pdflibrary::AsWritten + option);
    if (value == pdflibrary::NoPreference)
        return Unset();
    return value;
}

ViewValue PresentView::title() const
{
    return textValue(m_library.GetInformation(titleKey));
}

ViewValue PresentView::language() const
{
    return textValue(m_library.GetCatalogInformation(L"Lang"));
}

void PresentView::requireRead(ViewEntry entry) const
{
    if (const int code = m_library.LastErrorCode(); code != 0)
        throw std::runtime_error("its " + viewentries::label(entry) +
                                 " cannot be read: " + std::string(engine::errorText(code)));
}

} // namespace host
