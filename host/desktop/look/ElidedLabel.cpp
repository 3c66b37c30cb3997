#include "ElidedLabel.h"

#include <QPainter>
#include <QStyle>

namespace host::desktop {

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), int(Qt::AlignVCenter | Qt::AlignLeft), palette(),
                          isEnabled(), shown, foregroundRole());
}

} // namespace host::desktop
