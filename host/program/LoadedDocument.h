#pragma once

#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"

#include <string>

namespace host {

/// A document that is open and selected in a library of its own for as long as the object lives.
class LoadedDocument
{
public:
    /// Throws UsageError with the file's name when it cannot be opened, std::runtime_error without a library.
    LoadedDocument(const std::string& file, const std::string& password);

    TelvarPDFLibraryCPDylibCPP1311& library() { return m_library; }

private:
    TelvarPDFLibraryCPDylibCPP1311 m_library;
};

} // namespace host
