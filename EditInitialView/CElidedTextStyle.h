#pragma once

#include <QProxyStyle>

class QComboBox;

/// Draws a closed list so that it leaves out the middle of a text that it has no room for, as of texts that
/// differ in their first and last words; its tool tip tells the whole text.
class CElidedTextStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// \param list owns the style.
    explicit CElidedTextStyle(QComboBox* list);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;

public slots:
    void on_TextChanged(const QString& text);

private:
    QComboBox* m_list;
};
