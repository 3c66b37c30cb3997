#pragma once

#include <QVector>

class QWidget;

/// The parts of a window as a ring that a key walks around.
namespace host::desktop::panering {

/// Gives the focus to the next part that takes it, or to the first widget in it that does.
/// \param parts in their order, of one window.
/// \param step 1 for the next part, -1 for the one before.
void go(const QVector<QWidget*>& parts, int step);

} // namespace host::desktop::panering
