#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

/// How the library's functions look from outside: every one takes the instance id first; strings cross as
/// pointers (see TelvarPDFLibraryCPDylibCPP1311), numbers as they are.
namespace pdflibrary {

static_assert(sizeof(int) == 4 && sizeof(wchar_t) == 4,
              "the library works with 32-bit integers and characters");

template <class MemberType>
struct Crossing
{
    using Argument = MemberType;
    using Result = MemberType;
};

template <>
struct Crossing<std::wstring>
{
    using Argument = char*;
    using Result = wchar_t*;
};

template <>
struct Crossing<std::string>
{
    using Argument = char*;
    using Result = char*;
};

template <class Signature>
struct LibraryFunction;

template <class Result, class... Parameters>
struct LibraryFunction<Result(Parameters...)>
{
    using Pointer = typename Crossing<std::remove_cvref_t<Result>>::Result (*)(
        int, typename Crossing<std::remove_cvref_t<Parameters>>::Argument...);
};

} // namespace pdflibrary

/// One loaded PDF library file and one library instance in it.
///
///     TelvarPDFLibraryCPDylibCPP1311 library(L"TelvarPDFLibraryCPDylib1311.dylib");
///     if (library.LibraryLoaded() && library.LoadFromFile(L"manual.pdf", L"") == 1)
///         library.SetPageLayout(pdflibrary::OneColumn);
///
/// An object is either loaded or not from construction to destruction. Not loaded, every operation returns 0,
/// 0.0 or an empty string and calls nothing. Loaded, an operation hands back the library's own result.
///
/// Failures of the library are values, never exceptions: most operations return 1 for done and 0 for not
/// done, and LastErrorCode tells why (ErrorCodes.h). An operation throws std::bad_alloc only, where this
/// process has no memory for a string.
///
/// Threads: one object is used by one thread at a time. Objects share nothing, so several threads may have
/// one each.
///
/// There is one public member per library function, of the same name without the "TPL" prefix, and
/// operations.def lists them all. `int` and `double` pass unchanged. A wide string crosses as a library
/// buffer of 32-bit code units (null when empty) that the library owns from then on. A byte string crosses as
/// its own characters, or as a buffer released after the call when it holds a NUL. String results are copied,
/// so they outlive the next call; their lengths are asked for right after the call that made them.
class TelvarPDFLibraryCPDylibCPP1311
{
    using I = int;
    using D = double;
    using W = const std::wstring&;
    using B = const std::string&;

public:
    /// Opens the library file, resolves every function and creates an instance.
    /// \param libraryPath the low 8 bits of each character are the bytes of the path; a bare file name is
    ///     searched for by the dynamic loader's own rules. A file that is missing, or that lacks a function,
    ///     leaves the object not loaded; nothing is thrown for it.
    explicit TelvarPDFLibraryCPDylibCPP1311(const std::wstring& libraryPath);
    /// Releases the instance with all that it holds, unsaved documents included, and closes the file.
    ~TelvarPDFLibraryCPDylibCPP1311();
    TelvarPDFLibraryCPDylibCPP1311(const TelvarPDFLibraryCPDylibCPP1311&) = delete;
    TelvarPDFLibraryCPDylibCPP1311& operator=(const TelvarPDFLibraryCPDylibCPP1311&) = delete;

    /// True when the file was opened and every function resolved.
    bool LibraryLoaded() const { return !m_missing; }

    // What the operations are made of. Callers of operations need none of them.

    /// Looks a name up in the open library file.
    /// \param optional when false, a name that is not found makes the object count as not loaded.
    /// \returns the entry point, or null.
    void* AttachFunction(const char* name, bool optional = false);

    /// Converts a byte-string argument.
    /// \param[out] isBuffer 1 when the result is a library buffer that the caller releases after the call,
    ///     else 0.
    /// \returns the string's own characters, valid as long as the string, or that buffer; null when a buffer
    ///     is needed and the object is not loaded.
    char* StringParm(const std::string& text, int& isBuffer);

    /// Converts a wide-string argument into a new library buffer of 4 bytes a character, without terminator.
    /// \returns the buffer, which goes to the library with the call it is made for and is not released here;
    ///     null for an empty string and when the object is not loaded.
    char* WideStringParm(const std::wstring& text);

    /// Copies `length` characters; empty when `length` is below 1.
    std::wstring WideStringResult(wchar_t* characters, int length);

    // One member per row: int SetPageLayout(int layout);
#define TPL_OP(Result, Name, Arguments, ...) std::remove_cvref_t<Result> Name(__VA_ARGS__);
#include "operations.def"
#undef TPL_OP

private:
    struct Marshal;

    char* newBuffer(const char* bytes, std::size_t length);

    void* m_library = nullptr;
    std::int32_t m_instance = 0;
    bool m_missing = false;

    // One field per row: int (*m_SetPageLayout)(int instance, int layout);
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    pdflibrary::LibraryFunction<Result(__VA_ARGS__)>::Pointer m_##Name = nullptr;
#include "operations.def"
#undef TPL_OP

    int (*m_CreateLibrary)() = nullptr;
    char* (*m_CreateBuffer)(int instance, int size) = nullptr;
    void (*m_AddToBuffer)(int instance, char* buffer, const char* source, int size) = nullptr;
    void (*m_ReleaseLibrary)(int instance) = nullptr;
    int (*m_StringResultLength)(int instance) = nullptr;
    int (*m_AnsiStringResultLength)(int instance) = nullptr;
    void (*m_ReleaseBuffer)(int instance, char* buffer) = nullptr;
};
