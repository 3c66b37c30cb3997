#pragma once

#include <QStyledItemDelegate>

namespace host::desktop {

/// Draws a cell: what is, and where it changes an arrow and what it becomes, in bold. The first
/// column has the sign of the row's state before it.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace host::desktop
