#include "ElidedLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <algorithm>

namespace host::desktop {

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

QStringList ElidedLabel::linesThatFit() const
{
    const int width = contentsRect().width();
    const int most = std::max(1, contentsRect().height() / fontMetrics().lineSpacing());
    QTextLayout layout(text(), font());
    layout.beginLayout();
    QStringList lines;
    int place = 0;
    for (QTextLine line = layout.createLine(); line.isValid() && lines.size() + 1 < most;
         line = layout.createLine()) {
        line.setLineWidth(width);
        lines += text().mid(place, line.textLength()).trimmed();
        place += line.textLength();
    }
    if (place < text().size())
        lines += fontMetrics().elidedText(text().mid(place), Qt::ElideRight, width);
    return lines;
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QString shown = linesThatFit().join('\n');
    style()->drawItemText(&painter, contentsRect(), int(Qt::AlignVCenter | Qt::AlignLeft), palette(),
                          isEnabled(), shown, foregroundRole());
}

} // namespace host::desktop
