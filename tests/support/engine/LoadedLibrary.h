#pragma once

#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"

#include <QByteArray>
#include <QString>

#include <string>

/// The library file, as its callers meet it: through the binding.
class LoadedLibrary : public TelvarPDFLibraryCPDylibCPP1311
{
public:
    LoadedLibrary() : TelvarPDFLibraryCPDylibCPP1311(path()) {}

    static std::wstring path()
    {
        const QByteArray bytes(ENGINE_FILE);
        return std::wstring(bytes.begin(), bytes.end());
    }

    /// One of the library's C functions, for what the binding never does.
    template <class Function>
    Function* function(const char* name)
    {
        return reinterpret_cast<Function*>(AttachFunction(name));
    }
};
