#pragma once

#include "shared/frame/CQuintarDialog.h"
#include "ui_saveAsActionlistDialog.h"

#include <QMap>
#include <QVariant>

/// Asks for a name and a category and stores an action's settings as a new action list, or adds them to the
/// list of that name. It saves once for each call of LoadPrefsData().
class CSaveAsActionlistDialog : public CQuintarDialog
{
    Q_OBJECT

public:
    /// \param flags not used.
    explicit CSaveAsActionlistDialog(QWidget* parent, Qt::WindowFlags flags = Qt::WindowFlags());

    /// Lends the settings to the dialog, before it is shown. Saving puts "ActionListName",
    /// "ActionListCategory" and "ActionListOverwrite" into them and hands them to
    /// CActionUtils::SaveAsCustomActionList.
    void LoadPrefsData(QMap<QString, QVariant>* prefs);

signals:
    /// Settings were added to a list, whose name is given as the user typed it.
    void actionListChanged(QString name);

public slots:
    /// Stores the settings and accepts, unless the name is blank. Failures are not shown.
    void on_Save();
    /// A blank name cannot be saved.
    void on_UpdateUI();

protected:
    void keyPressEvent(QKeyEvent* event) override;

public:
    Ui_saveAsActionlistDialog ui;

private:
    QMap<QString, QVariant>* m_pPrefs = nullptr; // null again once saved
};
