#pragma once

#include <QObject>

class QWidget;

namespace host::desktop {

/// Keeps the wheel from changing what the pointer only passes: it turns the value of a box with the focus, and scrolls
/// what lies below any other.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// \param box lives longer than the guard, which it owns.
    explicit WheelGuard(QWidget* box);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace host::desktop
