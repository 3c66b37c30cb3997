// Loads documents as the real library does, except those whose names ask for trouble: "crash", "hang",
// "hungry", "replaced", "slow".
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
    const std::wstring names = std::exchange(lastTexts, {});
    const auto asksFor = [&](const wchar_t* trouble) { return names.find(trouble) != std::wstring::npos; };
    if (asksFor(L"crash"))
        std::abort();
    if (asksFor(L"hungry"))
        eat();
    if (asksFor(L"slow"))
        usleep(700'000);
    while (asksFor(L"hang"))
        pause();
    const int loaded = real(TPLLoadFromFile, "TPLLoadFromFile")(instance, fileName, password);
    if (asksFor(L"replaced"))
        std::rename("newer", "replaced.pdf");
    return loaded;
}
