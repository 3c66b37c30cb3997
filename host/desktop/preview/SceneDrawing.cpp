#include "SceneDrawing.h"

#include "ColorMix.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLocale>

#include <algorithm>

namespace host::desktop {

namespace {

const double barHeight = 22;
const double radius = 6;
const double gap = 8;
const double ratio = 1.414; // of a page that is not known, as of most paper

} // namespace

QColor SceneDrawing::mix(double share) const
{
    return desktop::mix(m_palette.color(QPalette::Active, QPalette::Text),
                        m_palette.color(QPalette::Active, QPalette::Base), share);
}

void SceneDrawing::paint(QPainter& painter, const QRectF& area)
{
    painter.save();
    painter.setLayoutDirection(Qt::LeftToRight); // as everything that is drawn
    QFont font = painter.font();
    font.setPointSizeF(font.pointSizeF() * 0.85);
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRectF inside = area;
    if (m_scene.isFullScreen) {
        painter.fillRect(area, QColor(24, 24, 24));
    } else {
        painter.setPen(QPen(mix(0.3), 1));
        painter.setBrush(m_palette.color(QPalette::Active, QPalette::Base));
        painter.drawRoundedRect(area, radius, radius);
        paintBars(painter, inside);
        paintPanel(painter, inside);
    }
    painter.setClipRect(inside.adjusted(1, 1, -1, -1));
    paintPages(painter, inside);
    painter.restore();
}

void SceneDrawing::paintBars(QPainter& painter, QRectF& inside)
{
    const QRectF title(inside.topLeft(), QSizeF(inside.width(), barHeight));
    const QFontMetricsF metrics(painter.font());
    painter.setPen(mix(1));
    painter.drawText(
        title.adjusted(gap, 0, -3.5 * barHeight, 0), int(Qt::AlignVCenter | Qt::AlignLeft),
        metrics.elidedText(m_scene.titleBar, Qt::ElideMiddle, title.width() - gap - 3.5 * barHeight));
    painter.setPen(QPen(mix(0.6), 1));
    const double side = 7;
    QRectF button(title.right() - 3 * (side + gap), title.center().y() - side / 2, side, side);
    painter.drawLine(QPointF(button.left(), button.bottom()), QPointF(button.right(), button.bottom()));
    button.translate(side + gap, 0);
    painter.drawRect(button);
    button.translate(side + gap, 0);
    painter.drawLine(button.topLeft(), button.bottomRight());
    painter.drawLine(button.topRight(), button.bottomLeft());
    inside.setTop(title.bottom());
    painter.setPen(QPen(mix(0.2), 1));
    painter.drawLine(inside.topLeft(), inside.topRight());
    for (const bool isShown : {m_scene.hasMenuBar, m_scene.hasToolBar}) {
        if (!isShown)
            continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(mix(0.35));
        for (int place = 0; place < 5; ++place)
            painter.drawRoundedRect(QRectF(inside.left() + gap + place * 26, inside.top() + 5, 18, 4), 2, 2);
        inside.setTop(inside.top() + 14);
        painter.setPen(QPen(mix(0.12), 1));
        painter.drawLine(inside.topLeft(), inside.topRight());
    }
}

void SceneDrawing::paintPanel(QPainter& painter, QRectF& inside)
{
    if (m_scene.panel == PreviewScene::Panel::None)
        return;
    const QRectF panel(inside.topLeft(), QSizeF(inside.width() * 0.38, inside.height()));
    painter.save();
    painter.setClipRect(panel.adjusted(0, 0, 0, -2));
    switch (m_scene.panel) {
    case PreviewScene::Panel::Bookmarks:
        paintBookmarks(painter, panel);
        break;
    case PreviewScene::Panel::Pages:
        paintPictures(painter, panel);
        break;
    default:
        paintRows(painter, panel, m_scene.panel == PreviewScene::Panel::Layers);
    }
    painter.restore();
    inside.setLeft(panel.right());
    painter.setPen(QPen(mix(0.2), 1));
    painter.drawLine(inside.topLeft(), inside.bottomLeft());
}

void SceneDrawing::paintBookmarks(QPainter& painter, const QRectF& panel)
{
    const QFontMetricsF metrics(painter.font());
    const double height = metrics.height() + 3;
    double y = panel.top() + 5;
    if (m_scene.bookmarks.isEmpty()) {
        painter.setPen(mix(0.66));
        painter.drawText(panel.adjusted(gap, gap, -gap, 0), int(Qt::TextWordWrap) | int(Qt::AlignTop),
                         QCoreApplication::translate("SceneDrawing", "no bookmarks"));
    }
    for (const PreviewScene::Bookmark& each : m_scene.bookmarks) {
        if (y > panel.bottom())
            break;
        const double x = panel.left() + gap + std::min(each.level, 4) * 10;
        painter.setPen(mix(each.level == 0 ? 1 : 0.75));
        painter.drawText(QRectF(x, y, panel.right() - x - 4, height), int(Qt::AlignVCenter | Qt::AlignLeft),
                         metrics.elidedText(each.title, Qt::ElideRight, panel.right() - x - 4));
        y += height;
    }
}

void SceneDrawing::paintPictures(QPainter& painter, const QRectF& panel)
{
    const double width = panel.width() * 0.5;
    double y = panel.top() + gap;
    for (int page = 1; page <= m_scene.pages && y < panel.bottom(); ++page) {
        const QImage known = m_picture(page, 0);
        const double shape = known.isNull() ? ratio : double(known.height()) / known.width();
        const QRectF place(panel.center().x() - width / 2, y, width, width * shape);
        paintPage(painter, place, page);
        y = place.bottom() + gap;
    }
}

/// Layers have a box before their names, attachments have none.
void SceneDrawing::paintRows(QPainter& painter, const QRectF& panel, bool hasBoxes)
{
    double y = panel.top() + gap;
    for (int row = 0; row < 5; ++row, y += 16) {
        painter.setPen(QPen(mix(0.5), 1));
        painter.setBrush(Qt::NoBrush);
        if (hasBoxes)
            painter.drawRect(QRectF(panel.left() + gap, y, 8, 8));
        painter.setPen(Qt::NoPen);
        painter.setBrush(mix(0.35));
        painter.drawRoundedRect(
            QRectF(panel.left() + gap + 14, y + 2, panel.width() * (0.4 + 0.08 * (row % 3)), 4), 2, 2);
    }
}

QSizeF SceneDrawing::pageSize(const QRectF& inside, bool areTwo) const
{
    const QImage known = m_picture(m_scene.page, 0);
    const double shape = known.isNull() ? ratio : double(known.height()) / std::max(1, known.width());
    const double room = (inside.width() - (areTwo ? 3 : 2) * gap) / (areTwo ? 2 : 1);
    const double whole = std::min(room, (inside.height() - 2 * gap) / shape);
    double width = whole;
    if (m_scene.percent > 0)
        width = whole *
                std::clamp(m_scene.percent / 60, 0.3, 4.0); // a usual screen shows a whole page at some 60 %
    else if (m_scene.fit == PreviewScene::Fit::Width)
        width = room;
    else if (m_scene.fit == PreviewScene::Fit::Height)
        width = (inside.height() - 2 * gap) / shape;
    else if (m_scene.fit == PreviewScene::Fit::Free && m_scene.layout == PreviewScene::Layout::Column)
        width = room * 0.9;
    return {width, width * shape};
}

void SceneDrawing::paintPages(QPainter& painter, const QRectF& inside)
{
    if (!m_scene.isFullScreen)
        painter.fillRect(inside.adjusted(1, 1, -1, -1), mix(0.08));
    const auto [left, right] = m_scene.firstRow();
    const bool areTwo = m_scene.layout == PreviewScene::Layout::TwoColumns ||
                        m_scene.layout == PreviewScene::Layout::TwoPages;
    const bool scrolls =
        m_scene.layout == PreviewScene::Layout::TwoColumns || m_scene.layout == PreviewScene::Layout::Column;
    const QSizeF size = pageSize(inside, areTwo);
    const double all = areTwo ? 2 * size.width() + gap : size.width();
    double y = scrolls || size.height() > inside.height() ? inside.top() + gap
                                                          : inside.center().y() - size.height() / 2;
    for (int row = 0; row < (scrolls ? 6 : 1) && y < inside.bottom(); ++row, y += size.height() + gap) {
        const double x = inside.center().x() - all / 2;
        const int step = row * (areTwo ? 2 : 1);
        if (left + step >= 1 && left > 0 && left + step <= m_scene.pages)
            paintPage(painter, {QPointF(x, y), size}, left + step);
        if (areTwo && right > 0 && right + step <= m_scene.pages)
            paintPage(painter, {QPointF(x + size.width() + gap, y), size}, right + step);
    }
}

/// Without a picture: lines that stand for text, and the number of the page.
void SceneDrawing::paintPage(QPainter& painter, const QRectF& place, int page)
{
    const QImage picture = m_picture(page, place.width());
    painter.fillRect(place.translated(1, 1.5), QColor(0, 0, 0, 50));
    painter.fillRect(place, Qt::white);
    if (!picture.isNull()) {
        painter.drawImage(place, picture);
    } else {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(205, 208, 214));
        const double edge = place.width() * 0.12;
        const double step = std::max(4.0, place.height() * 0.05);
        for (double y = place.top() + place.height() * 0.14; y < place.bottom() - place.height() * 0.2;
             y += step)
            painter.drawRect(QRectF(place.left() + edge, y, place.width() - 2 * edge, step * 0.4));
        painter.setPen(QColor(90, 94, 102));
        painter.drawText(place.adjusted(0, 0, 0, -place.height() * 0.04),
                         int(Qt::AlignBottom | Qt::AlignHCenter), QLocale().toString(page));
    }
    painter.setPen(QPen(QColor(0, 0, 0, 70), 0.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place);
}

} // namespace host::desktop
