#pragma once

#include <vector>

namespace host {

/// Closes what this process has open but the three standard streams and those.
void closeAllBut(std::vector<int> kept);

} // namespace host
