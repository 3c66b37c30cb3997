#pragma once

#include <QAction>
#include <QHash>
#include <QMenuBar>

namespace host::desktop {

/// Everything that can be done by menu or key. One row each drives menus, keys and the help page about them.
class ActionTable : public QObject
{
    Q_OBJECT

public:
    enum class Id {
        AddFiles,
        AddFolder,
        Paste,
        SaveReport,
        Quit,
        Undo,
        Redo,
        Remove,
        SelectAll,
        Find,
        ReadAgain,
        OpenInViewer,
        ShowInFolder,
        CopyPaths,
        LikeThis,
        KeepAll,
        Configure,
        SavePreset,
        CopyCommand,
        Start,
        Pause,
        Stop,
        TryAgain,
        UndoLast,
        History,
        ShowResults,
        Password,
        NextPane,
        PreviousPane,
        ShowPreview,
        Columns,
        SortBy,
        ColumnLeft,
        ColumnRight,
        Help,
        Keys,
        WhatsThis,
        About,
    };
    Q_ENUM(Id)

    explicit ActionTable(QWidget* parent);

    QAction* operator[](Id id) const { return m_actions.value(static_cast<int>(id)); }
    void fill(QMenuBar* bar);
    void fillContextMenu(QMenu* menu) const;
    /// A table of keys and what they do, as HTML.
    QString keysPage() const;

private:
    QHash<int, QAction*> m_actions;
};

} // namespace host::desktop
