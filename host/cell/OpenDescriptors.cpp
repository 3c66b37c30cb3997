#include "OpenDescriptors.h"

#include <unistd.h>

#include <algorithm>
#include <climits>

namespace host {

namespace {

const unsigned mostDescriptors = 65535; // that are looked at where the kernel cannot close a range

void closeRange(unsigned first, unsigned last)
{
    if (first <= last && close_range(first, last, 0) != 0) // before Linux 5.9
        for (unsigned descriptor = first; descriptor <= std::min(last, mostDescriptors); ++descriptor)
            close(static_cast<int>(descriptor));
}

} // namespace

void closeAllBut(std::vector<int> kept)
{
    std::erase_if(kept, [](int descriptor) { return descriptor <= STDERR_FILENO; });
    std::sort(kept.begin(), kept.end());
    unsigned first = STDERR_FILENO + 1;
    for (const int descriptor : kept) {
        const auto number = static_cast<unsigned>(descriptor);
        closeRange(first, number - 1);
        first = std::max(first, number + 1);
    }
    closeRange(first, UINT_MAX);
}

} // namespace host
