#include "ViewChanger.h"

#include "XmpTitle.h"
#include "host/change/ViewValues.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/ViewNumbers.h"

#include <QString>

#include <strings.h>

#include <array>
#include <climits>
#include <cmath>
#include <stdexcept>

namespace host {

namespace {

/// A missing entry does the same as an explicit default, and says what an empty text says, so it
/// needs no change.
bool isDefault(ViewEntry entry, const ViewValue& value)
{
    if (value == ViewValue(std::string()))
        return true;
    const bool isFlag = viewentries::describe(entry).kind == viewentries::Kind::Flag;
    const bool isMode = entry == ViewEntry::PageMode || entry == ViewEntry::NonFullScreenPageMode;
    return (isFlag && value == ViewValue(0)) || (isMode && value == ViewValue(pdflibrary::PageOnly));
}

/// Empty for what is none.
std::string textOf(const ViewValue& value)
{
    const std::string* text = std::get_if<std::string>(&value);
    return text != nullptr ? *text : std::string();
}

/// Whether a number of percent can be given where the library takes a whole one.
bool isWhole(double percent)
{
    return percent == std::floor(percent) && percent <= INT_MAX;
}

Magnification magnificationFrom(const ViewValue& zoom)
{
    const auto* value = std::get_if<Magnification>(&zoom);
    return value != nullptr ? *value : Magnification();
}

/// Whether the place that a destination shows can stay when its magnification changes.
bool canBeMagnified(const Magnification& zoom)
{
    return zoom.type == 0 || zoom.type == pdflibrary::Zoomed || zoom.type == pdflibrary::FitRectangle;
}

std::string typeOfAction(const OtherAction& action)
{
    return "an action (" + action.type + ")" + (action.type == "GoTo" ? " that leads to no page" : "");
}

} // namespace

Failure ViewChanger::apply(const std::string& file)
{
    m_differences.clear();
    m_notes.clear();
    m_leftOut = {};
    try {
        for (const viewentries::Description& each : viewentries::all()) {
            const std::optional<ViewValue>& wanted = m_change[each.entry];
            const bool isOfOpenAction = each.entry == ViewEntry::OpenPage || each.entry == ViewEntry::Zoom;
            if (wanted && !isOfOpenAction && each.entry != ViewEntry::Title)
                changeEntry(each.entry, *wanted);
        }
        changeOpenAction();
        if (const auto& title = m_change[ViewEntry::Title]; title)
            changeTitle(std::holds_alternative<FileNameAsTitle>(*title) ? titleFromFileName(file) : *title);
        noteMissingTitle();
        return {};
    } catch (const std::runtime_error&) {
        return Failure::ofException();
    }
}

void ViewChanger::changeEntry(ViewEntry entry, const ViewValue& wanted)
{
    const ViewValue before = m_present[entry];
    if (before == wanted || (before == ViewValue(Unset()) && isDefault(entry, wanted)))
        return;
    require(write(entry, wanted), entry);
    altered(entry, before, wanted);
}

int ViewChanger::write(ViewEntry entry, const ViewValue& wanted)
{
    if (entry == ViewEntry::PageMode)
        return m_library.SetPageMode(numberOf(wanted, pdflibrary::NoPageMode));
    if (entry == ViewEntry::PageLayout)
        return m_library.SetPageLayout(numberOf(wanted, pdflibrary::NoPageLayout));
    if (entry == ViewEntry::Lang)
        return m_library.SetCatalogInformation(L"Lang", engine::wideFromFileName(textOf(wanted)));
    if (entry == ViewEntry::Title)
        return m_library.SetInformation(pdflibrary::InformationTitle,
                                        engine::wideFromFileName(textOf(wanted)));
    return m_library.SetViewerPreferences(viewentries::describe(entry).preference,
                                          numberOf(wanted, pdflibrary::NoPreference));
}

void ViewChanger::changeOpenAction()
{
    const std::optional<ViewValue>& page = m_change[ViewEntry::OpenPage];
    if (!page && !m_change[ViewEntry::Zoom])
        return;
    if (page == ViewValue(Unset()))
        return removeOpenAction();
    if (page && std::holds_alternative<OtherAction>(*page))
        return leaveOpenAction(std::get<OtherAction>(*page));
    const int wanted = wantedPage();
    try {
        openAt(wanted);
    } catch (const DocumentError&) {
        if (wanted <= m_library.PageCount())
            throw;
        openAt(wantedPage()); // looking for the page has shown how many there are
    }
}

void ViewChanger::openAt(int page)
{
    if (const std::optional<ViewValue>& zoom = m_change[ViewEntry::Zoom])
        openAt(page, std::get<Magnification>(*zoom));
    else if (m_present[ViewEntry::OpenPage] != ViewValue(page))
        openAt(page, m_present.magnification());
}

/// An action of the same type is taken for the same.
void ViewChanger::leaveOpenAction(const OtherAction& wanted)
{
    if (m_present[ViewEntry::OpenPage] != ViewValue(wanted))
        m_leftOut = {ReasonCode::OpenAction,
                     "it does not open with " + typeOfAction(wanted) + ", which cannot be given to it"};
}

int ViewChanger::wantedPage() const
{
    const int count = m_library.PageCount();
    const std::optional<ViewValue>& wanted = m_change[ViewEntry::OpenPage];
    if (!wanted)
        return numberOf(m_present[ViewEntry::OpenPage], 1);
    const int page = numberOf(*wanted, count);
    if (page > count)
        throw DocumentError({ReasonCode::PageBeyondEnd,
                             "it has " + std::to_string(count) + (count == 1 ? " page" : " pages") +
                                 ", so it cannot open at page " + std::to_string(page)});
    return page;
}

void ViewChanger::removeOpenAction()
{
    const ViewValue before = m_present[ViewEntry::OpenPage];
    if (before == ViewValue(Unset()))
        return;
    require(m_library.RemoveOpenAction(), ViewEntry::OpenPage);
    altered(ViewEntry::OpenPage, before, Unset());
}

void ViewChanger::openAt(int page, const Magnification& zoom)
{
    const ViewValue pageBefore = m_present[ViewEntry::OpenPage];
    const ViewValue zoomBefore = m_present[ViewEntry::Zoom];
    if (pageBefore == ViewValue(page) && zoomBefore == ViewValue(zoom))
        return;
    const bool zoomAlone = pageBefore == ViewValue(page) && zoom.type == pdflibrary::Zoomed &&
                           canBeMagnified(magnificationFrom(zoomBefore));
    if (!zoomAlone) // else the place on the page stays
        setDestination(page, zoom);
    if (zoomAlone || !isWhole(zoom.percent))
        require(m_library.SetDestValue(m_library.GetOpenActionDestination(), pdflibrary::DestinationZoom,
                                       zoom.percent),
                ViewEntry::Zoom);
    if (pageBefore != ViewValue(page))
        altered(ViewEntry::OpenPage, pageBefore, page);
    if (zoomBefore != ViewValue(zoom))
        altered(ViewEntry::Zoom, zoomBefore, zoom);
}

/// At the corner of the page where reading begins, or at the rectangle that is to be shown.
void ViewChanger::setDestination(int page, const Magnification& zoom)
{
    const int selected = m_library.SelectedPage();
    require(m_library.SelectPage(page), ViewEntry::OpenPage);
    const auto side = [this](int dimension) { return m_library.GetPageBox(pdflibrary::MediaBox, dimension); };
    const auto [left, bottom, right, top] =
        zoom.type == pdflibrary::FitRectangle
            ? zoom.rectangle
            : std::array{side(pdflibrary::BoxLeft), side(pdflibrary::BoxBottom), side(pdflibrary::BoxRight),
                         side(pdflibrary::BoxTop)};
    const int percent = isWhole(zoom.percent) ? static_cast<int>(zoom.percent) : 0;
    require(m_library.SetOpenActionDestinationFull(page, percent, zoom.type, left, top, right, bottom),
            ViewEntry::OpenPage);
    m_library.SelectPage(selected);
}

void ViewChanger::changeTitle(const ViewValue& wanted)
{
    if (m_change.keepsTitles() && m_present.hasTitle())
        return;
    const QString packet = QString::fromStdWString(m_library.GetDocumentMetadata());
    require(m_library.LastErrorCode() == 0 ? 1 : 0, ViewEntry::Title);
    // A title that the metadata alone has is the one that viewers show: it need not be written twice.
    if (m_present[ViewEntry::Title] == ViewValue(Unset()) && m_present.shownTitle() == wanted)
        return;
    changeEntry(ViewEntry::Title, wanted);
    if (!packet.isEmpty())
        changeMetadata(packet, wanted);
}

void ViewChanger::changeMetadata(const QString& packet, const ViewValue& title)
{
    const QString text = QString::fromStdString(textOf(title));
    const QString before = xmptitle::read(packet).value_or(QString());
    if (before == text)
        return;
    const std::optional<QString> changed = xmptitle::write(packet, text);
    if (!changed)
        throw DocumentError(
            {ReasonCode::Metadata, xmptitle::canBeWritten(text)
                                       ? "the title in its XMP metadata cannot be changed"
                                       : "its XMP metadata cannot hold some of the title's characters"});
    if (*changed == packet)
        return;
    require(m_library.SetDocumentMetadata(changed->toStdWString()), ViewEntry::Title);
    if (m_differences.empty() || m_differences.back().entry != ViewEntry::Title)
        altered(ViewEntry::Title, before.isEmpty() ? ViewValue() : before.toStdString(), title);
}

/// Viewers show the file's name in its place.
void ViewChanger::noteMissingTitle()
{
    if (m_change[ViewEntry::DisplayDocTitle] == ViewValue(1) && !m_present.hasTitle())
        m_notes.emplace_back("its title is to be shown, and it has none");
}

void ViewChanger::require(int result, ViewEntry entry) const
{
    if (result == 0)
        throw DocumentError(Failure::ofLibrary(m_library.LastErrorCode(),
                                               "its " + viewentries::label(entry) + " cannot be changed: "));
}

void ViewChanger::altered(ViewEntry entry, const ViewValue& before, const ViewValue& after)
{
    m_differences.push_back({entry, viewvalues::told(entry, before), viewvalues::told(entry, after)});
}

std::string titleFromFileName(const std::string& file)
{
    std::string name = file.substr(file.rfind('/') + 1);
    const std::string suffix = ".pdf";
    if (name.size() > suffix.size() &&
        strcasecmp(name.c_str() + name.size() - suffix.size(), suffix.c_str()) == 0)
        name.erase(name.size() - suffix.size());
    return QString::fromUtf8(name.data(), static_cast<int>(name.size())).toStdString();
}

} // namespace host
