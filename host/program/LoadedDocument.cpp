#include "LoadedDocument.h"

#include "InstallLayout.h"

#include "host/terminal/NearbyFile.h"
#include "host/terminal/UsageError.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"

#include <stdexcept>

namespace host {

LoadedDocument::LoadedDocument(const std::string& file, const std::string& password)
    : m_library(installlayout::toLibraryPath(installlayout::libraryFile()))
{
    if (!m_library.LibraryLoaded())
        throw std::runtime_error("the PDF library cannot be used: " + installlayout::libraryFile());
    if (m_library.LoadFromFile(engine::wideFromFileName(file), engine::wideFromFileName(password)) != 0)
        return;
    const int code = m_library.LastErrorCode();
    const bool isMissing = code == static_cast<int>(engine::ErrorCode::FileNotFound);
    throw UsageError(file + ": " + std::string(engine::errorText(code)) +
                     (isMissing ? suggestion::nearbyFile(file) : ""));
}

} // namespace host
