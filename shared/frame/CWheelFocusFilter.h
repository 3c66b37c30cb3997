#pragma once

#include <QObject>

class QWidget;

/// Lets the wheel change a closed list or a spin box only while it has the focus, so that scrolling past it
/// changes nothing. Without the focus the event goes on to the widget's parent.
class CWheelFocusFilter : public QObject
{
public:
    /// \param widget takes the focus by Tab and click from now on, not by the wheel; it owns the object.
    explicit CWheelFocusFilter(QWidget* widget);

    /// Puts a filter on every list and spin box within a widget.
    static void guardWithin(const QWidget& parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
