#pragma once

#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"

namespace host {

/// The PDF library that lies with the program. While a process has one, others that it forks find the library file
/// in memory.
class PdfLibrary : public TelvarPDFLibraryCPDylibCPP1311
{
public:
    /// Throws std::runtime_error with the file's name when the library cannot be used.
    PdfLibrary();
};

} // namespace host
