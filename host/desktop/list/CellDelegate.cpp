#include "CellDelegate.h"

#include "host/desktop/look/Drawings.h"

#include "host/desktop/rows/DocumentOrder.h"

#include <QApplication>
#include <QPainter>

namespace host::desktop {

namespace {

const int margin = 4;
const int signWidth = 20;
/// Widths of texts are whole pixels, and their sum may be more.
const int rounding = 3;

QColor textColor(const QStyleOptionViewItem& option, bool isQuiet)
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    if (isSelected)
        return option.palette.color(group, QPalette::HighlightedText);
    return isQuiet ? drawings::quietText(option.palette) : option.palette.color(group, QPalette::Text);
}

/// Draws the text at the beginning of the area, cut off where it does not fit. \returns the area behind it.
QRect drawPart(QPainter& painter, const QRect& area, const QString& text, const QFont& font, int alignment)
{
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const QString fitting = metrics.elidedText(text, Qt::ElideRight, area.width());
    painter.drawText(area, alignment | Qt::TextSingleLine, fitting);
    const int width = metrics.horizontalAdvance(fitting);
    return painter.layoutDirection() == Qt::RightToLeft ? area.adjusted(0, 0, -width, 0)
                                                        : area.adjusted(width, 0, 0, 0);
}

/// What it becomes has the room first: that is what a person looks for.
void drawChange(QPainter& painter, const QStyleOptionViewItem& option, QRect area, const QString& now,
                const QString& after)
{
    QFont bold = option.font;
    bold.setWeight(QFont::Bold);
    const QString arrow = option.direction == Qt::RightToLeft ? QStringLiteral(" ← ") : QStringLiteral(" → ");
    const int needed =
        QFontMetrics(bold).horizontalAdvance(after) + QFontMetrics(option.font).horizontalAdvance(arrow);
    const QString before =
        QFontMetrics(option.font)
            .elidedText(now, Qt::ElideRight, std::max(0, area.width() - needed - rounding));
    painter.setPen(textColor(option, true));
    area = drawPart(painter, area, before, option.font, Qt::AlignLeft | Qt::AlignVCenter);
    area = drawPart(painter, area, arrow, option.font, Qt::AlignLeft | Qt::AlignVCenter);
    painter.setPen(textColor(option, false));
    drawPart(painter, area, after, bold, Qt::AlignLeft | Qt::AlignVCenter);
}

} // namespace

/// The background alone: the text is ours.
void CellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text.clear();
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const
{
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    painter->save();
    painter->setLayoutDirection(option.direction);
    QRect area = option.rect.adjusted(margin, 0, -margin, 0);
    const bool isName = index.column() == static_cast<int>(Column::Name);
    if (isName) {
        painter->setPen(textColor(option, false));
        const QRect sign(QStyle::visualRect(option.direction, area,
                                            QRect(area.topLeft(), QSize(signWidth, area.height()))));
        painter->drawText(sign, Qt::AlignCenter, index.data(DocumentOrder::SignRole).toString());
        area = QStyle::visualRect(option.direction, area, area.adjusted(signWidth + 2, 0, 0, 0));
    }
    const QString now = index.data(Qt::DisplayRole).toString();
    const QString after = index.data(DocumentOrder::AfterRole).toString();
    if (after.isEmpty()) {
        painter->setPen(textColor(option, index.data(DocumentOrder::QuietRole).toBool()));
        drawPart(*painter, area, now, option.font, index.data(Qt::TextAlignmentRole).toInt());
    } else {
        drawChange(*painter, option, area, now, after);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) { // some styles hardly show it in a selected row
        painter->setPen(QPen(textColor(option, false), 1, Qt::DotLine));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

} // namespace host::desktop
