#pragma once

#include "Columns.h"
#include "DocumentFilter.h"
#include "host/desktop/documents/DocumentTable.h"

#include <QAbstractTableModel>
#include <QItemSelectionModel>
#include <QTimer>

namespace host::desktop {

/// The documents that are shown, in their order. Selection and current row belong to documents and stay with
/// them, however the rows are sorted; what a filter hides is selected again when it is shown again, unless something
/// else has been selected meanwhile.
class DocumentOrder : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Role { AfterRole = Qt::UserRole, QuietRole, SignRole, StateRole };
    using Ids = DocumentTable::Ids;

    explicit DocumentOrder(DocumentTable& table, QObject* parent = nullptr);

    QItemSelectionModel* selection() { return &m_selection; }
    const DocumentFilter& filter() const { return m_filter; }
    void setFilter(const DocumentFilter& filter);
    void sort(int column, Qt::SortOrder order) override;

    const Ids& shown() const { return m_shown; }
    /// In the order of the rows.
    Ids selected() const;
    /// 0 for none.
    DocumentId current() const;
    void select(const Ids& ids, DocumentId current);
    /// Selects the first row if there is no current one.
    void ensureCurrent();
    /// What is next to rows that go away: the one behind the last of them, else the one before; 0 for none.
    DocumentId besides(const Ids& ids) const;
    DocumentId idAt(int row) const { return m_shown.value(row); }
    /// -1 for a document that is not shown.
    int rowOf(DocumentId id) const { return m_rows.value(id, -1); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Filters and sorts now what would be filtered and sorted once nothing changes any more.
    void settle();
    /// While it holds, rows stay that a filter no longer lets through.
    void hold(bool isHeld) { m_isHeld = isHeld; }

signals:
    void shownChanged();
    void selectionMoved();
    /// Rows are taken away or added in between; afterwards another one may be at the top.
    void aboutToRearrange();
    void rearranged();

private:
    void takeAppended(const Ids& ids);
    void takeChanged(const Ids& ids);
    void refresh();
    void arrange(Ids& ids) const;
    void replace(Ids ids);
    void forgetHidden();
    void moveTo(Ids ids);
    void number();
    QModelIndexList movedIndexes(const QModelIndexList& old, const Ids& ids) const;

    DocumentTable& m_table;
    DocumentFilter m_filter;
    Ids m_shown;
    QHash<DocumentId, int> m_rows;
    QItemSelectionModel m_selection;
    /// What was selected, and the current one of it, when a filter hid them.
    Ids m_hidden;
    DocumentId m_hiddenCurrent = 0;
    bool m_isReplacing = false;
    int m_sortColumn = 0;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QTimer m_quiet;
    bool m_isHeld = false;
};

} // namespace host::desktop
