#pragma once

#include "RunBar.h"
#include "host/desktop/actions/ActionTable.h"
#include "host/desktop/actions/Commands.h"
#include "host/desktop/list/DocumentView.h"
#include "host/desktop/list/FilterBar.h"
#include "host/desktop/panel/ChangePanel.h"
#include "host/desktop/panel/PreviewPane.h"
#include "host/desktop/session/Session.h"

#include <QMainWindow>
#include <QSplitter>
#include <QStackedWidget>

namespace host::desktop {

class HelpWindow;
class ToolBar;

/// Places the parts of the window and connects them; it decides nothing.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    struct Places
    {
        /// The program that does the work.
        QString program;
        QString reports;
        QString sessions;
        /// Of the user's settings.
        QString settings;
        /// Of the presets that are views.
        QString views;
        /// The program that draws pages; it may be missing.
        QString drawer = {};

        static Places ofUser();
    };

    explicit MainWindow(const Places& places);
    ~MainWindow() override;

    Workbench& workbench() { return m_workbench; }
    /// Adds the documents, and those of the session that was broken off or closed.
    void begin(const QVector<QByteArray>& paths);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void place();
    QWidget* makeList();
    QWidget* makeSide();
    void connectParts();
    void connectActions();
    void showState();
    void showOnly(DocumentFilter::Kind kind);
    void goTo(int step);
    void runEnded();
    void saveGeometryOnce();

    QSettings m_settings;
    QString m_views;
    QString m_drawer;
    Workbench m_workbench;
    Session m_session;
    ActionTable m_actions;
    Commands m_commands;
    QStackedWidget* m_pages = nullptr;
    ToolBar* m_bar = nullptr;
    FilterBar* m_filter = nullptr;
    DocumentView* m_view = nullptr;
    ChangePanel* m_change = nullptr;
    PreviewPane* m_preview = nullptr;
    RunBar* m_runBar = nullptr;
    HelpWindow* m_help = nullptr;
    QSplitter* m_splitter = nullptr;
    bool m_closesAtEnd = false;
    bool m_isNewList = true;
};

} // namespace host::desktop
