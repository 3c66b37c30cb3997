#include "CTickedTabStop.h"

#include <QRadioButton>

CTickedTabStop::CTickedTabStop(QRadioButton* button) : QObject(button), m_button(button)
{
    on_Toggled(button->isChecked());
    connect(button, SIGNAL(toggled(bool)), this, SLOT(on_Toggled(bool)));
}

void CTickedTabStop::on_Toggled(bool ticked)
{
    const int others = m_button->focusPolicy() & ~Qt::TabFocus;
    m_button->setFocusPolicy(Qt::FocusPolicy(ticked ? others | Qt::TabFocus : others));
}
