#include "OpeningView.h"

#include "ViewWords.h"
#include "host/change/ViewJson.h"
#include "host/change/ViewValues.h"
#include "host/document/PresentView.h"
#include "host/terminal/TerminalText.h"

#include "EditInitialView/InitialViewSettings.h"
#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/ViewerPreferences.h"

#include <QJsonValue>
#include <QLocale>

namespace host {

using viewwords::labelAt;
using viewwords::line;
using viewwords::yesOrNo;

namespace {

namespace key = initialview::key;
using pdflibrary::PreferenceRow;

const std::string unset = "not set in document";

/// What the dialog calls a setting.
std::string labelOf(const char* key)
{
    return initialview::findKey(key)->label;
}

int numberOf(const ViewValue& value, int absent)
{
    const int* number = std::get_if<int>(&value);
    return number != nullptr ? *number : absent;
}

ViewEntry entryOf(const PreferenceRow& preference)
{
    for (const viewentries::Description& each : viewentries::all())
        if (each.preference == preference.option)
            return each.entry;
    throw std::invalid_argument("a viewer preference that is no entry of the view");
}

/// Of a preference that reads as a value where it is missing, too.
std::string preferenceInWords(const PreferenceRow& preference, int value)
{
    return preference.valueLabels.empty() ? yesOrNo(value == 1)
                                          : labelAt(preference.valueLabels, value, "unknown");
}

std::string inWordsOrUnset(ViewEntry entry, const ViewValue& value)
{
    return std::holds_alternative<Unset>(value) ? unset : forTerminal(viewvalues::wordOf(entry, value));
}

std::string percent(double zoom)
{
    return QLocale::c().toString(zoom, 'g', 6).toStdString() + "%";
}

std::string magnificationInWords(const Magnification& zoom)
{
    if (zoom.type == pdflibrary::Zoomed && zoom.percent > 0)
        return percent(zoom.percent);
    return labelAt(initialview::magnificationLabels, zoom.type - 1, "unknown");
}

} // namespace

OpeningView OpeningView::read(TelvarPDFLibraryCPDylibCPP1311& library)
{
    OpeningView view;
    view.m_pageCount = library.PageCount();
    view.m_signatures = library.SecurityInfo(engine::SignatureCount);
    view.m_certified = library.SecurityInfo(engine::Certification) != 0;
    view.m_bookmarks = library.OutlineCount();
    view.m_encrypted = library.EncryptionStatus() != engine::NotEncrypted;
    const PresentView present(library);
    for (const viewentries::Description& each : viewentries::all())
        view.m_entries.set(each.entry, present[each.entry]);
    view.m_entries.set(ViewEntry::Title, present.shownTitle());
    view.m_action = present.openAction();
    if (const int destination = library.GetOpenActionDestination(); destination != 0)
        view.m_destinationName = engine::fileNameFromWide(library.GetDestName(destination));
    else
        view.m_entries.remove(ViewEntry::Zoom);
    return view;
}

std::string OpeningView::otherAction() const
{
    return (*this)[ViewEntry::OpenPage] == ViewValue(Unset()) ? m_action : std::string();
}

std::string OpeningView::inWords() const
{
    const int mode = numberOf((*this)[ViewEntry::PageMode], pdflibrary::PageOnly);
    const int layout = numberOf((*this)[ViewEntry::PageLayout], pdflibrary::NoPageLayout);
    return factsInWords() +
           line(labelOf(key::NavigationTab), labelAt(pdflibrary::pageModeLabels, mode, "unknown")) +
           line(labelOf(key::PageLayout), labelAt(initialview::pageLayoutLabels, layout, "unknown")) +
           openActionInWords() + preferencesInWords() +
           line("Title", inWordsOrUnset(ViewEntry::Title, (*this)[ViewEntry::Title])) +
           line("Language", inWordsOrUnset(ViewEntry::Lang, (*this)[ViewEntry::Lang]));
}

std::string OpeningView::factsInWords() const
{
    std::string text = line("Pages", std::to_string(m_pageCount));
    if (m_encrypted)
        text += line("Encrypted", "yes");
    if (m_signatures > 0)
        text += line("Signatures", std::to_string(m_signatures));
    if (m_certified)
        text += line("Certified", "yes");
    if (m_bookmarks > 0)
        text += line("Bookmarks", std::to_string(m_bookmarks));
    return text;
}

std::string OpeningView::openActionInWords() const
{
    if (const std::string action = otherAction(); !action.empty())
        return line("Open action", forTerminal(action) + ", no page of the document");
    const ViewValue page = (*this)[ViewEntry::OpenPage];
    if (page == ViewValue(Unset()))
        return line(labelOf(key::Magnification), unset) + line(labelOf(key::OpenToPage), unset);
    const std::string name =
        m_destinationName.empty() ? "" : " (named destination \"" + forTerminal(m_destinationName) + "\")";
    return line(labelOf(key::Magnification),
                magnificationInWords(std::get<Magnification>((*this)[ViewEntry::Zoom]))) +
           line(labelOf(key::OpenToPage), std::to_string(numberOf(page, 0)) + name);
}

std::string OpeningView::preferencesInWords() const
{
    std::string text;
    for (const PreferenceRow& row : pdflibrary::viewerPreferences)
        text += line(row.label, preferenceInWords(row, numberOf((*this)[entryOf(row)], 0)));
    for (const PreferenceRow& row : pdflibrary::furtherPreferences)
        text += line(row.label, inWordsOrUnset(entryOf(row), (*this)[entryOf(row)]));
    return text;
}

QJsonObject OpeningView::toJson() const
{
    QJsonObject object = viewjson::write(m_entries);
    object.insert("pages", m_pageCount);
    object.insert("encrypted", m_encrypted);
    object.insert("signatures", m_signatures);
    object.insert("certified", m_certified);
    object.insert("bookmarks", m_bookmarks);
    object.insert("openAction", openActionInJson(object.value("openAction")));
    return object;
}

QJsonValue OpeningView::openActionInJson(const QJsonValue& destination) const
{
    if (const std::string action = otherAction(); !action.empty())
        return QJsonObject{{"action", QString::fromStdString(action)}};
    if (!destination.isObject())
        return {};
    QJsonObject object = destination.toObject();
    object.insert("name", m_destinationName.empty() ? QJsonValue()
                                                    : QJsonValue(QString::fromStdString(m_destinationName)));
    return object;
}

} // namespace host
