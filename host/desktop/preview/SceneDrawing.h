#pragma once

#include "PreviewScene.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <functional>

namespace host::desktop {

/// Draws a scene: a viewer's window with its bars, its panel and its first pages.
class SceneDrawing
{
public:
    /// A picture of a page for a place of that width, or a null image where there is
    /// none. Without a width what is there will do.
    using Picture = std::function<QImage(int page, double width)>;

    SceneDrawing(const PreviewScene& scene, const QPalette& palette, const Picture& picture)
        : m_scene(scene), m_palette(palette), m_picture(picture)
    {}

    void paint(QPainter& painter, const QRectF& area);

private:
    void paintBars(QPainter& painter, QRectF& inside);
    void paintPanel(QPainter& painter, QRectF& inside);
    void paintBookmarks(QPainter& painter, const QRectF& panel);
    void paintPictures(QPainter& painter, const QRectF& panel);
    void paintRows(QPainter& painter, const QRectF& panel, bool hasBoxes);
    void paintPages(QPainter& painter, const QRectF& inside);
    void paintPage(QPainter& painter, const QRectF& place, int page);
    QSizeF pageSize(const QRectF& inside, bool areTwo) const;
    QColor mix(double share) const;

    const PreviewScene& m_scene;
    const QPalette& m_palette;
    const Picture& m_picture;
};

} // namespace host::desktop
