#pragma once

#include <qpdf/QPDFObjectHandle.hh>

namespace engine {

class Document;

/// The value of a named destination: what the catalog's /Dests dictionary has for a name, the name tree of
/// /Names /Dests for a string, or the other of the two where the right one has nothing.
/// \returns null when it is not defined. Name trees may lie about their limits, be deep, or lead in circles.
QPDFObjectHandle findNamedDestination(Document& document, QPDFObjectHandle name);

} // namespace engine
