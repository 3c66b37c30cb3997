#include "SettingsWords.h"

#include "host/view/ViewWords.h"

#include "EditInitialView/InitialViewSettings.h"

namespace host {

using viewwords::line;
using viewwords::yesOrNo;

namespace {

namespace key = initialview::key;

const std::string unchanged = "unchanged";

constexpr std::array preferenceKeys{"",
                                    key::HideToolBars,
                                    key::HideMenuBar,
                                    key::HideCtrlWindows,
                                    key::ResizeWinToInitPage,
                                    key::CenterWinOnScreen};

template <class Table>
std::string rowInWords(const Table& table, const QVariant& stored)
{
    const char* label = viewwords::labelAt(table, stored.toInt(), nullptr);
    return label != nullptr ? label : "row " + stored.toString().toStdString() + ", which does not exist";
}

std::string layoutInWords(const SettingsMap& settings)
{
    const int page = settings.value(key::OpenToPage).toInt();
    const bool opens = page >= initialview::firstPage;
    return line("Navigation tab",
                rowInWords(initialview::navigationLabels, settings.value(key::NavigationTab))) +
           line("Page layout", rowInWords(initialview::pageLayoutLabels, settings.value(key::PageLayout))) +
           line("Open at page", opens ? std::to_string(page) : unchanged) +
           line("Magnification",
                opens ? rowInWords(initialview::magnificationLabels, settings.value(key::Magnification))
                      : unchanged);
}

std::string preferencesInWords(const SettingsMap& settings)
{
    std::string text;
    for (std::size_t option = 1; option < preferenceKeys.size(); ++option)
        text +=
            line(viewwords::preference(option), yesOrNo(settings.value(preferenceKeys[option]).toInt() == 1));
    return text + line("Full screen", yesOrNo(settings.value(key::OpenInFullScreen).toBool())) +
           line("Title bar shows", rowInWords(initialview::titleLabels, settings.value(key::Show)));
}

} // namespace

std::string settingsInWords(const SettingsMap& settings)
{
    return (settings.value(key::LayoutAndMagn).toBool() ? layoutInWords(settings)
                                                        : line("Layout and page", unchanged)) +
           (settings.value(key::ViewerPrefs).toBool() ? preferencesInWords(settings)
                                                      : line("Viewer preferences", unchanged));
}

} // namespace host
