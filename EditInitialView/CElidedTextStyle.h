#pragma once

#include <QProxyStyle>

/// Draws closed lists so that they leave out the middle of a text that they have no room for, as of texts
/// that differ in their first and last words.
class CElidedTextStyle : public QProxyStyle
{
public:
    /// For one widget, which owns the style.
    explicit CElidedTextStyle(QWidget* widget);

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
};
