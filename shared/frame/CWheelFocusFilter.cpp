#include "CWheelFocusFilter.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

CWheelFocusFilter::CWheelFocusFilter(QWidget* widget) : QObject(widget)
{
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(this);
}

void CWheelFocusFilter::guardWithin(const QWidget& parent)
{
    for (QComboBox* list : parent.findChildren<QComboBox*>())
        new CWheelFocusFilter(list);
    for (QAbstractSpinBox* spinBox : parent.findChildren<QAbstractSpinBox*>())
        new CWheelFocusFilter(spinBox);
}

bool CWheelFocusFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}
