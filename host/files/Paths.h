#pragma once

#include <string>

/// What can be told of a path without looking at the file system.
namespace host {

/// Whether the name ends in ".pdf", in any case, and has something before that.
bool isPdfName(const std::string& path);

/// The length of the path without ".pdf" at its end, where isPdfName() is true.
std::size_t endOfStem(const std::string& path);

/// "a//" as "a"; "/" stays.
std::string withoutTrailingSlashes(std::string path);

} // namespace host
