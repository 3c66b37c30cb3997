#pragma once

#include "engine/reading/KidGlimpse.h"
#include "engine/reading/Kids.h"

#include <qpdf/QPDFObjectHandle.hh>

#include <optional>

namespace engine {

class Document;

/// What an object is in a page tree.
KidKind kindOf(Document& document, QPDFObjectHandle object);

/// The node's /Count, unless no count of pages can be like that.
std::optional<int> statedCount(Document& document, const QPDFObjectHandle& node);

/// What a kid shows without being read; nothing when it has to be read to tell.
std::optional<KidGlimpse> glimpse(Document& document, const Kids& kids, int kid);

/// How many pages a kid stands for, as it says itself; nothing for what is neither page nor node, and for a
/// count that cannot be right.
std::optional<int> pagesUnder(Document& document, const Kids& kids, int kid);

} // namespace engine
