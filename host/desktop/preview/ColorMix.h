#pragma once

#include <QColor>

namespace host::desktop {

/// The colour between two, opaque. \param share of the first, 0 to 1.
QColor mix(const QColor& one, const QColor& other, double share);

} // namespace host::desktop
