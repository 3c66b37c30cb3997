#pragma once

#include "OptionTable.h"

#include <string>

/// The manual pages, in mdoc.
namespace host::manualpage {

/// quintar(1)
std::string program();

/// quintar-run(1) and its like.
std::string of(const options::Command& command);

} // namespace host::manualpage
