#include "Arguments.h"
#include "Operations.h"
#include "engine/document/Text.h"
#include "pdflibrary/ViewNumbers.h"

#include <dlfcn.h>
#include <fontconfig/fontconfig.h>

#include <memory>
#include <set>

namespace engine::operations {

namespace {

template <auto destroy>
struct Destroy
{
    void operator()(auto* object) const { destroy(object); }
};

/// Fontconfig never frees its static variables. Unloaded along with this library and loaded again, it would
/// leak them each time.
void keepFontconfigLoaded()
{
    Dl_info library;
    if (dladdr(reinterpret_cast<void*>(FcConfigDestroy), &library) == 0)
        return;
    if (void* const handle = dlopen(library.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE))
        dlclose(handle);
}

std::set<std::string> installedFamilies()
{
    keepFontconfigLoaded();
    // A configuration of our own: the process's belongs to whoever else uses fontconfig in it.
    const std::unique_ptr<FcConfig, Destroy<FcConfigDestroy>> config(FcInitLoadConfigAndFonts());
    const std::unique_ptr<FcPattern, Destroy<FcPatternDestroy>> everyFont(FcPatternCreate());
    const std::unique_ptr<FcObjectSet, Destroy<FcObjectSetDestroy>> wanted(
        FcObjectSetBuild(FC_FAMILY, static_cast<char*>(nullptr)));
    const std::unique_ptr<FcFontSet, Destroy<FcFontSetDestroy>> fonts(
        FcFontList(config.get(), everyFont.get(), wanted.get()));
    std::set<std::string> families;
    for (int index = 0; fonts != nullptr && index < fonts->nfont; ++index) {
        FcChar8* family = nullptr;
        if (FcPatternGetString(fonts->fonts[index], FC_FAMILY, 0, &family) == FcResultMatch)
            families.emplace(reinterpret_cast<const char*>(family));
    }
    return families;
}

} // namespace

std::wstring GetInstalledFontsByCharset(Session&, int charset, int options)
{
    require(charset == pdflibrary::AllCharacterSets && options == pdflibrary::FontFamilyNames,
            ErrorCode::BadArgument);
    std::wstring names;
    for (const std::string& family : installedFamilies())
        names += (names.empty() ? L"" : L"\r\n") + wideFromUtf8(family);
    return names;
}

} // namespace engine::operations
