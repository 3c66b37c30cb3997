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

#include <array>

namespace host {

using viewwords::labelAt;
using viewwords::line;

namespace {

namespace key = initialview::key;
using pdflibrary::PreferenceRow;

const std::string unset = "not set in document";

/// What the dialog calls a setting.
std::string labelOf(const char* key)
{
    return initialview::findKey(key)->label;
}

ViewEntry entryOf(const PreferenceRow& preference)
{
    for (const viewentries::Description& each : viewentries::all())
        if (each.preference == preference.option)
            return each.entry;
    throw std::invalid_argument("a viewer preference that is no entry of the view");
}

std::string inWordsOrUnset(ViewEntry entry, const ViewValue& value)
{
    return std::holds_alternative<Unset>(value) ? unset : forTerminal(viewvalues::told(entry, value));
}

/// What the dialog calls a number; `absent` is the number of an entry that is missing.
template <class Table>
std::string labelOrInvalid(const Table& labels, const ViewValue& value, int absent)
{
    return std::holds_alternative<Invalid>(value) ? "invalid"
                                                  : labelAt(labels, numberOf(value, absent), "unknown");
}

/// As the dialog calls it, where the dialog has a row for it.
std::string magnificationInWords(const Magnification& zoom)
{
    const bool hasRow = zoom.type >= pdflibrary::Zoomed && zoom.type <= pdflibrary::FitVisible;
    return zoom.percent != 0 || !hasRow ? viewvalues::told(ViewEntry::Zoom, zoom)
                                        : initialview::magnificationLabels.at(std::size_t(zoom.type) - 1);
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
    if (const int destination = library.GetOpenActionDestination(); destination != 0)
        view.m_destinationName = engine::fileNameFromWide(library.GetDestName(destination));
    else
        view.m_entries.remove(ViewEntry::Zoom);
    return view;
}

std::string OpeningView::otherAction() const
{
    const ViewValue page = (*this)[ViewEntry::OpenPage];
    const auto* action = std::get_if<OtherAction>(&page);
    return action != nullptr ? action->type : std::string();
}

std::string OpeningView::inWords() const
{
    return factsInWords() +
           line(labelOf(key::NavigationTab),
                labelOrInvalid(pdflibrary::pageModeLabels, (*this)[ViewEntry::PageMode],
                               pdflibrary::PageOnly)) +
           line(labelOf(key::PageLayout),
                labelOrInvalid(initialview::pageLayoutLabels, (*this)[ViewEntry::PageLayout],
                               pdflibrary::NoPageLayout)) +
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

/// Of a preference whose absence means the same as the number 0.
std::string OpeningView::preferenceInWords(const PreferenceRow& preference) const
{
    const ViewValue value = (*this)[entryOf(preference)];
    const std::array answers{"no", "yes"};
    return preference.valueLabels.empty() ? labelOrInvalid(answers, value, 0)
                                          : labelOrInvalid(preference.valueLabels, value, 0);
}

std::string OpeningView::preferencesInWords() const
{
    std::string text;
    const auto add = [&](const PreferenceRow& row) {
        const bool hasDefault = row.absent != pdflibrary::NoPreference;
        text += line(row.label, hasDefault ? preferenceInWords(row)
                                           : inWordsOrUnset(entryOf(row), (*this)[entryOf(row)]));
    };
    for (const PreferenceRow& row : pdflibrary::viewerPreferences)
        add(row);
    for (const PreferenceRow& row : pdflibrary::furtherPreferences)
        add(row);
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
    if (QJsonObject action = object.value("openAction").toObject(); action.contains("page")) {
        action.insert("name", m_destinationName.empty()
                                  ? QJsonValue()
                                  : QJsonValue(QString::fromStdString(m_destinationName)));
        object.insert("openAction", action);
    }
    return object;
}

} // namespace host
