#pragma once

#include "Event.h"

namespace host::desktop::eventreader {

/// The version of the lines that is understood.
inline constexpr int version = 1;

/// Reads a line, without its line feed.
Event read(const QByteArray& line);

} // namespace host::desktop::eventreader
