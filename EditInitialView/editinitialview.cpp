#include "editinitialview.h"

#include "CPrefsDialog.h"
#include "InitialViewSettings.h"

#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "shared/CErrorHandler.h"
#include "shared/CatchAllProtocol.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <span>

using namespace initialview;

namespace {

using Settings = QMap<QString, QVariant>;

const int actionFlags = 0x10F;
const int largestZoom = 1600;

/// Those that are set before full screen, and that a document's dialog begins with: options 1 to 5.
const auto windowPreferences = std::span(pdflibrary::viewerPreferences).first<5>();

template <std::size_t rows>
std::array<QString, rows> tableOf(const std::array<const char*, rows>& labels)
{
    std::array<QString, rows> table;
    std::copy(labels.begin(), labels.end(), table.begin());
    return table;
}

const auto gPageNavigationArr = tableOf(navigationLabels);
const auto gPageLayoutArr = tableOf(pageLayoutLabels);
const auto gMagnificationArr = tableOf(magnificationLabels);
const auto gTitleArr = tableOf(titleLabels);

/// The document's opening view that a magnification setting stands for.
struct Magnification
{
    int destinationType;
    int zoom; // percent, 0 for none
};

/// No zoom, and one above what viewers offer, become 100 %. What does not fit an int counts as above.
int usableZoom(double zoom)
{
    const bool fits = zoom > INT_MIN - 1.0 && zoom < INT_MAX + 1.0;
    const int whole = fits ? static_cast<int>(zoom) : INT_MAX;
    return whole == 0 || whole > largestZoom ? 100 : whole;
}

Magnification magnificationOf(const QVariant& stored)
{
    const int row = stored.toInt();
    if (row <= 4)
        return {row + 1, 0};
    if (row <= 7)
        return {pdflibrary::Zoomed, usableZoom((stored.toDouble() - 4) * 25)};
    return {pdflibrary::Zoomed, usableZoom(std::ldexp(100.0, row - 8))};
}

void applyLayoutAndMagnification(TelvarPDFLibraryCPDylibCPP1311& library, const Settings& settings)
{
    const int mode = pageModeOfRow(settings.value(key::NavigationTab).toInt());
    library.SetPageMode(mode);
    library.SetViewerPreferences(pdflibrary::NonFullScreenMode, mode);
    library.SetPageLayout(settings.value(key::PageLayout).toInt());

    const Magnification magnification = magnificationOf(settings.value(key::Magnification));
    const int saved = library.SelectedPage();
    const int wanted = settings.value(key::OpenToPage).toInt();
    const int page = wanted <= library.PageCount() ? wanted : 1;
    library.SelectPage(page);
    const double left = library.GetPageBox(pdflibrary::MediaBox, pdflibrary::BoxLeft);
    const double top = library.GetPageBox(pdflibrary::MediaBox, pdflibrary::BoxTop);
    const double right = library.GetPageBox(pdflibrary::MediaBox, pdflibrary::BoxRight);
    const double bottom = library.GetPageBox(pdflibrary::MediaBox, pdflibrary::BoxBottom);
    library.SetOpenActionDestinationFull(page, magnification.zoom, magnification.destinationType, left, top,
                                         right, bottom);
    library.SelectPage(saved);
}

void applyViewerPreferences(TelvarPDFLibraryCPDylibCPP1311& library, const Settings& settings)
{
    for (const pdflibrary::PreferenceRow& preference : windowPreferences)
        library.SetViewerPreferences(preference.option, settings.value(preference.key).toInt());
    if (settings.value(key::OpenInFullScreen).toBool())
        library.SetPageMode(pdflibrary::FullScreen);
    library.SetViewerPreferences(pdflibrary::TitleBar, settings.value(key::Show).toInt());
}

/// Puts the document's present view into the settings. The document stays selected.
void readDocument(TelvarPDFLibraryCPDylibCPP1311& library, int document, Settings& settings)
{
    library.SelectDocument(document);
    settings.insert(key::NavigationTab, rowOfPageMode(library.GetPageMode()));
    settings.insert(key::PageLayout, library.GetPageLayout());
    const int destination = library.GetOpenActionDestination();
    settings.insert(key::Magnification, destination != 0 ? library.GetDestType(destination) - 1 : 0);
    settings.insert(key::OpenToPage, destination != 0 ? library.GetDestPage(destination) : firstPage);
    for (const pdflibrary::PreferenceRow& preference : windowPreferences)
        settings.insert(preference.key, library.GetViewerPreferences(preference.option) == 1);
    settings.insert(key::OpenInFullScreen, library.GetPageMode() == pdflibrary::FullScreen);
    settings.insert(key::LayoutAndMagn, true);
    settings.insert(key::ViewerPrefs, true);
}

/// \param names as CActionInterface::GetDefaultIcon gives it.
QIcon iconOf(const QString& names)
{
    const auto image = [&names](int section) {
        return QPixmap(":/Quintar/Resources/Tools/" + names.section('#', section, section));
    };
    QIcon icon;
    icon.addPixmap(image(1), QIcon::Selected, QIcon::Off);
    icon.addPixmap(image(1), QIcon::Active, QIcon::Off);
    icon.addPixmap(image(2), QIcon::Disabled, QIcon::Off);
    icon.addPixmap(image(0), QIcon::Normal, QIcon::Off);
    return icon;
}

template <class Table>
void append(QComboBox* list, const Table& table)
{
    for (const QString& label : table)
        list->addItem(label);
}

void fillLists(const Ui_EditInitialViewPrefsDialog& form)
{
    append(form.NavigationTabComboBox, gPageNavigationArr);
    append(form.PageLayoutComboBox, gPageLayoutArr);
    append(form.MagnificationComboBox, gMagnificationArr);
    append(form.ShowComboBox, gTitleArr);
}

} // namespace

int CEditInitialView::WorkProc(WorkProcInfoStruct* info)
{
    const bool done = runCatchAll(__FILE__, "WorkProc", __LINE__, [info] {
        const Settings& settings = *info->pSettings;
        if (settings.value(key::LayoutAndMagn).toBool())
            applyLayoutAndMagnification(*info->pPDFLibrary, settings);
        if (settings.value(key::ViewerPrefs).toBool())
            applyViewerPreferences(*info->pPDFLibrary, settings);
    });
    if (done)
        return 0;
    info->pErrorHandler->StoreError("Error occurred while saving initial view data");
    return 1;
}

int CEditInitialView::ShowDialogProc(QWidget* parent, DialogLoadStruct* load)
{
    if (!load->bSkipDocumentRead && load->pPDFLibrary != nullptr && load->nDocumentID != 0)
        readDocument(*load->pPDFLibrary, load->nDocumentID, *load->pSettings);

    CPrefsDialog dialog(parent);
    dialog.setWindowFlags(dialog.windowFlags() & ~Qt::WindowContextHelpButtonHint);
    dialog.setWindowIcon(iconOf(GetDefaultIcon()));
    if (load->bHideAddToActionButton)
        dialog.QDhideAddToActionListButton();
    fillLists(dialog.ui);
    if (!load->pSettings->isEmpty())
        dialog.SetPrefs(load->pSettings);
    if (dialog.exec() != QDialog::Accepted)
        return 0;
    dialog.GetPrefs(load->pSettings);
    return 1;
}

int CEditInitialView::PreSequenceProc(WorkProcInfoStruct*)
{
    return 1;
}

int CEditInitialView::PostSequenceProc(WorkProcInfoStruct*)
{
    return 1;
}

QString CEditInitialView::GetActionName()
{
    return actionName;
}

QString CEditInitialView::GetDisplayName()
{
    return actionName;
}

QString CEditInitialView::GetActionHelp()
{
    return "Action_EditInitialView.html";
}

QString CEditInitialView::GetGroupName()
{
    return "Document Properties";
}

int CEditInitialView::GetActionFlags()
{
    return actionFlags;
}

QString CEditInitialView::GetDefaultIcon()
{
    return "Action_IntialView.png#Action_IntialView_Selected.png#Action_IntialView_Disabled.png";
}
