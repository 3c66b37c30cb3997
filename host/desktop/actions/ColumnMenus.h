#pragma once

#include "ActionTable.h"

#include <QActionGroup>
#include <QMenu>
#include <QTableView>

namespace host::desktop {

/// What can be done with the columns of the list without a mouse: choosing, sorting, moving. The first menu is
/// the header's own as well.
class ColumnMenus : public QObject
{
    Q_OBJECT

public:
    /// \param view of which they are; it owns them.
    ColumnMenus(QTableView& view, const ActionTable& actions);

private:
    void fillShown();
    void fillSorted();
    void move(int step);
    /// The columns as they stand, also those that are not shown.
    QVector<int> inPlace() const;

    QTableView& m_view;
    QHeaderView& m_header;
    QMenu* m_shown;
    QMenu* m_sorted;
    QActionGroup m_sortColumn;
    QActionGroup m_sortOrder;
};

} // namespace host::desktop
