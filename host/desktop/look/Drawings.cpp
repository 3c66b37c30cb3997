#include "Drawings.h"

#include "host/desktop/preview/ColorMix.h"

#include <QPainter>
#include <QPainterPath>

namespace host::desktop::drawings {

namespace {

const int grid = 16;

QPainterPath furtherShapeOf(Sign sign)
{
    QPainterPath path;
    switch (sign) {
    case Sign::Warning:
        path.moveTo(8, 2.5), path.lineTo(14, 13.5), path.lineTo(2, 13.5), path.closeSubpath();
        path.moveTo(8, 6.5), path.lineTo(8, 9.5), path.moveTo(8, 11.3), path.lineTo(8, 11.6);
        break;
    case Sign::Search:
        path.addEllipse(QPointF(7, 7), 4, 4), path.moveTo(10, 10), path.lineTo(13.5, 13.5);
        break;
    case Sign::Retry:
        path.arcMoveTo(3, 3, 10, 10, 40), path.arcTo(3, 3, 10, 10, 40, 290);
        path.moveTo(12.5, 2), path.lineTo(12, 5.2), path.lineTo(8.8, 4.8);
        break;
    case Sign::Save:
        path.moveTo(8, 2.5), path.lineTo(8, 10), path.moveTo(4.5, 6.8), path.lineTo(8, 10.2),
            path.lineTo(11.5, 6.8);
        path.moveTo(3, 13.5), path.lineTo(13, 13.5);
        break;
    default:
        break;
    }
    return path;
}

QPainterPath shapeOf(Sign sign)
{
    QPainterPath path;
    switch (sign) {
    case Sign::Add:
        path.moveTo(8, 2.5), path.lineTo(8, 13.5), path.moveTo(2.5, 8), path.lineTo(13.5, 8);
        break;
    case Sign::Remove:
        path.moveTo(2.5, 8), path.lineTo(13.5, 8);
        break;
    case Sign::Start:
        path.moveTo(5, 3), path.lineTo(13, 8), path.lineTo(5, 13), path.closeSubpath();
        break;
    case Sign::Pause:
        path.addRect(4.5, 3.5, 2, 9), path.addRect(9.5, 3.5, 2, 9);
        break;
    case Sign::Stop:
        path.addRect(4, 4, 8, 8);
        break;
    case Sign::Undo:
        path.moveTo(6.5, 2.5), path.lineTo(3, 6), path.lineTo(6.5, 9.5);
        path.moveTo(3, 6), path.lineTo(10, 6), path.arcTo(6.5, 6, 7, 7, 90, -180), path.lineTo(6, 13);
        break;
    default:
        return furtherShapeOf(sign);
    }
    return path;
}

bool isFilled(Sign sign)
{
    return sign == Sign::Start || sign == Sign::Pause || sign == Sign::Stop;
}

QPixmap pixmap(Sign sign, const QColor& color, int side)
{
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(side) / grid, double(side) / grid);
    painter.setPen(QPen(color, isFilled(sign) ? 1 : 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (isFilled(sign))
        painter.setBrush(color);
    painter.drawPath(shapeOf(sign));
    return picture;
}

/// The viewer's window: title bar, panel with bookmarks, a page.
void paintWindow(QPainter& painter, const QPalette& palette, const QRectF& frame)
{
    const QColor border = line(palette);
    const QColor text = mix(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.35);
    const QColor& accent = palette.color(QPalette::Highlight);
    painter.setPen(QPen(border, 1.5));
    painter.setBrush(palette.color(QPalette::Base));
    painter.drawRoundedRect(frame, 8, 8);
    const double bar = frame.height() * 0.13;
    painter.drawLine(QPointF(frame.left(), frame.top() + bar), QPointF(frame.right(), frame.top() + bar));
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(frame.left() + 14, frame.top() + bar / 2 - 4, frame.width() * 0.42, 8), 4,
                            4);
    const double panel = frame.left() + frame.width() * 0.36;
    const double indents[] = {0, 14, 14, 0, 14, 0};
    double y = frame.top() + bar + 20;
    for (const double indent : indents) {
        painter.setBrush(indent > 0 ? text : accent);
        painter.drawRoundedRect(QRectF(frame.left() + 14 + indent, y, frame.width() * 0.25 - indent, 6), 3,
                                3);
        y += (frame.height() - bar) * 0.14;
    }
    painter.setPen(QPen(border, 1.5));
    painter.drawLine(QPointF(panel, frame.top() + bar), QPointF(panel, frame.bottom()));
    const QRectF page(panel + 26, frame.top() + bar + 18, frame.right() - panel - 52,
                      frame.height() - bar - 18);
    painter.setBrush(palette.color(QPalette::Window));
    painter.drawRect(page);
    painter.setPen(Qt::NoPen);
    painter.setBrush(text);
    for (double row = page.top() + 18; row < page.bottom() - 12; row += 14)
        painter.drawRoundedRect(
            QRectF(page.left() + 16, row, page.width() - (row > page.bottom() - 30 ? 70 : 32), 5), 2, 2);
}

} // namespace

QIcon icon(Sign sign, const QPalette& palette)
{
    QIcon icon;
    for (const int side : {16, 24, 32, 48}) {
        icon.addPixmap(pixmap(sign, palette.color(QPalette::Active, QPalette::ButtonText), side),
                       QIcon::Normal);
        icon.addPixmap(pixmap(sign, palette.color(QPalette::Disabled, QPalette::ButtonText), side),
                       QIcon::Disabled);
    }
    return icon;
}

QPixmap emptyList(const QPalette& palette, const QSize& size, qreal ratio)
{
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paintWindow(painter, palette, QRectF(2, 2, size.width() - 4, size.height() - 4));
    return picture;
}

/// Two thirds of the text's colour give 5 to 1 on white as on the usual dark bases.
QColor quietText(const QPalette& palette)
{
    return mix(palette.color(QPalette::Active, QPalette::WindowText),
               palette.color(QPalette::Active, QPalette::Window), 0.66);
}

QColor line(const QPalette& palette)
{
    return mix(palette.color(QPalette::Active, QPalette::WindowText),
               palette.color(QPalette::Active, QPalette::Window), 0.28);
}

} // namespace host::desktop::drawings
