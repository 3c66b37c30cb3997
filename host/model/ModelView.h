#pragma once

#include "host/change/ViewChange.h"

#include <functional>
#include <string>
#include <string_view>

namespace host {

class Cell;
class PresentView;

/// How one document opens, for others to open so or for the window to start with. The
/// document may be anybody's, so a worker reads it.
namespace modelview {

/// What is to be known of it, asked in the worker. What it throws is the reason why the document is refused.
using Ask = std::function<ViewChange(const PresentView&)>;

/// Throws UsageError with the document's name when it cannot be read, std::runtime_error when the library
/// cannot be used, StoppedEarly when a stop signal comes.
/// \param cell is changed: it allows the document from now on.
ViewChange read(const std::string& file, std::string_view password, Cell& cell, const Ask& ask);

} // namespace modelview

} // namespace host
