#pragma once

#include <QObject>

class QWidget;

/// Lets the wheel change a closed list or a spin box only while it has the focus, so that scrolling past it
/// changes nothing. Without the focus the event goes on to the widget's parent. GUI thread.
///
///     CWheelFocusFilter::guardWithin(*form); // once it has all its children
class CWheelFocusFilter : public QObject
{
public:
    /// \param widget takes the focus by Tab and click from now on, not by the wheel; it owns the object.
    explicit CWheelFocusFilter(QWidget* widget);

    /// Puts a filter on every list and spin box that is within a widget now.
    static void guardWithin(const QWidget& parent);

    /// Ignores wheel events of a widget without the focus; all others pass.
    bool eventFilter(QObject* watched, QEvent* event) override;
};
