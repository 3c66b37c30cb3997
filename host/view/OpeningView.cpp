#include "OpeningView.h"

#include "ViewWords.h"
#include "host/terminal/TerminalText.h"

#include "EditInitialView/InitialViewSettings.h"
#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"

#include <QJsonValue>
#include <QLocale>

#include <algorithm>

namespace host {

using viewwords::labelAt;
using viewwords::line;
using viewwords::yesOrNo;

namespace {

namespace key = initialview::key;
using pdflibrary::PreferenceRow;

const std::string unset = "not set in document";

/// A name of the PDF without its slash; null where the table has none.
template <class Table>
const char* nameAt(const Table& table, int number)
{
    const char* name = labelAt(table, number, nullptr);
    return name != nullptr && *name != '\0' ? name + 1 : nullptr;
}

QJsonValue nameInJson(const char* name)
{
    return name != nullptr ? QJsonValue(name) : QJsonValue();
}

/// What the dialog calls a setting.
std::string labelOf(const char* key)
{
    return initialview::findKey(key)->label;
}

std::string preferenceInWords(const PreferenceRow& preference, int value)
{
    return preference.valueLabels.empty() ? yesOrNo(value == 1)
                                          : labelAt(preference.valueLabels, value, "unknown");
}

QJsonValue preferenceInJson(const PreferenceRow& preference, int value)
{
    return preference.names.empty() ? QJsonValue(value == 1) : nameInJson(nameAt(preference.names, value));
}

std::string percent(double zoom)
{
    return QLocale::c().toString(zoom, 'g', 6).toStdString() + "%";
}

std::string magnificationInWords(const OpeningView::Destination& destination)
{
    if (destination.type == pdflibrary::Zoomed && destination.zoom > 0)
        return percent(destination.zoom);
    return labelAt(initialview::magnificationLabels, destination.type - 1, "unknown");
}

std::string destinationInWords(const std::optional<OpeningView::Destination>& destination)
{
    if (!destination)
        return line(labelOf(key::Magnification), unset) + line(labelOf(key::OpenToPage), unset);
    const std::string name =
        destination->name.empty() ? "" : " (named destination \"" + forTerminal(destination->name) + "\")";
    return line(labelOf(key::Magnification), magnificationInWords(*destination)) +
           line(labelOf(key::OpenToPage), std::to_string(destination->page) + name);
}

QJsonValue destinationToJson(const std::optional<OpeningView::Destination>& destination)
{
    if (!destination)
        return {};
    QJsonObject object{{"page", destination->page},
                       {"type", nameInJson(nameAt(pdflibrary::destinationNames, destination->type))}};
    object.insert("zoom", destination->zoom > 0 ? QJsonValue(destination->zoom) : QJsonValue());
    object.insert("name", destination->name.empty() ? QJsonValue()
                                                    : QJsonValue(QString::fromStdString(destination->name)));
    return object;
}

} // namespace

OpeningView OpeningView::read(TelvarPDFLibraryCPDylibCPP1311& library)
{
    OpeningView view;
    view.pageCount = library.PageCount();
    view.signatures = library.SecurityInfo(engine::SignatureCount);
    view.encrypted = library.EncryptionStatus() != engine::NotEncrypted;
    view.pageMode = library.GetPageMode();
    view.pageLayout = library.GetPageLayout();
    if (const int id = library.GetOpenActionDestination(); id != 0)
        view.destination = {library.GetDestType(id), library.GetDestPage(id),
                            library.GetDestValue(id, pdflibrary::DestinationZoom),
                            engine::fileNameFromWide(library.GetDestName(id))};
    std::transform(pdflibrary::viewerPreferences.begin(), pdflibrary::viewerPreferences.end(),
                   view.preferences.begin(),
                   [&](const PreferenceRow& row) { return library.GetViewerPreferences(row.option); });
    return view;
}

std::string OpeningView::inWords() const
{
    std::string text = line("Pages", std::to_string(pageCount));
    if (encrypted)
        text += line("Encrypted", "yes");
    if (signatures > 0)
        text += line("Signatures", std::to_string(signatures));
    text += line(labelOf(key::NavigationTab), labelAt(pdflibrary::pageModeLabels, pageMode, "unknown"));
    text += line(labelOf(key::PageLayout), labelAt(initialview::pageLayoutLabels, pageLayout, "unknown"));
    text += destinationInWords(destination);
    for (std::size_t row = 0; row < preferences.size(); ++row)
        text += line(pdflibrary::viewerPreferences[row].label,
                     preferenceInWords(pdflibrary::viewerPreferences[row], preferences[row]));
    return text;
}

QJsonObject OpeningView::toJson() const
{
    QJsonObject settings;
    for (std::size_t row = 0; row < preferences.size(); ++row)
        settings.insert(pdflibrary::viewerPreferences[row].pdfName + 1,
                        preferenceInJson(pdflibrary::viewerPreferences[row], preferences[row]));
    return {{"pages", pageCount},
            {"encrypted", encrypted},
            {"signatures", signatures},
            {"pageMode", nameInJson(nameAt(pdflibrary::pageModeNames, pageMode))},
            {"pageLayout", nameInJson(nameAt(pdflibrary::pageLayoutNames, pageLayout))},
            {"openAction", destinationToJson(destination)},
            {"viewerPreferences", settings}};
}

} // namespace host
