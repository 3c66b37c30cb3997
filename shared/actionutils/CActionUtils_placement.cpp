#include "CActionUtils.h"

#include "CUtils.h"
#include "SaturatedInt.h"

#include <QFont>
#include <QGraphicsTextItem>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QTextOption>

#include <algorithm>

namespace {

const long points = 3;
const QSize iconSize(128, 128);
/// Longest side of the image that a text is drawn on; a larger page is drawn smaller.
const int longestSide = 4096;

enum HorizontalReference { LeftEdge = 0, RightEdge = 1, HorizontalCentre = 2 };
enum VerticalReference { TopEdge = 0, BottomEdge = 1, VerticalCentre = 2 };

double horizontalShift(int reference, double offset, double pageWidth, const QRectF& box)
{
    switch (reference) {
    case LeftEdge:
        return offset - box.x();
    case RightEdge:
        return pageWidth - box.width() - box.x() - offset;
    case HorizontalCentre:
        return offset + (pageWidth - box.width()) * 0.5 - box.x();
    default:
        return offset;
    }
}

double verticalShift(int reference, double offset, double pageHeight, const QRectF& box)
{
    switch (reference) {
    case TopEdge:
        return pageHeight - box.height() - box.y() - offset;
    case BottomEdge:
        return offset - box.y();
    case VerticalCentre:
        return (pageHeight - box.height()) * 0.5 - box.y() - offset;
    default:
        return offset;
    }
}

QMatrix rotated(double degrees)
{
    QMatrix matrix;
    if (degrees != 0)
        matrix.rotate(360 - degrees);
    return matrix;
}

QImage drawnText(const QSize& page, const QString& text)
{
    const QSize size = page.boundedTo(QSize(longestSide, longestSide));
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(double(size.width()) / page.width(), double(size.height()) / page.height());
    painter.setPen(
        QPen(QBrush(Qt::black, Qt::SolidPattern), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawText(QRectF(QPointF(), page), text, QTextOption());
    return image;
}

} // namespace

QMatrix CActionUtils::Prefs2Matrix(QMap<QString, QVariant>* prefs, double width, double height,
                                   double pageWidth, double pageHeight)
{
    const auto number = [prefs](const char* key, double missing) {
        return prefs->value(key, missing).toDouble();
    };
    const auto choice = [prefs](const char* key, int missing) { return prefs->value(key, missing).toInt(); };

    const double percentX = number("sizeSpinBox", 100);
    const double percentY = number("sizeSpinBoxY", 100);
    if (percentX != 100 || percentY != 100) {
        width = width * percentX / 100;
        height = height * percentY / 100;
    }
    QMatrix matrix = rotated(number("rotationSpinBox", 0));
    const QRectF box = matrix.mapRect(QRectF(0, 0, width, height));

    const long unit = choice("unitsComboBox", points);
    const double offsetX = CUtils::Convert(unit, number("horiznotalSpinBox", 0), points);
    const double offsetY = CUtils::Convert(unit, number("verticalSpinBox", 0), points);
    const double tx = horizontalShift(choice("horizontalFromCombo", LeftEdge), offsetX, pageWidth, box);
    const double ty = verticalShift(choice("verticalFromCombo", TopEdge), offsetY, pageHeight, box);

    matrix.scale(width, height);
    matrix.setMatrix(matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(), tx, ty);
    return matrix;
}

double CActionUtils::GetTextItemHeight(const QFont& font, const QString& html, double textWidth)
{
    QGraphicsTextItem item;
    item.setHtml(html);
    item.setFont(font);
    item.setTextWidth(textWidth);
    return item.boundingRect().height();
}

void CActionUtils::GenerateTextItemIcon(double width, double height, const QString& text, QIcon* icon)
{
    const QSize page(saturatedInt(width), saturatedInt(height));
    if (page.isEmpty())
        return;
    const QSize fitted = page.scaled(iconSize, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const QPixmap pixmap = QPixmap::fromImage(drawnText(page, text));
    icon->addPixmap(pixmap.scaled(fitted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), QIcon::Normal,
                    QIcon::Off);
}
