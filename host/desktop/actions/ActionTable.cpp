#include "ActionTable.h"

#include <QMetaEnum>

namespace host::desktop {

namespace {

using Id = ActionTable::Id;

enum class Menu { File, Edit, Document, Change, Run, View, Help };

struct Row
{
    Id id;
    Menu menu;
    const char* text;
    /// In Qt's own notation; several are separated by semicolons.
    const char* keys;
    const char* help;
    bool hasLineBefore;
};

struct Title
{
    Menu menu;
    const char* text;
};

// clang-format off
const Title titles[] = {
    {Menu::File, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&File")},
    {Menu::Edit, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Edit")},
    {Menu::Document, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Document")},
    {Menu::Change, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Change")},
    {Menu::Run, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Run")},
    {Menu::View, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&View")},
    {Menu::Help, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Help")},
};

const Row rows[] = {
    {Id::AddFiles, Menu::File, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Add &Files…"), "Ctrl+O", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Adds documents to the list"), false},
    {Id::AddFolder, Menu::File, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Add F&older…"), "Ctrl+Shift+O", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Adds the documents of a folder and of those below it"), false},
    {Id::SaveReport, Menu::File, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Save Report…"), "Ctrl+S", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Keeps what became of each document in a file"), true},
    {Id::Quit, Menu::File, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Quit"), "Ctrl+Q", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Closes the window; list and change are there again the next time"), true},

    {Id::Undo, Menu::Edit, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Undo"), "Ctrl+Z", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Takes back what was last added, removed or set"), false},
    {Id::Redo, Menu::Edit, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Redo"), "Ctrl+Shift+Z", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Does once more what was taken back"), false},
    {Id::Paste, Menu::Edit, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Paste Documents"), "Ctrl+V", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Adds the files, folders and paths that were copied elsewhere"), true},
    {Id::Remove, Menu::Edit, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Re&move from List"), "Del", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Takes the selected documents out of the list; the files stay"), false},
    {Id::SelectAll, Menu::Edit, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Select &All"), "Ctrl+A", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Selects all documents that are shown"), true},
    {Id::Find, Menu::Edit, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Search"), "Ctrl+F", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Shows the documents that have certain words"), false},

    {Id::OpenInViewer, Menu::Document, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Open in Viewer"), "Return", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Opens the current document"), false},
    {Id::ShowInFolder, Menu::Document, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Show in &Folder"), "Ctrl+Shift+F", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Shows the current document in the file manager"), false},
    {Id::CopyPaths, Menu::Document, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Copy Paths"), "Ctrl+C", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Copies the paths of the selected documents"), false},
    {Id::Password, Menu::Document, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Give &Password…"), "", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Tries a password on all documents that want one"), true},
    {Id::ReadAgain, Menu::Document, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Read A&gain"), "F5", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Reads the documents that are shown once more"), false},

    {Id::LikeThis, Menu::Change, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Like This Document"), "Ctrl+L", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Makes documents open as the current one does"), false},
    {Id::Configure, Menu::Change, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "C&onfigure the Action…"), "Ctrl+E", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Makes the settings in the action's own window"), false},
    {Id::SavePreset, Menu::Change, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Save as Preset…"), "", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Keeps the change under a name"), false},
    {Id::KeepAll, Menu::Change, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Keep All"), "", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Sets nothing"), true},
    {Id::CopyCommand, Menu::Change, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Copy as Command"), "Ctrl+Shift+C", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Copies the command line that does the same"), true},

    {Id::Start, Menu::Run, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Start…"), "Ctrl+Return", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Says what will be done to how many documents, and asks"), false},
    {Id::Pause, Menu::Run, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Pause or Go On"), "Ctrl+P", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Begins no further document until it goes on"), false},
    {Id::Stop, Menu::Run, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "S&top"), "Ctrl+.", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Finishes the documents that are being worked on, and begins no more"), false},
    {Id::TryAgain, Menu::Run, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Try Failed &Again"), "Ctrl+R", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Runs once more over what failed or was not done"), true},
    {Id::ShowResults, Menu::Run, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Sho&w Results"), "", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Opens the folder that the run has written into"), false},
    {Id::UndoLast, Menu::Run, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Undo Last Run…"), "Ctrl+Alt+Z", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Gives each document back as it was before the run"), true},
    {Id::History, Menu::Run, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Earlier &Runs…"), "Ctrl+H", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Tells of the runs that can be undone"), false},

    {Id::ShowPreview, Menu::View, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Preview"), "F7", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Shows how the current document opens, before and after"), false},
    {Id::Columns, Menu::View, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Columns"), "", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Chooses what the list tells of each document"), true},
    {Id::SortBy, Menu::View, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Sort By"), "", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Chooses in which order the documents stand"), false},
    {Id::ColumnLeft, Menu::View, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Move Column &Left"), "Ctrl+Shift+Left", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Moves the column that the keyboard is in"), false},
    {Id::ColumnRight, Menu::View, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Move Column Ri&ght"), "Ctrl+Shift+Right", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Moves the column that the keyboard is in"), false},
    {Id::NextPane, Menu::View, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Next Part of the Window"), "F6", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Goes from the list to the change and on"), true},
    {Id::PreviousPane, Menu::View, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "P&revious Part of the Window"), "Shift+F6", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Goes back"), false},

    {Id::Help, Menu::Help, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Settings and Viewers"), "F1", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Explains each setting and which viewers follow it"), false},
    {Id::Keys, Menu::Help, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&Keys"), "Ctrl+F1", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Lists all keys"), false},
    {Id::WhatsThis, Menu::Help, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&What's This?"), "Shift+F1", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Explains what is clicked next"), false},
    {Id::About, Menu::Help, QT_TRANSLATE_NOOP("host::desktop::ActionTable", "&About Quintar"), "", QT_TRANSLATE_NOOP("host::desktop::ActionTable", "Names the version"), true},
};
// clang-format on

const Id contextRows[] = {Id::OpenInViewer, Id::ShowInFolder, Id::CopyPaths, Id::LikeThis, Id::Remove};

QString withoutMnemonic(QString text)
{
    return text.remove('&').remove("…").toHtmlEscaped();
}

} // namespace

ActionTable::ActionTable(QWidget* parent) : QObject(parent)
{
    for (const Row& row : rows) {
        auto* action = new QAction(tr(row.text), parent);
        action->setObjectName(QMetaEnum::fromType<Id>().valueToKey(static_cast<int>(row.id)));
        action->setShortcuts(QKeySequence::listFromString(row.keys));
        action->setStatusTip(tr(row.help));
        action->setWhatsThis(tr(row.help));
        action->setMenuRole(QAction::NoRole);
        m_actions.insert(static_cast<int>(row.id), action);
    }
    (*this)[Id::ShowPreview]->setCheckable(true);
}

void ActionTable::fill(QMenuBar* bar)
{
    for (const Title& title : titles) {
        QMenu* menu = bar->addMenu(tr(title.text));
        menu->setToolTipsVisible(true);
        for (const Row& row : rows) {
            if (row.menu != title.menu)
                continue;
            if (row.hasLineBefore)
                menu->addSeparator();
            menu->addAction((*this)[row.id]);
        }
    }
}

void ActionTable::fillContextMenu(QMenu* menu) const
{
    for (const Id id : contextRows)
        menu->addAction((*this)[id]);
}

QString ActionTable::keysPage() const
{
    QString page = "<h2>" + tr("Keys") + "</h2><table cellpadding=\"4\" width=\"100%\">";
    for (const Row& row : rows)
        if (const QKeySequence keys = (*this)[row.id]->shortcut(); !keys.isEmpty())
            page += "<tr><td width=\"28%\"><b>" + keys.toString(QKeySequence::NativeText).toHtmlEscaped() +
                    "</b></td><td>" + withoutMnemonic(tr(row.text)) + "<br>" + tr(row.help).toHtmlEscaped() +
                    "</td></tr>";
    return page + "</table>";
}

} // namespace host::desktop
