// Loads documents as the real library does, except those whose names ask for trouble: "crash", "hang",
// "hungry", "replaced", "slow", or for a misdeed (Misdeeds.h), which has to succeed; and closes them so, after
// their new files were put in place: "late-crash", "late-hang".
#include "Misdeeds.h"

#include "pdflibrary/ErrorCodes.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>
#include <utility>

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace {

std::wstring lastTexts;
std::wstring names; ///< Of the document loaded last, and its password.
bool prevented = false;

bool asksFor(const wchar_t* trouble)
{
    const std::size_t at = names.find(trouble);
    return at != std::wstring::npos && (at < 5 || names.compare(at - 5, 5, L"late-") != 0);
}

template <class Function>
Function real(Function, const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

[[noreturn]] void eat()
{
    const std::size_t piece = 16 << 20;
    for (;;)
        *static_cast<volatile char*>(::operator new(piece)) = 1;
}

} // namespace

EXPORTED int TPLCreateLibrary()
{
    misdeeds::prepare();
    return real(TPLCreateLibrary, "TPLCreateLibrary")();
}

EXPORTED void TPLAddToBuffer(int instance, char* buffer, const char* source, int size)
{
    const std::size_t characters = static_cast<std::size_t>(size) / sizeof(wchar_t);
    std::wstring text(characters, L'\0');
    std::memcpy(text.data(), source, characters * sizeof(wchar_t));
    lastTexts += text + L'\n';
    real(TPLAddToBuffer, "TPLAddToBuffer")(instance, buffer, source, size);
}

EXPORTED int TPLLoadFromFile(int instance, char* fileName, char* password)
{
    names = std::exchange(lastTexts, {});
    if (asksFor(L"crash"))
        std::abort();
    if (asksFor(L"hungry"))
        eat();
    while (asksFor(L"hang"))
        sleep(1);
    prevented = !misdeeds::allDone(names);
    if (prevented)
        return 0;
    const int loaded = real(TPLLoadFromFile, "TPLLoadFromFile")(instance, fileName, password);
    if (asksFor(L"slow"))
        usleep(700'000);
    if (asksFor(L"replaced"))
        std::rename("newer", "replaced.pdf");
    return loaded;
}

EXPORTED int TPLLastErrorCode(int instance)
{
    return prevented ? static_cast<int>(engine::ErrorCode::AccessDenied)
                     : real(TPLLastErrorCode, "TPLLastErrorCode")(instance);
}

EXPORTED int TPLRemoveDocument(int instance, int document)
{
    if (asksFor(L"late-crash"))
        std::abort();
    while (asksFor(L"late-hang"))
        sleep(1);
    return real(TPLRemoveDocument, "TPLRemoveDocument")(instance, document);
}
