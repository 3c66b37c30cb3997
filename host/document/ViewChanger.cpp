#include "ViewChanger.h"

#include "XmpTitle.h"
#include "host/change/ViewValues.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/ViewNumbers.h"

#include <QString>

#include <strings.h>

#include <cmath>
#include <stdexcept>

namespace host {

namespace {

const int zoomValue = 5; // of SetDestValue
const int titleKey = 1;  // of SetInformation

/// A missing entry does the same as an explicit default, so it needs no change.
bool isDefault(ViewEntry entry, const ViewValue& value)
{
    const bool isFlag = viewentries::describe(entry).kind == viewentries::Kind::Flag;
    const bool isMode = entry == ViewEntry::PageMode || entry == ViewEntry::NonFullScreenPageMode;
    return (isFlag && value == ViewValue(0)) || (isMode && value == ViewValue(pdflibrary::PageOnly));
}

/// The library's number for the value of an entry.
int numberOf(const ViewValue& value, int absent)
{
    const int* number = std::get_if<int>(&value);
    return number != nullptr ? *number : absent;
}

std::wstring wideText(const ViewValue& value)
{
    const std::string* text = std::get_if<std::string>(&value);
    return text != nullptr ? engine::wideFromFileName(*text) : std::wstring();
}

bool isWhole(double percent)
{
    return percent == std::floor(percent);
}

} // namespace

Failure ViewChanger::apply(const std::string& file)
{
    m_differences.clear();
    m_notes.clear();
    try {
        for (const viewentries::Description& each : viewentries::all()) {
            const std::optional<ViewValue>& wanted = m_change[each.entry];
            const bool isOfOpenAction = each.entry == ViewEntry::OpenPage || each.entry == ViewEntry::Zoom;
            if (wanted && !isOfOpenAction && each.entry != ViewEntry::Title)
                changeEntry(each.entry, *wanted);
        }
        changeOpenAction();
        if (const auto& title = m_change[ViewEntry::Title]; title)
            changeTitle(std::holds_alternative<FileNameAsTitle>(*title) ? titleFromFileName(file)
                        : std::holds_alternative<Unset>(*title)         ? std::string()
                                                                        : std::get<std::string>(*title));
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
        return m_library.SetCatalogInformation(L"Lang", wideText(wanted));
    return m_library.SetViewerPreferences(viewentries::describe(entry).preference,
                                          numberOf(wanted, pdflibrary::NoPreference));
}

void ViewChanger::changeOpenAction()
{
    const std::optional<ViewValue>& page = m_change[ViewEntry::OpenPage];
    const std::optional<ViewValue>& zoom = m_change[ViewEntry::Zoom];
    if (!page && !zoom)
        return;
    m_action = m_present.openAction();
    if (page == ViewValue(Unset()))
        return removeOpenAction();
    const ViewValue present = m_present[ViewEntry::Zoom];
    const auto* kept = std::get_if<Magnification>(&present);
    openAt(wantedPage(), zoom ? std::get<Magnification>(*zoom) : kept != nullptr ? *kept : Magnification());
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
    if (m_action.empty())
        return;
    const ViewValue before = m_present[ViewEntry::OpenPage];
    require(m_library.RemoveOpenAction(), ViewEntry::OpenPage);
    altered(ViewEntry::OpenPage, before, Unset());
}

void ViewChanger::openAt(int page, const Magnification& zoom)
{
    const ViewValue pageBefore = m_present[ViewEntry::OpenPage];
    const ViewValue zoomBefore = m_present[ViewEntry::Zoom];
    if (pageBefore == ViewValue(page) && zoomBefore == ViewValue(zoom))
        return;
    const auto* before = std::get_if<Magnification>(&zoomBefore);
    const bool zoomAlone = pageBefore == ViewValue(page) && before != nullptr &&
                           before->type == pdflibrary::Zoomed && zoom.type == pdflibrary::Zoomed;
    if (!zoomAlone) // else the place on the page stays
        setDestination(page, zoom);
    if (zoomAlone || !isWhole(zoom.percent))
        require(m_library.SetDestValue(m_library.GetOpenActionDestination(), zoomValue, zoom.percent),
                ViewEntry::Zoom);
    if (pageBefore != ViewValue(page))
        altered(ViewEntry::OpenPage, pageBefore, page);
    if (zoomBefore != ViewValue(zoom))
        altered(ViewEntry::Zoom, zoomBefore, zoom);
}

/// At the corner of the page where reading begins.
void ViewChanger::setDestination(int page, const Magnification& zoom)
{
    const int selected = m_library.SelectedPage();
    require(m_library.SelectPage(page), ViewEntry::OpenPage);
    const auto side = [this](int dimension) { return m_library.GetPageBox(pdflibrary::MediaBox, dimension); };
    const int result = m_library.SetOpenActionDestinationFull(
        page, static_cast<int>(zoom.percent), zoom.type, side(pdflibrary::BoxLeft), side(pdflibrary::BoxTop),
        side(pdflibrary::BoxRight), side(pdflibrary::BoxBottom));
    require(result, ViewEntry::OpenPage);
    m_library.SelectPage(selected);
}

void ViewChanger::changeTitle(const std::string& title)
{
    const ViewValue before = m_present[ViewEntry::Title];
    const QString packet = QString::fromStdWString(m_library.GetDocumentMetadata());
    require(m_library.LastErrorCode() == 0 ? 1 : 0, ViewEntry::Title);
    const QString inMetadata = xmptitle::read(packet).value_or(QString());
    if (m_change.keepsTitles() && (before != ViewValue(Unset()) || !inMetadata.isEmpty()))
        return;
    const ViewValue wanted = title.empty() ? ViewValue(Unset()) : ViewValue(title);
    if (before != wanted) {
        require(m_library.SetInformation(titleKey, wideText(wanted)), ViewEntry::Title);
        altered(ViewEntry::Title, before, wanted);
    }
    const QString text = QString::fromStdString(title);
    if (packet.isEmpty() || inMetadata == text)
        return;
    const std::optional<QString> changed = xmptitle::write(packet, text);
    if (!changed)
        throw DocumentError({ReasonCode::Metadata, "the title in its XMP metadata cannot be changed"});
    if (*changed == packet)
        return;
    require(m_library.SetDocumentMetadata(changed->toStdWString()), ViewEntry::Title);
    if (before == wanted)
        altered(ViewEntry::Title, inMetadata.toStdString(), wanted);
}

/// A viewer that is to show a title shows the file's name where there is none.
void ViewChanger::noteMissingTitle()
{
    if (m_change[ViewEntry::DisplayDocTitle] == ViewValue(1) && m_present.shownTitle() == ViewValue(Unset()))
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
    const auto word = [entry](const ViewValue& value) {
        return std::holds_alternative<Unset>(value) ? "unset" : viewvalues::wordOf(entry, value);
    };
    const bool isOther = entry == ViewEntry::OpenPage && before == ViewValue(Unset());
    m_differences.push_back({entry, isOther && !m_action.empty() ? m_action : word(before), word(after)});
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
