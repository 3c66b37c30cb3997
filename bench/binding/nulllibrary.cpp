// A PDF library whose functions do nothing, so that what remains of a call's time is the binding's.

#define BENCH_EXPORT extern "C" __attribute__((visibility("default")))
#define BENCH_PARAMETERS(...) __VA_OPT__(, ) __VA_ARGS__

using I = int;
using D = double;
using W = const wchar_t*;
using B = const char*;

// int TPLSetPageLayout(int instance, int layout) { return {}; }
#define TPL_OP(Result, Name, Arguments, ...)                                                                 \
    BENCH_EXPORT Result TPL##Name([[maybe_unused]] int instance BENCH_PARAMETERS(__VA_ARGS__))               \
    {                                                                                                        \
        return {};                                                                                           \
    }
#pragma GCC diagnostic ignored "-Wunused-parameter"
#include "pdflibrary/operations.def"
#undef TPL_OP

BENCH_EXPORT int TPLCreateLibrary()
{
    return 1;
}

BENCH_EXPORT char* TPLCreateBuffer(int, int)
{
    return nullptr;
}

BENCH_EXPORT int TPLStringResultLength(int)
{
    return 0;
}

BENCH_EXPORT int TPLAnsiStringResultLength(int)
{
    return 0;
}

BENCH_EXPORT void TPLAddToBuffer(int, char*, const char*, int) {}
BENCH_EXPORT void TPLReleaseLibrary(int) {}
BENCH_EXPORT void TPLReleaseBuffer(int, char*) {}
