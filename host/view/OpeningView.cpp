#include "OpeningView.h"

#include "ViewWords.h"
#include "host/terminal/TerminalText.h"

#include "EditInitialView/InitialViewSettings.h"
#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/ViewNumbers.h"

#include <QJsonValue>
#include <QLocale>

namespace host {

using viewwords::labelAt;
using viewwords::line;
using viewwords::yesOrNo;

namespace {

const int zoomValue = 5; // of GetDestValue

constexpr std::array pageModeNames{"UseNone",    "UseOutlines", "UseThumbs",
                                   "FullScreen", "UseOC",       "UseAttachments"};
constexpr std::array pageLayoutNames{"SinglePage",     "OneColumn",   "TwoColumnLeft",
                                     "TwoColumnRight", "TwoPageLeft", "TwoPageRight"};
constexpr std::array destinationNames{"", "XYZ", "Fit", "FitH", "FitV", "FitBH"};
constexpr std::array preferenceNames{"",          "HideToolbar",  "HideMenubar",     "HideWindowUI",
                                     "FitWindow", "CenterWindow", "DisplayDocTitle", "NonFullScreenPageMode"};

std::string modeInWords(int mode)
{
    if (mode == pdflibrary::FullScreen)
        return "Full screen";
    return labelAt(initialview::navigationLabels, initialview::rowOfPageMode(mode), "unknown");
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
        return line("Open at page", "not set in document") + line("Magnification", "not set in document");
    const std::string name =
        destination->name.empty() ? "" : " (named destination \"" + forTerminal(destination->name) + "\")";
    return line("Open at page", std::to_string(destination->page) + name) +
           line("Magnification", magnificationInWords(*destination));
}

QJsonValue destinationToJson(const std::optional<OpeningView::Destination>& destination)
{
    if (!destination)
        return {};
    QJsonObject object{{"page", destination->page},
                       {"type", labelAt(destinationNames, destination->type, "")}};
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
                            library.GetDestValue(id, zoomValue),
                            engine::fileNameFromWide(library.GetDestName(id))};
    for (int option = 1; option < static_cast<int>(view.preferences.size()); ++option)
        view.preferences[static_cast<std::size_t>(option)] = library.GetViewerPreferences(option);
    return view;
}

std::string OpeningView::inWords() const
{
    std::string text = line("Pages", std::to_string(pageCount));
    if (encrypted)
        text += line("Encrypted", "yes");
    if (signatures > 0)
        text += line("Signatures", std::to_string(signatures));
    text += line("Navigation tab", modeInWords(pageMode));
    text += line("Page layout", labelAt(initialview::pageLayoutLabels, pageLayout, "unknown"));
    text += destinationInWords(destination);
    for (std::size_t option = pdflibrary::HideToolBars; option <= pdflibrary::CenterWindow; ++option)
        text += line(viewwords::preference(option), yesOrNo(preferences[option] == 1));
    text += line("Title bar shows",
                 labelAt(initialview::titleLabels, preferences[pdflibrary::TitleBar], "unknown"));
    return text + line("After full screen", modeInWords(preferences[pdflibrary::NonFullScreenMode]));
}

QJsonObject OpeningView::toJson() const
{
    QJsonObject settings;
    for (int option = pdflibrary::HideToolBars; option <= pdflibrary::TitleBar; ++option)
        settings.insert(preferenceNames[static_cast<std::size_t>(option)],
                        preferences[static_cast<std::size_t>(option)] == 1);
    settings.insert(preferenceNames[pdflibrary::NonFullScreenMode],
                    labelAt(pageModeNames, preferences[pdflibrary::NonFullScreenMode], ""));
    const char* layout = labelAt(pageLayoutNames, pageLayout, nullptr);
    return {{"pages", pageCount},
            {"encrypted", encrypted},
            {"signatures", signatures},
            {"pageMode", labelAt(pageModeNames, pageMode, "")},
            {"pageLayout", layout == nullptr ? QJsonValue() : QJsonValue(layout)},
            {"openAction", destinationToJson(destination)},
            {"viewerPreferences", settings}};
}

} // namespace host
