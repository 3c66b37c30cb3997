#pragma once

#include "host/desktop/workbench/RunHistory.h"

#include <QDialog>
#include <QPushButton>
#include <QTableView>

namespace host::desktop {

/// The runs of before: when, what, where to, how many; and undoing one.
class HistoryDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HistoryDialog(RunHistory& history, QWidget* parent);

signals:
    void undoWanted(int row);

private:
    void fillTable();

    RunHistory& m_history;
    QTableView* m_table;
    QPushButton* m_undo;
};

} // namespace host::desktop
