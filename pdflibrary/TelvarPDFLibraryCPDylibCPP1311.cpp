#include "TelvarPDFLibraryCPDylibCPP1311.h"

#include <dlfcn.h>

#include <array>
#include <string_view>
#include <tuple>
#include <utility>

namespace {

constexpr std::array<std::string_view, 849> operationNames{
#define TPL_OP(Result, Name, Arguments, ...) #Name,
#include "operations.def"
#undef TPL_OP
};

constexpr bool strictlyAscending()
{
    for (std::size_t row = 1; row < operationNames.size(); ++row) {
        if (operationNames[row - 1] >= operationNames[row])
            return false;
    }
    return true;
}

static_assert(strictlyAscending(),
              "the rows of operations.def stand in ASCII order, none missing, none twice");

std::string narrowed(const std::wstring& path)
{
    std::string bytes;
    bytes.reserve(path.size());
    for (const wchar_t character : path)
        bytes.push_back(static_cast<char>(character & 0xff));
    return bytes;
}

} // namespace

/// Carries the arguments and the result of one call across the library boundary.
struct TelvarPDFLibraryCPDylibCPP1311::Marshal
{
    using Self = TelvarPDFLibraryCPDylibCPP1311;

    template <class Number>
    struct Converted
    {
        Number value;

        Converted(Self&, Number number) : value(number) {}
        void release(Self&) {}
    };

    struct ConvertedWide
    {
        char* value;

        ConvertedWide(Self& self, const std::wstring& text) : value(self.WideStringParm(text)) {}
        void release(Self&) {}
    };

    struct ConvertedBytes
    {
        int isBuffer = 0;
        char* value;

        ConvertedBytes(Self& self, const std::string& text) : value(self.StringParm(text, isBuffer)) {}
        void release(Self& self)
        {
            if (isBuffer != 0)
                self.m_ReleaseBuffer(self.m_instance, value);
        }
    };

    template <class Parameter>
    using ConvertedFor = std::conditional_t<
        std::is_same_v<Parameter, std::wstring>, ConvertedWide,
        std::conditional_t<std::is_same_v<Parameter, std::string>, ConvertedBytes, Converted<Parameter>>>;

    template <class Result, class Function, class... Parameters>
    static Result call(Self& self, Function function, const Parameters&... parameters)
    {
        if (self.m_missing)
            return Result();
        // A braced list is evaluated left to right; a call's arguments have no order.
        std::tuple<ConvertedFor<Parameters>...> converted{ConvertedFor<Parameters>(self, parameters)...};
        auto result = std::apply(
            [&](auto&... each) {
                auto value = function(self.m_instance, each.value...);
                (each.release(self), ...);
                return value;
            },
            converted);
        return copied<Result>(self, result);
    }

    template <class Result, class Raw>
    static Result copied(Self& self, Raw raw)
    {
        if constexpr (std::is_same_v<Result, std::wstring>) {
            return self.WideStringResult(raw, self.m_StringResultLength(self.m_instance));
        } else if constexpr (std::is_same_v<Result, std::string>) {
            const int length = self.m_AnsiStringResultLength(self.m_instance);
            return length < 1 || raw == nullptr ? std::string()
                                                : std::string(raw, static_cast<std::size_t>(length));
        } else {
            return raw;
        }
    }
};

TelvarPDFLibraryCPDylibCPP1311::TelvarPDFLibraryCPDylibCPP1311(const std::wstring& libraryPath)
    : m_library(dlopen(narrowed(libraryPath).c_str(), RTLD_LAZY | RTLD_LOCAL))
{
    if (m_library == nullptr) {
        m_missing = true;
        return;
    }
    const auto attach = [this](auto& pointer, const char* name) {
        pointer = reinterpret_cast<std::remove_reference_t<decltype(pointer)>>(AttachFunction(name));
    };
#define TPL_OP(Result, Name, Arguments, ...) attach(m_##Name, "TPL" #Name);
#include "operations.def"
#undef TPL_OP
    attach(m_CreateLibrary, "TPLCreateLibrary");
    attach(m_CreateBuffer, "TPLCreateBuffer");
    attach(m_AddToBuffer, "TPLAddToBuffer");
    attach(m_ReleaseLibrary, "TPLReleaseLibrary");
    attach(m_StringResultLength, "TPLStringResultLength");
    attach(m_AnsiStringResultLength, "TPLAnsiStringResultLength");
    attach(m_ReleaseBuffer, "TPLReleaseBuffer");
    if (!m_missing)
        m_instance = m_CreateLibrary();
}

TelvarPDFLibraryCPDylibCPP1311::~TelvarPDFLibraryCPDylibCPP1311()
{
    if (m_instance > 0)
        m_ReleaseLibrary(m_instance);
    if (m_library != nullptr) {
        dlclose(m_library);
        m_library = nullptr;
    }
}

void* TelvarPDFLibraryCPDylibCPP1311::AttachFunction(const char* name, bool optional)
{
    // A null handle would make dlsym search the whole process.
    void* entry = m_library != nullptr ? dlsym(m_library, name) : nullptr;
    if (entry == nullptr && !optional)
        m_missing = true;
    return entry;
}

char* TelvarPDFLibraryCPDylibCPP1311::StringParm(const std::string& text, int& isBuffer)
{
    isBuffer = 0;
    if (text.find('\0') == std::string::npos)
        return const_cast<char*>(text.c_str()); // the library's C functions take char* and leave it alone
    isBuffer = m_missing ? 0 : 1;
    return newBuffer(text.data(), text.size());
}

char* TelvarPDFLibraryCPDylibCPP1311::WideStringParm(const std::wstring& text)
{
    if (text.empty())
        return nullptr;
    return newBuffer(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t));
}

char* TelvarPDFLibraryCPDylibCPP1311::newBuffer(const char* bytes, std::size_t length)
{
    if (m_missing) // perhaps just the functions that this needs
        return nullptr;
    const int size = static_cast<int>(length);
    char* buffer = m_CreateBuffer(m_instance, size);
    m_AddToBuffer(m_instance, buffer, bytes, size);
    return buffer;
}

std::wstring TelvarPDFLibraryCPDylibCPP1311::WideStringResult(wchar_t* characters, int length)
{
    return length < 1 || characters == nullptr ? std::wstring()
                                               : std::wstring(characters, static_cast<std::size_t>(length));
}

#define TPL_ARGUMENTS(...) __VA_OPT__(, ) __VA_ARGS__
// int SetPageLayout(int layout) { return Marshal::call<int>(*this, m_SetPageLayout, layout); }
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    std::remove_cvref_t<TelvarPDFLibraryCPDylibCPP1311::Result> TelvarPDFLibraryCPDylibCPP1311::Name(        \
        __VA_ARGS__)                                                                                         \
    {                                                                                                        \
        return Marshal::call<std::remove_cvref_t<Result>>(*this, m_##Name TPL_ARGUMENTS Arguments);          \
    }
#include "operations.def"
