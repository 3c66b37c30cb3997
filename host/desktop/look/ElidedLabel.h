#pragma once

#include "PlainLabel.h"

namespace host::desktop {

/// Text that takes the lines its height has room for and is cut off with dots where it does not fit; the whole text is
/// its tool tip then.
class ElidedLabel : public PlainLabel
{
    Q_OBJECT

public:
    using PlainLabel::PlainLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStringList linesThatFit() const;
};

} // namespace host::desktop
