#include "AllowedCalls.h"

#include "Sanitized.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/stat.h>

namespace host::allowedcalls {

namespace {

scmp_arg_cmp equals(unsigned argument, scmp_datum_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

/// None of the bits.
scmp_arg_cmp lacks(unsigned argument, scmp_datum_t bits)
{
    return {argument, SCMP_CMP_MASKED_EQ, bits, 0};
}

const unsigned protection = 2; // the arguments of mmap, and of mprotect
const unsigned mapping = 3;

/// A file with these would run with its owner's rights, whoever starts it, and whatever a worker put into it.
const scmp_datum_t rightsOfOwner = S_ISUID | S_ISGID;

// clang-format off
Group ofSanitizers()
{
    return {"what the sanitizers of a build for tests ask when exceptions pass, and when they have found something: they"
            " try memory by writing it to a pipe",
            {{SCMP_SYS(pipe)}, {SCMP_SYS(pipe2)}, {SCMP_SYS(sigaltstack)}, {SCMP_SYS(rt_sigaction)},
             {SCMP_SYS(sched_yield)}, {SCMP_SYS(getuid)}, {SCMP_SYS(uname)}, {SCMP_SYS(prlimit64)}, {SCMP_SYS(prctl)},
             {SCMP_SYS(dup)}, {SCMP_SYS(ioctl), {equals(1, TCGETS)}},
             // with no mode, and so with any
             {SCMP_SYS(open)}, {SCMP_SYS(openat)}}};
}
// clang-format on

} // namespace

// clang-format off
std::vector<Group> toRead(pid_t self)
{
    const auto process = static_cast<scmp_datum_t>(self);
    std::vector<Group> groups = {
        {"memory, which never becomes code: what is run is loaded before; nor memory to share, which the limit of a"
         " process's memory does not count",
         {{SCMP_SYS(brk)}, {SCMP_SYS(mmap), {lacks(protection, PROT_EXEC), lacks(mapping, MAP_SHARED)}},
          {SCMP_SYS(mmap), {lacks(protection, PROT_EXEC), lacks(mapping, MAP_ANONYMOUS)}},
          {SCMP_SYS(mmap2), {lacks(protection, PROT_EXEC), lacks(mapping, MAP_SHARED)}},
          {SCMP_SYS(mmap2), {lacks(protection, PROT_EXEC), lacks(mapping, MAP_ANONYMOUS)}},
          {SCMP_SYS(mprotect), {lacks(protection, PROT_EXEC)}}, {SCMP_SYS(mremap)}, {SCMP_SYS(munmap)},
          {SCMP_SYS(madvise)}}},
        {"finding and reading documents; what may be opened is for the kernel's other lock",
         {{SCMP_SYS(open), {lacks(1, O_ACCMODE | O_CREAT | O_TRUNC)}},
          {SCMP_SYS(openat), {lacks(2, O_ACCMODE | O_CREAT | O_TRUNC)}},
          {SCMP_SYS(close)}, {SCMP_SYS(read)}, {SCMP_SYS(pread64)}, {SCMP_SYS(lseek)}, {SCMP_SYS(_llseek)},
          {SCMP_SYS(stat)}, {SCMP_SYS(lstat)}, {SCMP_SYS(fstat)}, {SCMP_SYS(newfstatat)}, {SCMP_SYS(stat64)},
          {SCMP_SYS(lstat64)}, {SCMP_SYS(fstat64)}, {SCMP_SYS(fstatat64)}, {SCMP_SYS(statx)}, {SCMP_SYS(readlink)},
          {SCMP_SYS(readlinkat)}, {SCMP_SYS(access)}, {SCMP_SYS(faccessat)}, {SCMP_SYS(getcwd)}}},
        {"waking up the program", {{SCMP_SYS(write)}}},
        {"time, waiting, and what libraries ask the kernel for: random numbers, locks, how much memory there is",
         {{SCMP_SYS(clock_gettime)}, {SCMP_SYS(clock_gettime64)}, {SCMP_SYS(gettimeofday)}, {SCMP_SYS(time)},
          {SCMP_SYS(nanosleep)}, {SCMP_SYS(clock_nanosleep)}, {SCMP_SYS(clock_nanosleep_time64)},
          {SCMP_SYS(restart_syscall)}, {SCMP_SYS(futex)}, {SCMP_SYS(getrandom)}, {SCMP_SYS(sysinfo)}}},
        {"ending, also by a crash, which signals nobody but this process",
         {{SCMP_SYS(exit)}, {SCMP_SYS(exit_group)}, {SCMP_SYS(getpid)}, {SCMP_SYS(gettid)},
          {SCMP_SYS(rt_sigprocmask)}, {SCMP_SYS(rt_sigreturn)}, {SCMP_SYS(sigreturn)},
          {SCMP_SYS(tgkill), {equals(0, process)}}, {SCMP_SYS(kill), {equals(0, process)}}}},
    };
    if (sanitized)
        groups.push_back(ofSanitizers());
    return groups;
}

std::vector<Group> toWrite()
{
    return {
        {"writing results, and the reports of runs in place; before Linux 6.2 the other lock lets files be emptied"
         " that may only be read",
         {{SCMP_SYS(open), {lacks(1, O_TRUNC), lacks(2, rightsOfOwner)}},
          {SCMP_SYS(openat), {lacks(2, O_TRUNC), lacks(3, rightsOfOwner)}},
          {SCMP_SYS(pwrite64)}, {SCMP_SYS(copy_file_range)}, {SCMP_SYS(ioctl), {equals(1, FICLONE)}},
          {SCMP_SYS(ftruncate)}, {SCMP_SYS(ftruncate64)}, {SCMP_SYS(rename)}, {SCMP_SYS(renameat)},
          {SCMP_SYS(renameat2)}, {SCMP_SYS(unlink)}, {SCMP_SYS(unlinkat)}, {SCMP_SYS(mkdir)}, {SCMP_SYS(mkdirat)}}},
        {"giving a result, by its descriptor, what the document has besides its content",
         {{SCMP_SYS(fchmod), {lacks(1, rightsOfOwner)}}, {SCMP_SYS(fchown)}, {SCMP_SYS(fchown32)},
          {SCMP_SYS(umask)}, {SCMP_SYS(fgetxattr)}, {SCMP_SYS(flistxattr)}, {SCMP_SYS(fsetxattr)},
          {SCMP_SYS(fremovexattr)}, {SCMP_SYS(utimensat), {equals(1, 0)}},
          {SCMP_SYS(utimensat_time64), {equals(1, 0)}}}},
        {"putting results on the disk, and keeping others from a document that is changed where it is",
         {{SCMP_SYS(fsync)}, {SCMP_SYS(fdatasync)}, {SCMP_SYS(syncfs)}, {SCMP_SYS(flock)}, {SCMP_SYS(fstatfs)},
          {SCMP_SYS(fstatfs64)}}},
    };
}
// clang-format on

} // namespace host::allowedcalls
