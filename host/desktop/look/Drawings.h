#pragma once

#include <QIcon>
#include <QPalette>

/// The window's own pictures, drawn in the colours of the palette,
/// so that they suit light and dark and any size.
namespace host::desktop::drawings {

enum class Sign { Add, Remove, Start, Pause, Stop, Undo, Warning, Search, Retry, Save };

QIcon icon(Sign sign, const QPalette& palette);

/// The picture of the empty list: a document that opens with its bookmarks and its title.
QPixmap emptyList(const QPalette& palette, const QSize& size, qreal ratio);

/// A text that stands back, with a contrast of at least 4.5 to 1.
QColor quietText(const QPalette& palette);

/// A frame or a line that is seen but not looked at.
QColor line(const QPalette& palette);

} // namespace host::desktop::drawings
