#include "CElidedTextStyle.h"

#include <QStyleOptionComboBox>
#include <QWidget>

namespace {

const int textMargin = 2; // on either side, as styles draw it

} // namespace

CElidedTextStyle::CElidedTextStyle(QWidget* widget)
{
    setParent(widget);
    widget->setStyle(this);
}

void CElidedTextStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const
{
    const auto* const list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (element != CE_ComboBoxLabel || list == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionComboBox elided = *list;
    const QRect field = subControlRect(CC_ComboBox, list, SC_ComboBoxEditField, widget);
    elided.currentText =
        list->fontMetrics.elidedText(list->currentText, Qt::ElideMiddle, field.width() - 2 * textMargin);
    QProxyStyle::drawControl(element, &elided, painter, widget);
}
