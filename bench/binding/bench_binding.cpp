// What the binding costs: construction (open the file, look 856 functions up, create an instance), first and
// repeated, and a call's overhead above calling the function pointer directly.
#include "TelvarPDFLibraryCPDylibCPP1311.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <memory>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Library = TelvarPDFLibraryCPDylibCPP1311;

constexpr int constructions = 200;
constexpr int rounds = 51;
constexpr int callsPerRound = 1'000'000;

volatile int keptSum = 0;

template <class Work>
double nanoseconds(Work&& work)
{
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

/// Nanoseconds a call, over one round. Keeping the sum keeps the compiler from leaving the calls out.
template <class Call>
double perCall(Call&& call)
{
    return nanoseconds([&] {
               int results = 0;
               for (int at = 0; at < callsPerRound; ++at)
                   results += call();
               keptSum = keptSum + results;
           }) /
           callsPerRound;
}

/// The library behind these calls does nothing, so their difference is the binding's work.
void measureCalls()
{
    const std::string file = NULL_LIBRARY_FILE;
    Library library(std::wstring(file.begin(), file.end()));
    using Function = int (*)(int, int, int);
    const auto function = reinterpret_cast<Function>(library.AttachFunction("TPLSetViewerPreferences"));
    // The quickest round counts: what else runs on the machine only adds to it.
    double direct = std::numeric_limits<double>::max();
    double bound = direct;
    for (int round = 0; round < rounds; ++round) {
        direct = std::min(direct, perCall([&] { return function(1, 7, 1); }));
        bound = std::min(bound, perCall([&] { return library.SetViewerPreferences(7, 1); }));
    }
    std::printf("call with two numbers: direct %.2f ns, through the binding %.2f ns, overhead %.2f ns\n",
                direct, bound, bound - direct);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: bench_binding LIBRARY-FILE\n");
        return 2;
    }
    const std::string bytes = argv[1];
    const std::wstring path(bytes.begin(), bytes.end());

    std::unique_ptr<Library> first;
    const double firstTime = nanoseconds([&] { first = std::make_unique<Library>(path); });
    if (!first->LibraryLoaded()) {
        std::fprintf(stderr, "bench_binding: %s is not a PDF library\n", argv[1]);
        return 1;
    }
    // With the file still open a further object only looks up and creates.
    const auto construct = [&] { return nanoseconds([&] { Library again(path); }); };
    std::vector<double> open(constructions);
    std::generate(open.begin(), open.end(), construct);
    first.reset();
    std::vector<double> closed(constructions);
    std::generate(closed.begin(), closed.end(), construct);

    std::printf("construction, first: %.3f ms\n", firstTime / 1e6);
    std::printf("construction and destruction, file already open: %.3f ms\n", median(open) / 1e6);
    std::printf("construction and destruction, file closed between: %.3f ms\n", median(closed) / 1e6);
    measureCalls();
    return 0;
}
