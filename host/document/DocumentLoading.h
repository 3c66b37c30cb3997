#pragma once

#include <string>
#include <string_view>

class TelvarPDFLibraryCPDylibCPP1311;

namespace host {

/// Opens a document in a library and selects it. \param password is not left behind in memory. \returns whether
/// it could be opened; else the library's LastErrorCode says why.
bool loadDocument(TelvarPDFLibraryCPDylibCPP1311& library, const std::string& file,
                  std::string_view password);

} // namespace host
