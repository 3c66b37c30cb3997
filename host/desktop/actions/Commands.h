#pragma once

#include "ActionTable.h"

#include "host/desktop/platform/LastFolders.h"
#include "host/desktop/presets/ActionDialog.h"
#include "host/desktop/texts/ReasonTexts.h"
#include "host/desktop/workbench/Workbench.h"

namespace host::desktop {

/// What the actions do: asks what has to be asked and passes it on to the workbench.
class Commands : public QObject
{
    Q_OBJECT

public:
    /// \param settings where it is kept in which folders documents were last looked for.
    Commands(Workbench& workbench, ActionTable& actions, QSettings& settings, QWidget* window);

    void addFiles();
    void addFolder();
    void paste();
    void chooseFolder();
    void start();
    void undoLast();
    void undoRun(int row);
    void saveReport();
    /// The action's own dialog; what is accepted there is the change.
    void configure();
    void showHistory();
    void help(reasontexts::Remedy remedy);

signals:
    void said(const QString& text);
    void failed(const QString& text);
    /// A dialog of a plug-in opens: a fault in it would end the window.
    void dialogOpens();

private:
    void connectAll();
    void openInViewer();
    void showInFolder();
    void showResults();
    void copyPaths();
    void copyCommand();
    void likeThis();
    void askPassword();
    void about();
    void enable();
    void enableStart();
    const DocumentRecord* current() const;
    QVector<DocumentId> chosen() const;

    Workbench& m_workbench;
    ActionTable& m_actions;
    QWidget* m_window;
    ActionDialog m_dialog;
    LastFolders m_folders;
};

} // namespace host::desktop
