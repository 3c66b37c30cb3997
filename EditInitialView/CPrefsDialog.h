#pragma once

#include "shared/frame/CQuintarDialog.h"
#include "ui_EditInitialViewPrefsDialog.h"

#include <QMap>
#include <QVariant>

/// The settings dialog of an Initial View action. Its lists are empty until its user fills them; a
/// list's row is the number kept in the settings. Shown from the host's preview, it remembers its
/// geometry in QuintarViewerSettings.qsf of the settings folder: read by the constructor, written by the
/// destructor. GUI thread.
class CPrefsDialog : public CQuintarDialog
{
    Q_OBJECT

public:
    /// \param parent the host's window, which may be null. Its object name tells the preview from the rest.
    explicit CPrefsDialog(QWidget* parent);
    ~CPrefsDialog() override;

    /// Sets every widget. A missing key clears its box, selects its list's first row or sets page 1; a row
    /// that a list does not have leaves nothing selected.
    void SetPrefs(QMap<QString, QVariant>* prefs);

    /// Writes every key as the widgets stand, unchecked groups included. Other keys stay.
    /// \param prefs the caller's, as that of SetPrefs; neither is kept.
    void GetPrefs(QMap<QString, QVariant>* prefs);

public slots:
    /// Offers to store the settings as an action list.
    void on_QDShowSaveDialog();
    /// Offers to store the settings as a favourite or in a file, then closes this dialog as rejected.
    void on_QDShowSaveCollectionDialog();
    /// As QDialog's. After accept() the caller reads the widgets by GetPrefs().
    void accept() override;
    void reject() override;

public:
    /// The form. Whoever shows the dialog fills its lists, in the order of their rows (InitialViewSettings.h).
    Ui_EditInitialViewPrefsDialog ui;
};
