#include "CShortcutToolTip.h"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QToolTip>

CShortcutToolTip::CShortcutToolTip(QAbstractButton* button) : QObject(button), m_button(button)
{
    button->installEventFilter(this);
}

bool CShortcutToolTip::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(watched, event);
    const QString tip = m_button->toolTip().isEmpty() ? m_button->accessibleName() : m_button->toolTip();
    const QString keys = m_button->shortcut().toString(QKeySequence::NativeText);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       keys.isEmpty() ? tip : tip + " (" + keys + ")", m_button);
    return true;
}
