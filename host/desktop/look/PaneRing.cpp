#include "PaneRing.h"

#include <QWidget>

namespace host::desktop::panering {

namespace {

int placeOf(const QWidget* focus, const QVector<QWidget*>& parts)
{
    for (int place = 0; place < parts.size(); ++place)
        if (focus != nullptr && (focus == parts[place] || parts[place]->isAncestorOf(focus)))
            return place;
    return 0;
}

bool focusIn(QWidget* part)
{
    part->setFocus(Qt::TabFocusReason);
    if (part->window()->focusWidget() == part && part->focusPolicy() != Qt::NoFocus)
        return true;
    for (QWidget* each : part->findChildren<QWidget*>())
        if (each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus) == Qt::TabFocus) {
            each->setFocus(Qt::TabFocusReason);
            return true;
        }
    return false;
}

} // namespace

void go(const QVector<QWidget*>& parts, int step)
{
    const int count = parts.size();
    int now = placeOf(parts.first()->window()->focusWidget(), parts);
    for (int tries = 0; tries < count; ++tries) {
        now = (now + step + count) % count;
        if (focusIn(parts[now]))
            return;
    }
}

} // namespace host::desktop::panering
