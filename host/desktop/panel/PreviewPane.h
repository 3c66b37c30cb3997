#pragma once

#include "host/desktop/preview/Outline.h"
#include "host/desktop/preview/PagePictures.h"
#include "host/desktop/preview/SceneDrawing.h"
#include "host/desktop/workbench/Workbench.h"

#include <QWidget>

namespace host::desktop {

/// How the current document opens, in a viewer that does all that is asked: before and after, side by side.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    /// \param drawer the program that draws pages; empty, or one that is not there, leaves lines for text.
    PreviewPane(Workbench& workbench, const QString& drawer, QWidget* parent = nullptr);

    QSize sizeHint() const override { return {400, 240}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void show();
    /// In the middle of the area. \returns what of it is taken.
    QRectF paintOne(QPainter& painter, const QRectF& area);
    QRectF paintBoth(QPainter& painter, const QRectF& area);
    double heightOfWords(double width) const;
    void paintScene(QPainter& painter, const QRectF& area, const QString& title, const PreviewScene& scene);

    Workbench& m_workbench;
    Outline m_outline;
    PagePictures m_pictures;
    bool m_isKnown = false;
    PreviewScene m_before;
    PreviewScene m_after;
    /// Why a document is not known.
    QString m_reason;
    QString m_followers;
};

} // namespace host::desktop
