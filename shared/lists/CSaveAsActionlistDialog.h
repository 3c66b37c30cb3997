#pragma once

#include "shared/frame/CQuintarDialog.h"
#include "ui_saveAsActionlistDialog.h"

#include <QMap>
#include <QVariant>

/// Asks for a name and a category and stores an action's settings as a new action list, or adds them to the
/// list of that name. It saves once for each call of LoadPrefsData(). GUI thread.
///
///     CSaveAsActionlistDialog dialog(this);
///     dialog.LoadPrefsData(&prefs);
///     dialog.exec();
class CSaveAsActionlistDialog : public CQuintarDialog
{
    Q_OBJECT

public:
    /// Offers the categories of the stored lists, as they are now.
    /// \param parent decides the colours, see CQuintarDialog; it does not own a dialog on the stack.
    /// \param flags not used.
    explicit CSaveAsActionlistDialog(QWidget* parent, Qt::WindowFlags flags = Qt::WindowFlags());

    /// Lends the settings to the dialog, before it is shown and until it is closed; null takes them back, and
    /// saving then does nothing. Cancelling leaves them as they are. Saving puts "ActionListName",
    /// "ActionListCategory" and "ActionListOverwrite" into them and hands them to
    /// CActionUtils::SaveAsCustomActionList.
    void LoadPrefsData(QMap<QString, QVariant>* prefs);

signals:
    /// Settings were to be added to a list that may exist, whether or not the file could be written.
    /// \param name the list's, as the user typed it.
    void actionListChanged(QString name);

public slots:
    /// Stores the settings and accepts, unless the name is blank. Failures are not shown: the dialog closes
    /// as after success.
    void on_Save();
    /// A blank name cannot be saved.
    void on_UpdateUI();

protected:
    /// Return and Enter save, whatever has the focus.
    void keyPressEvent(QKeyEvent* event) override;

public:
    /// The form, for callers that fill in a name.
    Ui_saveAsActionlistDialog ui;

private:
    QMap<QString, QVariant>* m_pPrefs = nullptr; // null again once saved
};
