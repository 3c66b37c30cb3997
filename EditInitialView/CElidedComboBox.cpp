#include "CElidedComboBox.h"

#include <QStyleOptionComboBox>
#include <QStylePainter>

namespace {

const int leastCharacters = 16;
const int textMargin = 2; // on either side, as styles draw it

} // namespace

QSize CElidedComboBox::minimumSizeHint() const
{
    const QSize whole = QComboBox::minimumSizeHint();
    return QSize(qMin(whole.width(), fontMetrics().averageCharWidth() * leastCharacters), whole.height());
}

void CElidedComboBox::paintEvent(QPaintEvent*)
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText =
        option.fontMetrics.elidedText(option.currentText, Qt::ElideMiddle, field.width() - 2 * textMargin);
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
