#pragma once

#include <QProxyStyle>

class QComboBox;

/// Draws a closed list so that it leaves out the middle of a text that it has no room for, as of texts that
/// differ in their first and last words; its tool tip tells the whole text.
class CElidedTextStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// Gives the list this style for as long as the list lives.
    /// \param list owns the style from then on.
    explicit CElidedTextStyle(QComboBox* list);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;

public slots:
    /// Makes the text the list's tool tip; connected with the list's currentTextChanged.
    void on_TextChanged(const QString& text);

private:
    QComboBox* m_list;
};
