#pragma once

#include "shared/frame/CQuintarDialog.h"
#include "ui_saveAsCollectionDialog.h"

#include <QMap>
#include <QVariant>

/// Stores an action's settings as a favourite with a name and an icon, or in a file of the user's choice. GUI
/// thread.
class CSaveAsCollectionDialog : public CQuintarDialog
{
    Q_OBJECT

public:
    /// \param parent its object name is the tool's, which the favourite is stored for.
    /// \param flags not used.
    explicit CSaveAsCollectionDialog(QWidget* parent, Qt::WindowFlags flags = Qt::WindowFlags());

    /// Lends the settings to the dialog, before it is shown and until it is closed; null takes them back, and
    /// saving then does nothing. Saving a favourite puts "CollectionName" into them; a file holds them as
    /// they are.
    void LoadPrefsData(QMap<QString, QVariant>* prefs);

public slots:
    /// Stores the favourite and accepts, unless the name is blank. Failures are not shown: the dialog closes
    /// as after success.
    void on_Save();
    /// Lets the user pick an image for the favourite, which has none where that cannot be read.
    void on_CollectionIcon();
    /// A blank name cannot be saved.
    void on_UpdateUI();
    /// Asks for a file, rejects, and writes the settings to the file if one was named. Failures are not
    /// shown.
    void on_SaveToFile();

public:
    /// The form, for callers that set the icon that is offered.
    Ui_saveAsCollectionDialog ui;

private:
    QMap<QString, QVariant>* m_pPrefs = nullptr;
};
