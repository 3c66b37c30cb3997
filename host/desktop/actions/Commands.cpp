#include "Commands.h"

#include "host/desktop/dialogs/HistoryDialog.h"
#include "host/desktop/dialogs/StartQuestion.h"

#include "host/desktop/platform/Dialogs.h"
#include "host/desktop/platform/DroppedNames.h"
#include "host/desktop/platform/OpenWith.h"
#include "host/desktop/rows/RowTexts.h"

#include "shared/ini/StoreReport.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMessageBox>
#include <QMimeData>
#include <QSaveFile>
#include <QWhatsThis>

namespace host::desktop {

using Command = RunMachine::Command;
using Id = ActionTable::Id;

namespace {

struct Gate
{
    Id id;
    Command command;
};

const Gate gates[] = {
    {Id::AddFiles, Command::Add},        {Id::AddFolder, Command::Add},
    {Id::Paste, Command::Add},           {Id::Remove, Command::Remove},
    {Id::ReadAgain, Command::Remove},    {Id::Password, Command::Remove},
    {Id::LikeThis, Command::Edit},       {Id::KeepAll, Command::Edit},
    {Id::Configure, Command::Configure}, {Id::Start, Command::Start},
    {Id::Stop, Command::Stop},           {Id::TryAgain, Command::TryAgain},
    {Id::UndoLast, Command::UndoRun},    {Id::SaveReport, Command::TryAgain},
};

/// Of a table with tabs between.
QByteArray line(QStringList fields)
{
    for (QString& each : fields)
        each.replace('\t', ' ').replace('\n', ' ').replace('\r', ' ');
    return (fields.join('\t') + '\n').toUtf8();
}

QByteArray reportInWords(const DocumentTable& table)
{
    QByteArray text = line({Commands::tr("Document"), Commands::tr("State"), Commands::tr("Change"),
                            Commands::tr("Reason"), Commands::tr("Result")});
    for (const DocumentRecord& record : table.records())
        if (record.result)
            text += line({QFile::decodeName(record.path), rowtexts::stateOf(record),
                          rowtexts::differences(*record.result), rowtexts::reasonOf(record),
                          QFile::decodeName(record.result->file)});
    return text;
}

} // namespace

Commands::Commands(Workbench& workbench, ActionTable& actions, QSettings& settings, QWidget* window)
    : QObject(window), m_workbench(workbench), m_actions(actions), m_window(window), m_folders(settings)
{
    connectAll();
    connect(&workbench.machine(), &RunMachine::changed, this, &Commands::enable);
    connect(&workbench.edits(), &EditHistory::changed, this, &Commands::enable);
    connect(&workbench.history(), &RunHistory::modelReset, this, &Commands::enable);
    connect(&workbench, &Workbench::draftChanged, this, &Commands::enable);
    connect(&workbench, &Workbench::countsChanged, this, &Commands::enable);
    connect(&workbench.order(), &DocumentOrder::selectionMoved, this, &Commands::enable);
    enable();
}

void Commands::connectAll()
{
    const auto on = [this](Id id, auto what) { connect(m_actions[id], &QAction::triggered, this, what); };
    on(Id::AddFiles, &Commands::addFiles);
    on(Id::AddFolder, &Commands::addFolder);
    on(Id::Paste, &Commands::paste);
    on(Id::Remove, [this] { m_workbench.remove(m_workbench.order().selected()); });
    on(Id::Undo, [this] { m_workbench.undoEdit(); });
    on(Id::Redo, [this] { m_workbench.redoEdit(); });
    on(Id::SelectAll,
       [this] { m_workbench.order().select(m_workbench.order().shown(), m_workbench.order().current()); });
    on(Id::ReadAgain, [this] { m_workbench.readAgain(m_workbench.order().shown()); });
    on(Id::OpenInViewer, &Commands::openInViewer);
    on(Id::ShowInFolder, &Commands::showInFolder);
    on(Id::ShowResults, &Commands::showResults);
    on(Id::CopyPaths, &Commands::copyPaths);
    on(Id::CopyCommand, &Commands::copyCommand);
    on(Id::LikeThis, &Commands::likeThis);
    on(Id::KeepAll, [this] { m_workbench.setDraft(ChangeDraft()); });
    on(Id::Start, &Commands::start);
    on(Id::Pause, [this] {
        m_workbench.machine().isEnabled(Command::Resume) ? m_workbench.resume() : m_workbench.pause();
    });
    on(Id::Stop, [this] { m_workbench.stop(); });
    on(Id::TryAgain, [this] { m_workbench.tryAgain(); });
    on(Id::UndoLast, &Commands::undoLast);
    on(Id::SaveReport, &Commands::saveReport);
    on(Id::Password, &Commands::askPassword);
    on(Id::Configure, &Commands::configure);
    on(Id::History, &Commands::showHistory);
    on(Id::WhatsThis, [] { QWhatsThis::enterWhatsThisMode(); });
    on(Id::About, &Commands::about);
}

void Commands::enable()
{
    for (const Gate& gate : gates) {
        const QString reason = m_workbench.machine().reasonAgainst(gate.command);
        m_actions[gate.id]->setEnabled(reason.isEmpty());
        m_actions[gate.id]->setToolTip(reason.isEmpty() ? m_actions[gate.id]->statusTip() : reason);
    }
    enableStart();
    const RunMachine& machine = m_workbench.machine();
    const EditHistory& edits = m_workbench.edits();
    m_actions[Id::Pause]->setEnabled(machine.isEnabled(Command::Pause) || machine.isEnabled(Command::Resume));
    m_actions[Id::Undo]->setEnabled(machine.isEnabled(Command::UndoEdit) && edits.canUndo());
    m_actions[Id::Redo]->setEnabled(machine.isEnabled(Command::UndoEdit) && edits.canRedo());
    m_actions[Id::Undo]->setText(edits.undoText());
    m_actions[Id::Redo]->setText(edits.redoText());
    if (m_workbench.undoableRun() < 0)
        m_actions[Id::UndoLast]->setEnabled(false);
    m_actions[Id::ShowResults]->setEnabled(!m_workbench.resultFolder().isEmpty());
    const bool hasCurrent = current() != nullptr;
    for (const Id id : {Id::OpenInViewer, Id::ShowInFolder, Id::CopyPaths})
        m_actions[id]->setEnabled(hasCurrent);
    if (!hasCurrent || !current()->facts)
        m_actions[Id::LikeThis]->setEnabled(false);
    const bool hasChange = !m_workbench.draft().isEmpty();
    m_actions[Id::CopyCommand]->setEnabled(hasChange && !m_workbench.targets().isEmpty());
    if (!hasChange)
        m_actions[Id::KeepAll]->setEnabled(false);
    if (machine.isEnabled(Command::TryAgain)) {
        const Workbench::Counts counts = m_workbench.counts();
        m_actions[Id::TryAgain]->setEnabled(counts.failed + counts.notDone > 0);
    }
}

/// What the machine alone does not know.
void Commands::enableStart()
{
    QAction* start = m_actions[Id::Start];
    if (start->isEnabled()) {
        const Workbench::Counts counts = m_workbench.counts();
        const bool isInPlace = m_workbench.destination().kind == Destination::Kind::InPlace;
        if (counts.willChange + (isInPlace ? 0 : counts.asAsked) > 0)
            return;
        start->setEnabled(false);
        start->setToolTip(tr("No document would be changed."));
    } else if (m_workbench.machine().state() == RunMachine::State::Listed && !m_workbench.draft().isEmpty() &&
               !m_workbench.targets().isEmpty()) {
        start->setToolTip(tr("What would change is not known. Read the documents again to try once more."));
    }
}

const DocumentRecord* Commands::current() const
{
    return m_workbench.table().find(m_workbench.order().current());
}

QVector<DocumentId> Commands::chosen() const
{
    const QVector<DocumentId> selected = m_workbench.order().selected();
    return selected.isEmpty() && current() != nullptr ? QVector<DocumentId>{current()->id} : selected;
}

void Commands::addFiles()
{
    const QString start = m_folders.of(LastFolders::Use::Adding);
    dialogs::askFiles(m_window, tr("Add Files"), start, [this](const QStringList& names) {
        QVector<QByteArray> paths;
        m_folders.keepFolderOf(LastFolders::Use::Adding, names.value(0));
        for (const QString& name : names)
            paths.append(droppednames::absolute(QFile::encodeName(name)));
        m_workbench.add(paths);
    });
}

void Commands::addFolder()
{
    const QString start = m_folders.of(LastFolders::Use::Adding);
    dialogs::askFolder(m_window, tr("Add Folder"), start, [this](const QString& name) {
        if (name.isEmpty())
            return;
        m_folders.keepFolderOf(LastFolders::Use::Adding, name); // where its neighbours are
        m_workbench.add({droppednames::absolute(QFile::encodeName(name))});
    });
}

void Commands::paste()
{
    const QMimeData* data = QApplication::clipboard()->mimeData();
    const QVector<QByteArray> names = data != nullptr ? droppednames::of(*data) : QVector<QByteArray>();
    if (names.isEmpty())
        return emit said(tr("The clipboard holds no files, folders or paths."));
    m_workbench.add(names);
}

void Commands::chooseFolder()
{
    const QString chosen = m_workbench.destination().folderPath();
    const QString near = RunOrder::commonFolder(m_workbench.table(), m_workbench.targets());
    dialogs::askFolder(m_window, tr("Folder for the Results"), chosen.isEmpty() ? near : chosen,
                       [this](const QString& name) {
                           if (name.isEmpty())
                               return;
                           Destination destination = m_workbench.destination();
                           destination.kind = Destination::Kind::Folder;
                           destination.folder = name;
                           m_workbench.setDestination(destination);
                       });
}

void Commands::start()
{
    if (!m_actions[Id::Start]->isEnabled())
        return;
    auto* question = new StartQuestion(m_workbench, m_window);
    question->setAttribute(Qt::WA_DeleteOnClose);
    connect(question, &QDialog::accepted, &m_workbench, &Workbench::start);
    question->open();
}

void Commands::undoLast()
{
    undoRun(m_workbench.undoableRun());
}

void Commands::undoRun(int row)
{
    if (!m_workbench.history().canUndo(row))
        return;
    const RunHistory::Run& run = m_workbench.history().runs().at(static_cast<std::size_t>(row));
    const QString question = run.changed < 0 ? tr("Undo this run?")
                                             : tr("Give %Ln document(s) back as they were?", "", run.changed);
    dialogs::confirm(m_window, question,
                     tr("Documents that have been changed since by something else are left alone."),
                     tr("&Undo"), [this, row] { m_workbench.undoRun(row); });
}

void Commands::saveReport()
{
    const QString start = m_folders.of(LastFolders::Use::Reports) + "/" + tr("report.tsv");
    dialogs::askSaveName(m_window, tr("Save Report"), start, [this](const QString& name) {
        m_folders.keepFolderOf(LastFolders::Use::Reports, name);
        QSaveFile file(name);
        const QByteArray bytes = reportInWords(m_workbench.table());
        if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
            emit said(tr("The report is in %1.").arg(name));
        else
            emit failed(tr("The report could not be written to %1: %2").arg(name, file.errorString()));
    });
}

void Commands::configure()
{
    RunMachine& machine = m_workbench.machine();
    if (!machine.isEnabled(Command::Configure))
        return;
    emit dialogOpens();
    machine.setBusy(true);
    std::optional<StoredChoice> choice;
    try {
        const std::shared_ptr<const DocumentFacts> facts = current() != nullptr ? current()->facts : nullptr;
        choice = m_dialog.show(m_window, m_workbench.draft(), facts.get());
    } catch (const std::runtime_error& error) {
        emit failed(QString::fromStdString(error.what()));
    }
    machine.setBusy(false);
    for (const QString& report : m_dialog.reports())
        storereport::isTrouble(report) ? emit failed(report) : emit said(report);
    if (!choice)
        return;
    ChangeDraft draft;
    draft.setStored(*choice);
    m_workbench.setDraft(draft);
}

void Commands::showHistory()
{
    m_workbench.history().reload();
    auto* dialog = new HistoryDialog(m_workbench.history(), m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &HistoryDialog::undoWanted, this, &Commands::undoRun);
    dialog->open();
}

void Commands::about()
{
    auto* box = new QMessageBox(QMessageBox::NoIcon, tr("About Quintar"),
                                tr("Quintar %1").arg(QCoreApplication::applicationVersion()),
                                QMessageBox::Close, m_window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIconPixmap(m_window->windowIcon().pixmap(64, 64));
    box->setInformativeText(
        tr("Says how PDF documents open. It adds to a document and never takes away: every run in place "
           "can be undone."));
    box->open();
}

void Commands::openInViewer()
{
    if (current() != nullptr && !openwith::viewer(current()->path))
        emit failed(tr("No viewer took %1.").arg(current()->name));
}

void Commands::showInFolder()
{
    if (current() != nullptr && !openwith::folder(current()->path))
        emit failed(tr("No file manager took %1.").arg(current()->folder));
}

void Commands::showResults()
{
    const QString folder = m_workbench.resultFolder();
    if (!folder.isEmpty() && !openwith::contents(QFile::encodeName(folder)))
        emit failed(tr("No file manager took %1.").arg(folder));
}

void Commands::copyPaths()
{
    QStringList paths;
    for (const DocumentId id : chosen())
        if (const DocumentRecord* record = m_workbench.table().find(id))
            paths += QFile::decodeName(record->path);
    QApplication::clipboard()->setText(paths.join('\n'));
}

void Commands::copyCommand()
{
    QApplication::clipboard()->setText(
        m_workbench.runOrder().commandLine(m_workbench.table(), m_workbench.targets()));
    const auto isLocked = [this](DocumentId id) {
        const DocumentRecord* record = m_workbench.table().find(id);
        return record != nullptr && record->password >= 0;
    };
    const DocumentTable::Ids& ids = m_workbench.targets();
    emit said(std::any_of(ids.begin(), ids.end(), isLocked)
                  ? tr("The command is in the clipboard. It waits for the password to be typed.")
                  : tr("The command is in the clipboard."));
}

void Commands::likeThis()
{
    if (current() == nullptr || !current()->facts)
        return;
    const QString name = current()->name;
    ChangeDraft draft;
    draft.setView(ChangeDraft::like(*current()->facts));
    m_workbench.setDraft(draft);
    emit said(tr("The change makes documents open as %1 does.").arg(name));
}

void Commands::askPassword()
{
    dialogs::askPassword(
        m_window,
        tr("The password is tried on all documents that want one. It is kept until this window is closed."),
        [this](const QString& text) {
            if (!text.isEmpty())
                m_workbench.givePassword(text.toUtf8());
        });
}

void Commands::help(reasontexts::Remedy remedy)
{
    switch (remedy) {
    case reasontexts::Remedy::Password:
        return askPassword();
    case reasontexts::Remedy::AppendSigned:
    case reasontexts::Remedy::AppendCertified:
        return m_workbench.appendAllTheSame(chosen());
    case reasontexts::Remedy::ReadAgain:
        return m_workbench.readAgain(chosen());
    case reasontexts::Remedy::ShowFolder:
        return showInFolder();
    case reasontexts::Remedy::None:
        break;
    }
}

} // namespace host::desktop
