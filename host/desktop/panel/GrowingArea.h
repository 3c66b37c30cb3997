#pragma once

#include <QScrollArea>

namespace host::desktop {

/// Takes the height of what it holds while there is room, and scrolls only when there is none.
class GrowingArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit GrowingArea(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace host::desktop
