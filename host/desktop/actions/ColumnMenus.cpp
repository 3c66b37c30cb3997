#include "ColumnMenus.h"

#include "host/desktop/rows/Columns.h"

#include <QHeaderView>

namespace host::desktop {

using Id = ActionTable::Id;

namespace {

QAction* addColumn(QMenu& menu, int column)
{
    QAction* action = menu.addAction(columns::titleOf(static_cast<Column>(column)));
    action->setToolTip(columns::helpOf(static_cast<Column>(column)));
    action->setCheckable(true);
    return action;
}

} // namespace

ColumnMenus::ColumnMenus(QTableView& view, const ActionTable& actions)
    : QObject(&view), m_view(view), m_header(*view.horizontalHeader()), m_shown(new QMenu(&view)),
      m_sorted(new QMenu(&view)), m_sortColumn(nullptr), m_sortOrder(nullptr)
{
    for (QMenu* menu : {m_shown, m_sorted})
        menu->setToolTipsVisible(true);
    actions[Id::Columns]->setMenu(m_shown);
    actions[Id::SortBy]->setMenu(m_sorted);
    connect(m_shown, &QMenu::aboutToShow, this, &ColumnMenus::fillShown);
    connect(m_sorted, &QMenu::aboutToShow, this, &ColumnMenus::fillSorted);
    connect(&m_header, &QHeaderView::customContextMenuRequested, this,
            [this](const QPoint& place) { m_shown->popup(m_header.mapToGlobal(place)); });
    connect(actions[Id::ColumnLeft], &QAction::triggered, this, [this] { move(-1); });
    connect(actions[Id::ColumnRight], &QAction::triggered, this, [this] { move(1); });
}

QVector<int> ColumnMenus::inPlace() const
{
    QVector<int> columns;
    for (int place = 0; place < m_header.count(); ++place)
        columns.append(m_header.logicalIndex(place));
    return columns;
}

/// Without its name nobody knows which document a row is.
void ColumnMenus::fillShown()
{
    m_shown->clear();
    for (const int column : inPlace()) {
        QAction* action = addColumn(*m_shown, column);
        action->setChecked(!m_header.isSectionHidden(column));
        action->setEnabled(column != static_cast<int>(Column::Name));
        connect(action, &QAction::toggled, this,
                [this, column](bool shown) { m_header.setSectionHidden(column, !shown); });
    }
}

void ColumnMenus::fillSorted()
{
    m_sorted->clear();
    for (const int column : inPlace()) {
        QAction* action = addColumn(*m_sorted, column);
        m_sortColumn.addAction(action);
        action->setChecked(column == m_header.sortIndicatorSection());
        connect(action, &QAction::triggered, this,
                [this, column] { m_header.setSortIndicator(column, m_header.sortIndicatorOrder()); });
    }
    m_sorted->addSeparator();
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        QAction* action =
            m_sorted->addAction(order == Qt::AscendingOrder ? tr("&Ascending") : tr("&Descending"));
        m_sortOrder.addAction(action);
        action->setCheckable(true);
        action->setChecked(order == m_header.sortIndicatorOrder());
        connect(action, &QAction::triggered, this,
                [this, order] { m_header.setSortIndicator(m_header.sortIndicatorSection(), order); });
    }
}

/// Past columns that are not shown, as it is seen: where text runs from right to left, the first one is at the right.
void ColumnMenus::move(int step)
{
    const int column = m_view.currentIndex().column();
    if (column < 0 || m_header.isSectionHidden(column))
        return;
    if (m_view.layoutDirection() == Qt::RightToLeft)
        step = -step;
    const int from = m_header.visualIndex(column);
    int to = from + step;
    while (to >= 0 && to < m_header.count() && m_header.isSectionHidden(m_header.logicalIndex(to)))
        to += step;
    if (to < 0 || to >= m_header.count())
        return;
    m_header.moveSection(from, to);
    m_view.scrollTo(m_view.currentIndex());
}

} // namespace host::desktop
