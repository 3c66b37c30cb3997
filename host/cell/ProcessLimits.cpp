#include "ProcessLimits.h"

#include "Sanitized.h"
#include "host/files/FileDescriptor.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

namespace host::processlimits {

namespace {

/// Documents of other users, what a document has besides its content, its security label, and what a disk
/// keeps for root.
constexpr std::array<unsigned, 7> keptCapabilities{CAP_CHOWN,       CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH,
                                                   CAP_FOWNER,      CAP_SYS_ADMIN,    CAP_MAC_ADMIN,
                                                   CAP_SYS_RESOURCE};

const rlim_t forStacks = 64 << 20;

/// A container that does not allow it has taken most of them away itself; what else keeps a worker in does not
/// need this.
void giveUpCapabilities()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> had{};
    if (syscall(SYS_capget, &header, had.data()) != 0)
        return;
    auto kept = decltype(had){};
    for (const unsigned each : keptCapabilities) {
        const std::size_t word = CAP_TO_INDEX(each);
        kept[word].effective |= had[word].effective & CAP_TO_MASK(each);
        kept[word].permitted |= had[word].permitted & CAP_TO_MASK(each);
    }
    syscall(SYS_capset, &header, kept.data());
}

/// Never grants more than there is.
void limit(__rlimit_resource resource, rlim_t most)
{
    rlimit now{most, most};
    getrlimit(resource, &now);
    const rlimit then{std::min(now.rlim_cur, most), std::min(now.rlim_max, most)};
    setrlimit(resource, &then);
}

/// In bytes; 0 where it cannot be told.
rlim_t mappedNow()
{
    const FileDescriptor file(::open("/proc/self/statm", O_RDONLY | O_CLOEXEC));
    char text[64]{};
    const ssize_t size = read(file.get(), text, sizeof text - 1);
    return size <= 0 ? 0 : std::strtoull(text, nullptr, 10) * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

} // namespace

bool giveUpPrivileges()
{
    giveUpCapabilities();
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
}

void forgetEnvironment()
{
    for (char** each = environ; each != nullptr && *each != nullptr; ++each)
        explicit_bzero(*each, std::strlen(*each));
    clearenv();
}

void limitMemory(int mebibytes)
{
    if (sanitized)
        return;
    const auto bytes = static_cast<rlim_t>(mebibytes) << 20;
    limit(RLIMIT_DATA, bytes);
    if (const rlim_t mapped = mappedNow(); mapped > 0)
        limit(RLIMIT_AS, mapped + bytes + forStacks);
}

} // namespace host::processlimits
