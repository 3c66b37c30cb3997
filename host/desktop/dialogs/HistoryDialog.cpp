#include "HistoryDialog.h"

#include "host/desktop/look/FirstSize.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace host::desktop {

namespace {

const int widestFolder = 260;

} // namespace

HistoryDialog::HistoryDialog(RunHistory& history, QWidget* parent)
    : QDialog(parent), m_history(history), m_table(new QTableView(this)), m_undo(nullptr)
{
    setObjectName("earlierRuns");
    setWindowTitle(tr("Earlier Runs"));
    m_table->setObjectName("runs");
    auto* text = new QLabel(
        tr("Undoing gives each document back as it was before the run. Documents that something else "
           "has changed since are left alone."),
        this);
    text->setWordWrap(true);
    fillTable();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_undo = buttons->addButton(tr("&Undo This Run…"), QDialogButtonBox::ActionRole);
    m_undo->setObjectName("undoRunButton");
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_undo, &QPushButton::clicked, this, [this] {
        const int row = m_table->currentIndex().row();
        accept();
        emit undoWanted(row);
    });
    const auto enable = [this] { m_undo->setEnabled(m_history.canUndo(m_table->currentIndex().row())); };
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this, enable);
    m_table->setCurrentIndex(history.index(std::max(0, history.newestUndoable()), 0));
    enable();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(12);
    column->addWidget(text);
    column->addWidget(m_table, 1);
    column->addWidget(buttons);
    resize(firstSize(*this, {860, 420}));
}

void HistoryDialog::fillTable()
{
    m_table->setModel(&m_history);
    m_table->setAccessibleName(tr("Earlier runs"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setShowGrid(false);
    m_table->setAlternatingRowColors(true);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_table->resizeColumnsToContents();
    m_table->setColumnWidth(RunHistory::Where,
                            std::min(m_table->columnWidth(RunHistory::Where), widestFolder));
    m_table->horizontalHeader()->setSectionResizeMode(RunHistory::What, QHeaderView::Stretch);
}

} // namespace host::desktop
