#include "WheelGuard.h"

#include <QEvent>
#include <QWidget>

namespace host::desktop {

WheelGuard::WheelGuard(QWidget* box) : QObject(box)
{
    box->setFocusPolicy(Qt::StrongFocus);
    box->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore(); // so that it goes on to what lies below
    return true;
}

} // namespace host::desktop
