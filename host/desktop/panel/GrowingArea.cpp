#include "GrowingArea.h"

#include <QEvent>

namespace host::desktop {

namespace {

const int fewestLines = 8;

} // namespace

GrowingArea::GrowingArea(QWidget* parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

QSize GrowingArea::sizeHint() const
{
    return widget() == nullptr ? QScrollArea::sizeHint() : widget()->sizeHint();
}

QSize GrowingArea::minimumSizeHint() const
{
    const int few = fontMetrics().lineSpacing() * fewestLines;
    return {QScrollArea::minimumSizeHint().width(), std::min(few, sizeHint().height())};
}

bool GrowingArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace host::desktop
