#include "MainWindow.h"

#include "EmptyPage.h"
#include "ToolBar.h"
#include "host/desktop/actions/ColumnMenus.h"
#include "host/desktop/actions/PresetMenu.h"
#include "host/desktop/dialogs/HelpWindow.h"
#include "host/desktop/dialogs/HistoryDialog.h"
#include "host/desktop/dialogs/StopQuestion.h"
#include "host/desktop/list/DetailLine.h"
#include "host/desktop/look/FirstSize.h"
#include "host/desktop/look/PaneRing.h"
#include "host/desktop/platform/DroppedNames.h"
#include "host/desktop/platform/LauncherProgress.h"
#include "host/desktop/presets/PresetFolder.h"
#include "host/desktop/session/Logout.h"
#include "host/program/InstallLayout.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFile>
#include <QFrame>
#include <QMenu>
#include <QMimeData>
#include <QStandardPaths>

namespace host::desktop {

using Id = ActionTable::Id;
using State = RunMachine::State;

namespace {

QWidget* line(QFrame::Shape shape)
{
    auto* frame = new QFrame;
    frame->setFrameShape(shape);
    frame->setFrameShadow(QFrame::Sunken);
    return frame;
}

} // namespace

MainWindow::Places MainWindow::Places::ofUser()
{
    const QString state = RunHistory::userFolder();
    return {QCoreApplication::applicationDirPath() + "/quintar",
            state,
            state + "/../sessions",
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quintar/window.ini",
            PresetFolder::userFolder(),
            QFile::decodeName(installlayout::renderProgram().c_str())};
}

MainWindow::MainWindow(const Places& places)
    : m_settings(places.settings, QSettings::IniFormat), m_views(places.views), m_drawer(places.drawer),
      m_workbench(places.program, places.reports), m_session(m_workbench, places.sessions), m_actions(this),
      m_commands(m_workbench, m_actions, m_settings, this)
{
    setObjectName(
        "QuintarClass"); // the dialogs of actions take their colours and place from a window of this name
    setAcceptDrops(true);
    place();
    connectParts();
    connectActions();
    resize(firstSize(*this, {1280, 880}));
    restoreGeometry(m_settings.value("window/geometry").toByteArray());
    m_splitter->restoreState(m_settings.value("window/splitter").toByteArray());
    m_actions[Id::ShowPreview]->setChecked(m_settings.value("window/preview", true).toBool());
    showState();
}

MainWindow::~MainWindow() = default;

void MainWindow::place()
{
    m_actions.fill(menuBar());
    auto* empty = new EmptyPage(this);
    connect(empty, &EmptyPage::addFiles, &m_commands, &Commands::addFiles);
    connect(empty, &EmptyPage::addFolder, &m_commands, &Commands::addFolder);
    m_splitter = new QSplitter(this);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(makeList());
    m_splitter->addWidget(makeSide());
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setSizes({860, 420});
    m_pages = new QStackedWidget(this);
    m_pages->addWidget(empty);
    m_pages->addWidget(m_splitter);
    m_runBar = new RunBar(m_workbench, this);
    m_bar = new ToolBar(m_workbench, m_actions, this);
    m_filter = m_bar->filter();
    auto* all = new QWidget(this);
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_bar);
    column->addWidget(line(QFrame::HLine));
    column->addWidget(m_pages, 1);
    column->addWidget(line(QFrame::HLine));
    column->addWidget(m_runBar);
    setCentralWidget(all);
}

QWidget* MainWindow::makeList()
{
    auto* list = new QWidget(this);
    m_view = new DocumentView(m_workbench.order(), m_settings, list);
    auto* detail = new DetailLine(m_workbench, list);
    auto* column = new QVBoxLayout(list);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_view, 1);
    column->addWidget(line(QFrame::HLine));
    column->addWidget(detail);
    new ColumnMenus(*m_view, m_actions);
    connect(detail, &DetailLine::remedyWanted, &m_commands, &Commands::help);
    connect(m_view, &DocumentView::menuWanted, this, [this](const QPoint& place) {
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        m_actions.fillContextMenu(menu);
        menu->popup(place);
    });
    connect(m_view, &QTableView::doubleClicked, m_actions[Id::OpenInViewer], &QAction::trigger);
    return list;
}

QWidget* MainWindow::makeSide()
{
    m_change = new ChangePanel(m_workbench, this);
    m_change->setMinimumWidth(380);
    m_preview = new PreviewPane(m_workbench, m_drawer, this);
    auto* side = new QWidget(this);
    auto* column = new QVBoxLayout(side); // the preview has what the settings leave
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_change);
    column->addWidget(m_preview, 1);
    auto* presets = new PresetMenu(m_workbench, m_actions, m_views, m_change);
    m_change->presets()->setMenu(presets);
    connect(presets, &PresetMenu::said, &m_commands, &Commands::said);
    connect(presets, &PresetMenu::failed, &m_commands, &Commands::failed);
    connect(m_change, &ChangePanel::configureWanted, &m_commands, &Commands::configure);
    connect(m_change->destination(), &DestinationRow::folderWanted, &m_commands, &Commands::chooseFolder);
    return side;
}

void MainWindow::connectParts()
{
    connect(m_change, &ChangePanel::showWanted, this, &MainWindow::showOnly);
    connect(m_runBar, &RunBar::whyWanted, this, &MainWindow::showOnly);
    connect(m_runBar, &RunBar::resultsWanted, m_actions[Id::ShowResults], &QAction::trigger);
    connect(m_runBar, &RunBar::undoWanted, &m_commands, &Commands::undoLast);
    connect(m_runBar, &RunBar::saveWanted, &m_commands, &Commands::saveReport);
    connect(&m_commands, &Commands::said, m_runBar, &RunBar::say);
    connect(&m_commands, &Commands::failed, m_runBar, &RunBar::complain);
    connect(&m_workbench.machine(), &RunMachine::changed, this, &MainWindow::showState);
    connect(m_change, &ChangePanel::focusLeaves, this, [this] { m_view->setFocus(); });
    connect(new Logout(m_workbench, this), &Logout::toBeKept, this, &MainWindow::saveGeometryOnce);
    connect(&m_session, &Session::failed, m_runBar, &RunBar::complain);
    connect(&m_commands, &Commands::dialogOpens, &m_session, &Session::save);
    connect(&m_workbench.order(), &DocumentOrder::shownChanged, this, &MainWindow::showState);
    connect(&m_workbench, &Workbench::progressed, this, &MainWindow::showState);
    connect(&m_workbench, &Workbench::draftChanged, this, [this] {
        m_change->destination()->setDestination(m_workbench.destination());
        m_view->showColumnsOf(m_workbench.draft().effect());
    });
    connect(&m_workbench, &Workbench::runEnded, this, &MainWindow::runEnded);
}

void MainWindow::connectActions()
{
    connect(m_actions[Id::Quit], &QAction::triggered, this, &QWidget::close);
    connect(m_actions[Id::Find], &QAction::triggered, this, [this] {
        m_filter->search()->setFocus(Qt::ShortcutFocusReason);
        m_filter->search()->selectAll();
    });
    m_help = new HelpWindow(this);
    connect(m_actions[Id::Help], &QAction::triggered, m_help, &HelpWindow::showSettings);
    connect(m_actions[Id::Keys], &QAction::triggered, this,
            [this] { m_help->showPage(m_actions.keysPage()); });
    connect(m_actions[Id::ShowPreview], &QAction::toggled, m_preview, &QWidget::setVisible);
    connect(m_actions[Id::NextPane], &QAction::triggered, this, [this] { goTo(1); });
    connect(m_actions[Id::PreviousPane], &QAction::triggered, this, [this] { goTo(-1); });
    for (const Id id :
         {Id::OpenInViewer, Id::Remove, Id::CopyPaths, Id::SelectAll, Id::ColumnLeft, Id::ColumnRight}) {
        m_actions[id]->setShortcutContext(Qt::WidgetShortcut);
        m_view->addAction(m_actions[id]);
    }
}

void MainWindow::showState()
{
    const int documents = m_workbench.table().count();
    const DocumentTask* task = m_workbench.task();
    const bool isWorking = m_workbench.machine().isWriting() && task != nullptr && task->total() > 0;
    const double share = isWorking ? double(task->done()) / task->total() : -1;
    const int page = documents == 0 && m_workbench.machine().state() != State::Reading ? 0 : 1;
    m_pages->setCurrentIndex(page);
    m_isNewList = m_isNewList || page == 0;
    if (m_isNewList && page == 1 && m_workbench.machine().state() != State::Reading) {
        m_isNewList = false;
        m_view->setFocus(); // which was on the page that went away
    }
    m_bar->setVisible(m_pages->currentIndex() == 1);
    m_bar->setEnabled(documents > 0 || m_workbench.machine().state() == State::Reading);
    QString title = tr("Quintar");
    if (documents > 0)
        title = tr("%Ln document(s) - Quintar", "", documents);
    if (isWorking)
        title = tr("%1 % - Quintar").arg(static_cast<int>(share * 100));
    setWindowTitle(title);
    launcherprogress::show(share);
}

/// The first of them says at once what is about it, and Escape shows all again.
void MainWindow::showOnly(DocumentFilter::Kind kind)
{
    m_filter->show(kind);
    m_workbench.order().ensureCurrent();
    m_view->setFocus();
}

/// From the list to the change and on.
void MainWindow::goTo(int step)
{
    panering::go({m_view, m_change, m_runBar, m_filter}, step);
}

void MainWindow::begin(const QVector<QByteArray>& paths)
{
    m_session.begin(paths);
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !m_workbench.order().filter().isOpen())
        m_filter->clear();
    else
        QMainWindow::keyPressEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_workbench.machine().isWriting()) {
        event->ignore();
        return stopquestion::ask(this, m_workbench, tr("&Stop and Close"), [this] {
            m_closesAtEnd = true;
            m_workbench.machine().isWriting() ? m_workbench.stop() : runEnded();
        });
    }
    saveGeometryOnce();
    event->accept();
}

void MainWindow::runEnded()
{
    if (m_closesAtEnd)
        close();
}

void MainWindow::saveGeometryOnce()
{
    m_settings.setValue("window/geometry", saveGeometry());
    m_settings.setValue("window/splitter", m_splitter->saveState());
    m_settings.setValue("window/preview", m_actions[Id::ShowPreview]->isChecked());
    m_view->saveColumns();
    m_session.save();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!event->mimeData()->hasUrls() && !event->mimeData()->hasText())
        return;
    event->setDropAction(Qt::CopyAction); // by moving the sender might delete
    event->accept();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    const QVector<QByteArray> names = droppednames::of(*event->mimeData());
    if (names.isEmpty())
        m_runBar->complain(tr("What was dropped are no files or folders."));
    m_workbench.add(names);
}

} // namespace host::desktop
