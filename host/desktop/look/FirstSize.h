#pragma once

#include <QScreen>
#include <QWidget>

namespace host::desktop {

/// What a window takes of the wanted size, so that it fits its screen with the frame that a window manager adds.
inline QSize firstSize(const QWidget& window, const QSize& wanted)
{
    const QSize frame(40, 40);
    return wanted.boundedTo(window.screen()->availableSize() - frame);
}

} // namespace host::desktop
