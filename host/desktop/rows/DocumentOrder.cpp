#include "DocumentOrder.h"

#include "RowTexts.h"
#include "SortKeys.h"
#include "host/desktop/texts/PlainText.h"

#include <QSet>

#include <algorithm>
#include <iterator>

namespace host::desktop {

namespace {

/// Rows that change while others are still read keep their places until nothing has changed for this long.
const int quietMilliseconds = 1000;

/// What stands in words as well, such as "Last", is read from the left.
bool isCount(Column column)
{
    return columns::describe(column).isNumber && columns::describe(column).entries.empty();
}

QItemSelection rangesOf(const QAbstractItemModel& model, std::vector<int> rows)
{
    QItemSelection ranges;
    std::sort(rows.begin(), rows.end());
    const int lastColumn = model.columnCount() - 1;
    for (std::size_t begin = 0; begin < rows.size();) {
        std::size_t end = begin + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1)
            ++end;
        ranges.append(
            QItemSelectionRange(model.index(rows[begin], 0), model.index(rows[end - 1], lastColumn)));
        begin = end;
    }
    return ranges;
}

} // namespace

DocumentOrder::DocumentOrder(DocumentTable& table, QObject* parent)
    : QAbstractTableModel(parent), m_table(table), m_selection(this)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(quietMilliseconds);
    connect(&m_quiet, &QTimer::timeout, this, [this] { m_isHeld ? m_quiet.start() : settle(); });
    connect(&table, &DocumentTable::appended, this, &DocumentOrder::takeAppended);
    connect(&table, &DocumentTable::changed, this, &DocumentOrder::takeChanged);
    connect(&table, &DocumentTable::rearranged, this, &DocumentOrder::refresh);
    connect(&m_selection, &QItemSelectionModel::selectionChanged, this, &DocumentOrder::forgetHidden);
    connect(&m_selection, &QItemSelectionModel::selectionChanged, this, &DocumentOrder::selectionMoved);
    connect(&m_selection, &QItemSelectionModel::currentRowChanged, this, &DocumentOrder::selectionMoved);
}

void DocumentOrder::setFilter(const DocumentFilter& filter)
{
    m_filter = filter;
    refresh();
}

void DocumentOrder::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    Ids ids = m_shown;
    arrange(ids);
    moveTo(std::move(ids));
}

DocumentOrder::Ids DocumentOrder::selected() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : m_selection.selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    Ids ids;
    for (const int row : rows)
        ids.append(m_shown.value(row));
    return ids;
}

DocumentId DocumentOrder::current() const
{
    return m_selection.currentIndex().isValid() ? idAt(m_selection.currentIndex().row()) : 0;
}

/// Selecting many ranges over others takes long: the old ones go first.
void DocumentOrder::select(const Ids& ids, DocumentId current)
{
    std::vector<int> rows;
    for (const DocumentId id : ids)
        if (const int row = rowOf(id); row >= 0)
            rows.push_back(row);
    m_selection.clearSelection();
    m_selection.select(rangesOf(*this, std::move(rows)), QItemSelectionModel::Select);
    if (const int row = rowOf(current); row >= 0)
        m_selection.setCurrentIndex(index(row, 0), QItemSelectionModel::NoUpdate);
}

void DocumentOrder::ensureCurrent()
{
    if (current() == 0 && !m_shown.isEmpty())
        select({m_shown.front()}, m_shown.front());
}

DocumentId DocumentOrder::besides(const Ids& ids) const
{
    int last = -1;
    for (const DocumentId id : ids)
        last = std::max(last, rowOf(id));
    if (last < 0 || last + 1 < m_shown.size())
        return last < 0 ? 0 : m_shown.at(last + 1);
    const QSet<DocumentId> going(ids.begin(), ids.end());
    while (last >= 0 && going.contains(m_shown.at(last)))
        --last;
    return idAt(last);
}

int DocumentOrder::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shown.size();
}

int DocumentOrder::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : desktop::columnCount;
}

QVariant DocumentOrder::data(const QModelIndex& index, int role) const
{
    const DocumentRecord* record = m_table.find(idAt(index.row()));
    if (record == nullptr)
        return {};
    const auto column = static_cast<Column>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return rowtexts::cell(*record, column).now;
    case Qt::AccessibleTextRole:
        return rowtexts::spoken(*record, column);
    case Qt::ToolTipRole:
        return plaintext::tip(column == Column::Name ? plaintext::shown(QString::fromLocal8Bit(record->path))
                                                     : rowtexts::spoken(*record, column));
    case Qt::TextAlignmentRole:
        return int(isCount(column) ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    case AfterRole:
        return rowtexts::cell(*record, column).after;
    case QuietRole:
        return rowtexts::cell(*record, column).isQuiet;
    case SignRole:
        return rowtexts::signOf(record->state());
    case StateRole:
        return static_cast<int>(record->state());
    default:
        return {};
    }
}

QVariant DocumentOrder::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const auto column = static_cast<Column>(section);
    switch (role) {
    case Qt::DisplayRole:
        return columns::titleOf(column);
    case Qt::ToolTipRole:
    case Qt::WhatsThisRole:
        return columns::helpOf(column);
    case Qt::TextAlignmentRole:
        return int(isCount(column) ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

/// New rows go to the end until it is quiet: nothing moves away below a pointer.
void DocumentOrder::takeAppended(const Ids& ids)
{
    Ids accepted;
    for (const DocumentId id : ids)
        if (const DocumentRecord* record = m_table.find(id); record != nullptr && m_filter.accepts(*record))
            accepted.append(id);
    m_quiet.start();
    if (accepted.isEmpty())
        return;
    beginInsertRows({}, m_shown.size(), m_shown.size() + accepted.size() - 1);
    for (const DocumentId id : accepted) {
        m_rows.insert(id, m_shown.size());
        m_shown.append(id);
    }
    endInsertRows();
    emit shownChanged();
}

void DocumentOrder::takeChanged(const Ids& ids)
{
    m_quiet.start();
    int first = m_shown.size();
    int last = -1;
    for (const DocumentId id : ids)
        if (const int row = rowOf(id); row >= 0) {
            first = std::min(first, row);
            last = std::max(last, row);
        }
    if (last >= 0)
        emit dataChanged(index(first, 0), index(last, desktop::columnCount - 1));
}

void DocumentOrder::settle()
{
    m_quiet.stop();
    refresh();
}

void DocumentOrder::refresh()
{
    Ids ids;
    for (const DocumentRecord& record : m_table.records())
        if (m_filter.accepts(record))
            ids.append(record.id);
    arrange(ids);
    if (ids == m_shown)
        return;
    const bool areSame =
        ids.size() == m_shown.size() &&
        std::all_of(ids.begin(), ids.end(), [this](DocumentId id) { return m_rows.contains(id); });
    if (areSame)
        moveTo(std::move(ids));
    else
        replace(std::move(ids));
}

void DocumentOrder::arrange(Ids& ids) const
{
    SortKeys::arrange(m_table, static_cast<Column>(m_sortColumn), m_sortOrder, ids);
}

/// The rows are the same in another order: views follow by themselves.
void DocumentOrder::moveTo(Ids ids)
{
    if (ids == m_shown)
        return;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList old = persistentIndexList();
    Ids owners;
    for (const QModelIndex& each : old)
        owners.append(m_shown.value(each.row()));
    m_shown = std::move(ids);
    number();
    changePersistentIndexList(old, movedIndexes(old, owners));
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

QModelIndexList DocumentOrder::movedIndexes(const QModelIndexList& old, const Ids& ids) const
{
    QModelIndexList moved;
    for (int place = 0; place < old.size(); ++place)
        moved.append(index(rowOf(ids.at(place)), old.at(place).column()));
    return moved;
}

void DocumentOrder::replace(Ids ids)
{
    const Ids chosen = selected() + m_hidden;
    const DocumentId focus = current() != 0 ? current() : m_hiddenCurrent;
    m_isReplacing = true;
    emit aboutToRearrange();
    beginResetModel();
    m_shown = std::move(ids);
    number();
    endResetModel();
    select(chosen, focus);
    m_isReplacing = false;
    const auto isHidden = [this](DocumentId id) { return rowOf(id) < 0 && m_table.find(id) != nullptr; };
    m_hidden.clear();
    std::copy_if(chosen.begin(), chosen.end(), std::back_inserter(m_hidden), isHidden);
    m_hiddenCurrent = isHidden(focus) ? focus : 0;
    emit rearranged();
    emit shownChanged();
    emit selectionMoved();
}

void DocumentOrder::forgetHidden()
{
    if (m_isReplacing)
        return;
    m_hidden.clear();
    m_hiddenCurrent = 0;
}

void DocumentOrder::number()
{
    m_rows.clear();
    m_rows.reserve(m_shown.size());
    for (int row = 0; row < m_shown.size(); ++row)
        m_rows.insert(m_shown.at(row), row);
}

} // namespace host::desktop
