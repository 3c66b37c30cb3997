#include "DocumentView.h"

#include "CellDelegate.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScrollBar>

namespace host::desktop {

namespace {

const char group[] = "columns";
const int rowMargin = 10;

} // namespace

DocumentView::DocumentView(DocumentOrder& order, QSettings& settings, QWidget* parent)
    : QTableView(parent), m_order(order), m_settings(settings)
{
    setModel(&order);
    setSelectionModel(order.selection());
    setItemDelegate(new CellDelegate(this));
    setObjectName("documents");
    setAccessibleName(tr("Documents"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setFrameShape(NoFrame);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* header = horizontalHeader();
    header->setSectionsMovable(true);
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    header->setObjectName("columns");
    header->setAccessibleName(tr("Columns"));
    connect(&order, &DocumentOrder::aboutToRearrange, this, &DocumentView::keepPlace);
    connect(&order, &DocumentOrder::rearranged, this, &DocumentView::restorePlace);
    fitRows();
    restoreColumns();
    setSortingEnabled(true);
}

void DocumentView::fitRows()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowMargin);
}

void DocumentView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        fitRows();
    QTableView::changeEvent(event);
}

/// By the columns' names: a column that is new in this version goes where it belongs.
void DocumentView::restoreColumns()
{
    QHeaderView* header = horizontalHeader();
    m_settings.beginGroup(group);
    const QStringList order = m_settings.value("order").toStringList();
    for (int column = 0; column < columnCount; ++column) {
        const ColumnRow& row = columns::describe(column);
        const int width = row.width * fontMetrics().horizontalAdvance('x');
        header->resizeSection(column, m_settings.value(QString(row.id) + "/width", width).toInt());
        header->setSectionHidden(column,
                                 !m_settings.value(QString(row.id) + "/shown", row.isShownAtFirst).toBool());
    }
    for (int place = 0, next = 0; place < order.size(); ++place)
        for (int column = 0; column < columnCount; ++column)
            if (order.at(place) == columns::describe(column).id)
                header->moveSection(header->visualIndex(column), next++);
    int sorted = 0;
    for (int column = 0; column < columnCount; ++column)
        if (m_settings.value("sorted").toString() == columns::describe(column).id)
            sorted = column;
    header->setSortIndicator(sorted, m_settings.value("descending").toBool() ? Qt::DescendingOrder
                                                                             : Qt::AscendingOrder);
    m_settings.endGroup();
}

void DocumentView::saveColumns()
{
    const QHeaderView* header = horizontalHeader();
    QStringList order;
    m_settings.beginGroup(group);
    for (int place = 0; place < columnCount; ++place) {
        const int column = header->logicalIndex(place);
        const QString id = columns::describe(column).id;
        order += id;
        m_settings.setValue(id + "/shown", !header->isSectionHidden(column));
        if (!header->isSectionHidden(column))
            m_settings.setValue(id + "/width", header->sectionSize(column));
    }
    m_settings.setValue("order", order);
    m_settings.setValue("sorted", columns::describe(header->sortIndicatorSection()).id);
    m_settings.setValue("descending", header->sortIndicatorOrder() == Qt::DescendingOrder);
    m_settings.endGroup();
}

void DocumentView::showColumnsOf(const ViewChange& change)
{
    for (int column = 0; column < columnCount; ++column)
        for (const ViewEntry entry : columns::describe(column).entries)
            if (change[entry] && !m_told[entry])
                horizontalHeader()->setSectionHidden(column, false);
    m_told = change; // a column that is then hidden by hand stays hidden
}

void DocumentView::contextMenuEvent(QContextMenuEvent* event)
{
    const QPoint place = event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid()
                             ? viewport()->mapToGlobal(visualRect(currentIndex()).center())
                             : event->globalPos();
    emit menuWanted(place);
}

void DocumentView::keepPlace()
{
    m_top = verticalScrollBar()->value() > 0 ? m_order.idAt(rowAt(0)) : 0;
}

void DocumentView::restorePlace()
{
    const int row = m_order.rowOf(m_top);
    if (row >= 0)
        scrollTo(m_order.index(row, 0), PositionAtTop);
    else
        scrollToTop();
}

} // namespace host::desktop
