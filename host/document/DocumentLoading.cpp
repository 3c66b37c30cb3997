#include "DocumentLoading.h"

#include "pdflibrary/FileNameCodec.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "pdflibrary/Wipe.h"

namespace host {

bool loadDocument(TelvarPDFLibraryCPDylibCPP1311& library, const std::string& file, std::string_view password)
{
    const engine::Wiped<wchar_t> wide(engine::wideFromFileName(password));
    if (library.LoadFromFile(engine::wideFromFileName(file), wide.text) == 0)
        return false;
    library.SelectDocument(library.SelectedDocument());
    return true;
}

} // namespace host
