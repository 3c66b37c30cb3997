#include "Landlock.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

namespace host {

namespace {

using Rights = std::uint64_t;

// What the kernel has had since versions 3 to 6, and older headers do not name.
const Rights truncateFile = 1 << 14;
const Rights controlDevice = 1 << 15;
const Rights bindTcp = 1 << 0;
const Rights connectTcp = 1 << 1;
const Rights abstractSockets = 1 << 0;
const Rights signals = 1 << 1;

/// As landlock_ruleset_attr; a kernel takes a shorter one if what it does not know is missing.
struct Ruleset
{
    Rights files = 0;
    Rights network = 0;
    Rights scoped = 0;
};

const Rights firstFileRights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;

/// What is forbidden unless a rule allows it: everything that a version knows.
Ruleset rulesetOf(int version)
{
    Ruleset ruleset{firstFileRights};
    ruleset.files |= version >= 2 ? LANDLOCK_ACCESS_FS_REFER : 0;
    ruleset.files |= version >= 3 ? truncateFile : 0;
    ruleset.files |= version >= 5 ? controlDevice : 0;
    ruleset.network = version >= 4 ? bindTcp | connectTcp : 0;
    ruleset.scoped = version >= 6 ? abstractSockets | signals : 0;
    return ruleset;
}

std::size_t sizeOf(int version)
{
    return version >= 6 ? sizeof(Ruleset) : version >= 4 ? sizeof(Rights) * 2 : sizeof(Rights);
}

Rights rightsOf(Landlock::Access access)
{
    if (access == Landlock::Access::Read)
        return LANDLOCK_ACCESS_FS_READ_FILE;
    if (access == Landlock::Access::Browse)
        return LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
    const Rights read = access == Landlock::Access::ReadAndWrite ? LANDLOCK_ACCESS_FS_READ_FILE : 0;
    return read | LANDLOCK_ACCESS_FS_WRITE_FILE | truncateFile | LANDLOCK_ACCESS_FS_READ_DIR |
           LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE;
}

const Rights rightsOfFiles = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE | truncateFile;

[[noreturn]] void fail()
{
    throw std::system_error(errno, std::generic_category());
}

} // namespace

int Landlock::version()
{
    const long offered = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    return static_cast<int>(std::clamp<long>(offered, 0, newest));
}

Landlock::Landlock(int version)
{
    const Ruleset ruleset = rulesetOf(version);
    m_handled = ruleset.files;
    m_rules =
        FileDescriptor(static_cast<int>(syscall(SYS_landlock_create_ruleset, &ruleset, sizeOf(version), 0)));
    if (!m_rules.isOpen())
        fail();
}

void Landlock::allow(const std::string& path, Access access)
{
    const FileDescriptor place(::open(path.c_str(), O_PATH | O_CLOEXEC));
    struct stat status;
    if (!place.isOpen() || fstat(place.get(), &status) != 0)
        return;
    const Rights possible = S_ISDIR(status.st_mode) ? ~Rights{0} : rightsOfFiles;
    const landlock_path_beneath_attr rule{rightsOf(access) & possible & m_handled, place.get()};
    if (syscall(SYS_landlock_add_rule, m_rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0) != 0)
        fail();
}

bool Landlock::enter() const
{
    return syscall(SYS_landlock_restrict_self, m_rules.get(), 0) == 0;
}

} // namespace host
