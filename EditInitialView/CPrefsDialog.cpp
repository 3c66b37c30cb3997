#include "CPrefsDialog.h"

#include "CElidedTextStyle.h"
#include "InitialViewSettings.h"

#include "shared/CUtils.h"
#include "shared/ini/CIniFile.h"
#include "shared/lists/CSaveAsActionlistDialog.h"
#include "shared/lists/CSaveAsCollectionDialog.h"

using namespace initialview;

namespace {

QString geometryFile()
{
    return CUtils::GetSettingsFolder() + "/QuintarViewerSettings.qsf";
}

QString geometryKey(const CPrefsDialog& dialog)
{
    return dialog.objectName() + "geometry";
}

void withoutContextHelp(QDialog& dialog)
{
    dialog.setWindowFlags(dialog.windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

} // namespace

CPrefsDialog::CPrefsDialog(QWidget* parent) : CQuintarDialog(parent, true)
{
    ui.setupUi(this);
    titleLabel->setText(windowTitle());
    // The labels differ in their last words, and the dialog is too narrow to show them whole.
    new CElidedTextStyle(ui.PageLayoutComboBox);
    QDaddMainWidget(ui.main_widget, true);
    QDaddTopButtons();
    QDaddCloseButton();
    if (!underPreview())
        return;
    const CIniFile settings(geometryFile(), CIniFile::Access::Read);
    restoreGeometry(settings.value(geometryKey(*this)).toByteArray());
}

CPrefsDialog::~CPrefsDialog()
{
    if (!underPreview())
        return;
    CIniFile settings(geometryFile(), CIniFile::Access::Extend);
    settings.setValue(geometryKey(*this), saveGeometry());
    settings.commit();
}

void CPrefsDialog::SetPrefs(QMap<QString, QVariant>* prefs)
{
    const auto flag = [prefs](const char* name) { return prefs->value(name).toBool(); };
    const auto number = [prefs](const char* name) { return prefs->value(name).toInt(); };

    ui.LayoutAndMagnGrp->setChecked(flag(key::LayoutAndMagn));
    ui.NavigationTabComboBox->setCurrentIndex(number(key::NavigationTab));
    ui.PageLayoutComboBox->setCurrentIndex(number(key::PageLayout));
    ui.MagnificationComboBox->setCurrentIndex(number(key::Magnification));
    ui.OpenToPageSpinBox->setValue(number(key::OpenToPage));
    ui.ViewerPrefsGrp->setChecked(flag(key::ViewerPrefs));
    ui.HideToobarsCheckBox->setChecked(flag(key::HideToolBars));
    ui.HideMenuBarCheckBox->setChecked(flag(key::HideMenuBar));
    ui.HideCtrlWindowsCheckBox->setChecked(flag(key::HideCtrlWindows));
    ui.ResizeWinToInitPageCheckBox->setChecked(flag(key::ResizeWinToInitPage));
    ui.CenterWinOnScreenCheckBox->setChecked(flag(key::CenterWinOnScreen));
    ui.OpenInFullScreenCheckBox->setChecked(flag(key::OpenInFullScreen));
    ui.ShowComboBox->setCurrentIndex(number(key::Show));
}

void CPrefsDialog::GetPrefs(QMap<QString, QVariant>* prefs)
{
    prefs->insert(key::LayoutAndMagn, ui.LayoutAndMagnGrp->isChecked());
    prefs->insert(key::NavigationTab, ui.NavigationTabComboBox->currentIndex());
    prefs->insert(key::PageLayout, ui.PageLayoutComboBox->currentIndex());
    prefs->insert(key::Magnification, ui.MagnificationComboBox->currentIndex());
    prefs->insert(key::OpenToPage, ui.OpenToPageSpinBox->value());
    prefs->insert(key::ViewerPrefs, ui.ViewerPrefsGrp->isChecked());
    prefs->insert(key::HideToolBars, ui.HideToobarsCheckBox->isChecked());
    prefs->insert(key::HideMenuBar, ui.HideMenuBarCheckBox->isChecked());
    prefs->insert(key::HideCtrlWindows, ui.HideCtrlWindowsCheckBox->isChecked());
    prefs->insert(key::ResizeWinToInitPage, ui.ResizeWinToInitPageCheckBox->isChecked());
    prefs->insert(key::CenterWinOnScreen, ui.CenterWinOnScreenCheckBox->isChecked());
    prefs->insert(key::OpenInFullScreen, ui.OpenInFullScreenCheckBox->isChecked());
    prefs->insert(key::Show, ui.ShowComboBox->currentIndex());
    prefs->insert(key::ActionName, QString(actionName));
}

void CPrefsDialog::on_QDShowSaveDialog()
{
    CSaveAsActionlistDialog dialog(this, Qt::WindowFlags());
    withoutContextHelp(dialog);
    QMap<QString, QVariant> prefs;
    GetPrefs(&prefs);
    dialog.LoadPrefsData(&prefs);
    dialog.exec();
}

void CPrefsDialog::on_QDShowSaveCollectionDialog()
{
    CSaveAsCollectionDialog dialog(this, Qt::WindowFlags());
    withoutContextHelp(dialog);
    QMap<QString, QVariant> prefs;
    GetPrefs(&prefs);
    dialog.LoadPrefsData(&prefs);
    QIcon icon;
    icon.addPixmap(windowIcon().pixmap(QSize(128, 128), QIcon::Selected, QIcon::Off), QIcon::Normal,
                   QIcon::Off);
    dialog.ui.icon_toolButton->setIcon(icon);
    dialog.exec();
    // The settings are kept now; whoever runs this dialog is not to take them over as well.
    QDialog::reject();
}

void CPrefsDialog::accept()
{
    QDialog::accept();
}

void CPrefsDialog::reject()
{
    QDialog::reject();
}
