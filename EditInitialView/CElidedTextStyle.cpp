#include "CElidedTextStyle.h"

#include <QComboBox>
#include <QStyleOptionComboBox>

namespace {

const int textMargin = 2; // on either side, as styles draw it

} // namespace

CElidedTextStyle::CElidedTextStyle(QComboBox* list) : m_list(list)
{
    setParent(list);
    list->setStyle(this);
    connect(list, SIGNAL(currentTextChanged(QString)), this, SLOT(on_TextChanged(QString)));
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

void CElidedTextStyle::on_TextChanged(const QString& text)
{
    m_list->setToolTip(text);
}
