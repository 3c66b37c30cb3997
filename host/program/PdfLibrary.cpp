#include "PdfLibrary.h"

#include "InstallLayout.h"

#include <stdexcept>

namespace host {

PdfLibrary::PdfLibrary()
    : TelvarPDFLibraryCPDylibCPP1311(installlayout::toLibraryPath(installlayout::libraryFile()))
{
    if (!LibraryLoaded())
        throw std::runtime_error("the PDF library cannot be used: " + installlayout::libraryFile());
}

} // namespace host
