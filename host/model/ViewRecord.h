#pragma once

#include "host/change/ViewChange.h"

#include <optional>
#include <string>

/// How a document opens, as it crosses between the program and its workers.
namespace host::viewrecord {

std::string write(const ViewChange& view);
/// Nothing for what write() cannot have written.
std::optional<ViewChange> parse(const std::string& record);

} // namespace host::viewrecord
