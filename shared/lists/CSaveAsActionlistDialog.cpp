#include "CSaveAsActionlistDialog.h"

#include "CTickedTabStop.h"
#include "actionutils/CActionUtils.h"
#include "ini/StoredKeys.h"

#include <QKeyEvent>

#include <utility>

using namespace storedkeys;

CSaveAsActionlistDialog::CSaveAsActionlistDialog(QWidget* parent, Qt::WindowFlags)
    : CQuintarDialog(parent, false)
{
    ui.setupUi(this);
    titleLabel->setText(windowTitle());
    QDaddMainWidget(ui.main_widget, true);
    while (ui.categoryComboBox->count() > 0)
        ui.categoryComboBox->removeItem(0);
    ui.categoryComboBox->addItems(CActionUtils::GetActionListCategories());
    connect(ui.actionListNameLineEdit, SIGNAL(returnPressed()), ui.saveButton, SIGNAL(clicked()));
    new CTickedTabStop(ui.newActionListRadioButton);
    new CTickedTabStop(ui.addToActionListRadioButton);
    ui.actionListNameLineEdit->setFocus();
}

void CSaveAsActionlistDialog::LoadPrefsData(QMap<QString, QVariant>* prefs)
{
    m_pPrefs = prefs;
}

void CSaveAsActionlistDialog::on_UpdateUI()
{
    const QString name = ui.actionListNameLineEdit->text().simplified().remove(' ');
    ui.saveButton->setDisabled(name.isEmpty());
}

void CSaveAsActionlistDialog::on_Save()
{
    if (!ui.saveButton->isEnabled())
        return;
    // Return in the name field arrives here twice, from the field and as the dialog's own key.
    QMap<QString, QVariant>* prefs = std::exchange(m_pPrefs, nullptr);
    if (prefs == nullptr)
        return;
    const QString name = ui.actionListNameLineEdit->text();
    prefs->insert(request::actionListName, name);
    prefs->insert(request::actionListCategory, ui.categoryComboBox->currentText());
    prefs->insert(request::actionListOverwrite, ui.newActionListRadioButton->isChecked());
    CActionUtils::SaveAsCustomActionList(prefs);
    if (ui.addToActionListRadioButton->isChecked())
        emit actionListChanged(name);
    accept();
}

void CSaveAsActionlistDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        on_Save();
    QDialog::keyPressEvent(event);
}
