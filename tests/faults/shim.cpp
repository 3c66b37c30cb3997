// Stands before the C library (LD_PRELOAD) and makes one call of a kind fail, or fall short, or wait until
// the driver has killed somebody. Calls are counted over all processes of a run, in memory that they share
// with the driver. Makes no system calls of its own that a locked-in worker may not make.
#include <dlfcn.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>

extern "C" void* __libc_malloc(std::size_t size);

namespace {

// The rows of KINDS in batch.py.
// clang-format off
enum Kind : std::uint32_t {
    Any, AnyOfWorkers, Open, Read, Write, Copy, Clone, Sync, Rename, Close, Chmod, Truncate, Map, Malloc, Fork, Pipe,
    Poll, Folder, Unlink, Lock, Status, kinds
};
// clang-format on

// What happens at the call, unless it is an errno value. Beyond `allTheSame`, the call is made and
// told as failed.
const std::int32_t fallShort = -1;
const std::int32_t waitThere = -2;
const std::int32_t allTheSame = 1000;

/// What the driver packs, by words of 32 bits.
struct Orders
{
    std::uint32_t kind;
    std::uint32_t first; ///< The first call that is meant, from 1.
    std::uint32_t last;
    std::int32_t manner;
    std::atomic<std::uint32_t> waiting; ///< The process that waits at the call.
    std::atomic<std::uint32_t> released;
    std::atomic<std::uint32_t> program; ///< The first process; others are its workers.
    std::array<std::atomic<std::uint32_t>, kinds> counts;
};

Orders* orders = nullptr;
Orders* ordersForLater = nullptr;

__attribute__((constructor)) void takeOrders()
{
    const char* const path = std::getenv("FAULTS_ORDERS");
    const long file = path != nullptr ? syscall(SYS_openat, AT_FDCWD, path, O_RDWR | O_CLOEXEC) : -1;
    if (file < 0)
        return;
    const long memory =
        syscall(SYS_mmap, nullptr, sizeof(Orders), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    syscall(SYS_close, file);
    if (memory == -1)
        std::abort();
    ordersForLater = reinterpret_cast<Orders*>(memory);
    ordersForLater->program = static_cast<std::uint32_t>(getpid());
    if (std::getenv("FAULTS_LATER") == nullptr)
        orders = ordersForLater;
}

/// \returns what is to happen at this call, 0 for nothing.
std::int32_t orderFor(Kind kind)
{
    if (orders == nullptr)
        return 0;
    std::uint32_t number = ++orders->counts[kind];
    if (kind != Malloc) {
        const std::uint32_t ofAll = ++orders->counts[Any];
        const bool isWorker = orders->program != static_cast<std::uint32_t>(getpid());
        const std::uint32_t ofWorkers = isWorker ? ++orders->counts[AnyOfWorkers] : 0;
        if (orders->kind <= AnyOfWorkers)
            number = orders->kind == Any ? ofAll : ofWorkers;
    }
    const bool isMeant = orders->kind == kind || (orders->kind <= AnyOfWorkers && kind != Malloc);
    if (!isMeant || number < orders->first || number > orders->last)
        return 0;
    if (orders->manner != waitThere)
        return orders->manner;
    orders->waiting = static_cast<std::uint32_t>(getpid());
    const timespec moment{0, 200000};
    while (orders->released == 0)
        nanosleep(&moment, nullptr);
    return 0;
}

bool fails(std::int32_t order)
{
    if (order > 0)
        errno = order % allTheSame;
    return order > 0;
}

/// A call that fails as a whole.
template <class Result, class... Parameters, class... Arguments>
Result met(Kind kind, Result (*real)(Parameters...), Result failure, Arguments... arguments)
{
    const std::int32_t order = orderFor(kind);
    if (order > allTheSame)
        real(arguments...);
    return fails(order) ? failure : real(arguments...);
}

/// How much of so many bytes is to be done; 0 when the call is to fail.
std::size_t share(Kind kind, std::size_t size)
{
    const std::int32_t order = orderFor(kind);
    return fails(order) ? 0 : order == fallShort ? (size + 1) / 2 : size;
}

} // namespace

// The function that stands behind ours.
#define REAL(name)                                                                                           \
    ([] {                                                                                                    \
        static const auto found = reinterpret_cast<decltype(&::name)>(dlsym(RTLD_NEXT, #name));              \
        return found;                                                                                        \
    }())
#define FAILING(kind, result, failure, name, parameters, ...)                                                \
    result name parameters                                                                                   \
    {                                                                                                        \
        return met(kind, REAL(name), static_cast<result>(failure), __VA_ARGS__);                             \
    }
#define SHORTENED(kind, name, parameters, ...)                                                               \
    ssize_t name parameters                                                                                  \
    {                                                                                                        \
        const bool isNothing = size == 0;                                                                    \
        size = isNothing ? 0 : share(kind, size);                                                            \
        return size == 0 && !isNothing ? -1 : REAL(name)(__VA_ARGS__);                                       \
    }
#define OPENING(name)                                                                                        \
    int name(const char* path, int flags, ...)                                                               \
    {                                                                                                        \
        __builtin_va_list list;                                                                              \
        __builtin_va_start(list, flags);                                                                     \
        const unsigned mode = (flags & (O_CREAT | __O_TMPFILE)) != 0 ? __builtin_va_arg(list, unsigned) : 0; \
        __builtin_va_end(list);                                                                              \
        return fails(orderFor(Open)) ? -1 : REAL(name)(path, flags, mode);                                   \
    }

#pragma GCC visibility push(default)
extern "C" {

/// Calls count from here on only, where the environment asks for that.
void beginFaults()
{
    orders = ordersForLater;
}

int ioctl(int file, unsigned long request, ...) noexcept
{
    __builtin_va_list list;
    __builtin_va_start(list, request);
    void* const argument = __builtin_va_arg(list, void*);
    __builtin_va_end(list);
    return request == FICLONE && fails(orderFor(Clone)) ? -1 : REAL(ioctl)(file, request, argument);
}

void* malloc(std::size_t size) noexcept
{
    return fails(orderFor(Malloc)) ? nullptr : __libc_malloc(size);
}

// clang-format off
OPENING(open)
OPENING(open64)
SHORTENED(Read, read, (int file, void* bytes, std::size_t size), file, bytes, size)
SHORTENED(Read, pread, (int file, void* bytes, std::size_t size, off_t at), file, bytes, size, at)
SHORTENED(Write, write, (int file, const void* bytes, std::size_t size), file, bytes, size)
SHORTENED(Write, pwrite, (int file, const void* bytes, std::size_t size, off_t at), file, bytes, size, at)
SHORTENED(Copy, copy_file_range, (int from, off64_t* fromAt, int to, off64_t* toAt, std::size_t size, unsigned flags),
          from, fromAt, to, toAt, size, flags)
FAILING(Sync, int, -1, fsync, (int file), file)
FAILING(Sync, int, -1, fdatasync, (int file), file)
FAILING(Sync, int, -1, syncfs, (int file) noexcept, file)
FAILING(Rename, int, -1, rename, (const char* from, const char* to) noexcept, from, to)
FAILING(Rename, int, -1, renameat2, (int in, const char* from, int to, const char* name, unsigned flags) noexcept,
        in, from, to, name, flags)
FAILING(Close, int, -1, close, (int file), file)
FAILING(Chmod, int, -1, chmod, (const char* path, mode_t mode) noexcept, path, mode)
FAILING(Chmod, int, -1, fchmod, (int file, mode_t mode) noexcept, file, mode)
FAILING(Truncate, int, -1, ftruncate, (int file, off_t size) noexcept, file, size)
FAILING(Truncate, int, -1, ftruncate64, (int file, off64_t size) noexcept, file, size)
FAILING(Map, void*, MAP_FAILED, mmap,
        (void* place, std::size_t size, int protection, int flags, int file, off_t at) noexcept,
        place, size, protection, flags, file, at)
FAILING(Map, void*, MAP_FAILED, mmap64,
        (void* place, std::size_t size, int protection, int flags, int file, off64_t at) noexcept,
        place, size, protection, flags, file, at)
FAILING(Pipe, int, -1, pipe2, (int* ends, int flags) noexcept, ends, flags)
FAILING(Pipe, int, -1, socketpair, (int domain, int type, int protocol, int* ends) noexcept,
        domain, type, protocol, ends)
FAILING(Poll, int, -1, poll, (pollfd* files, nfds_t count, int timeout), files, count, timeout)
FAILING(Folder, int, -1, mkdir, (const char* path, mode_t mode) noexcept, path, mode)
FAILING(Unlink, int, -1, unlink, (const char* path) noexcept, path)
FAILING(Lock, int, -1, flock, (int file, int operation) noexcept, file, operation)
FAILING(Status, int, -1, stat, (const char* path, struct stat* status) noexcept, path, status)
FAILING(Status, int, -1, lstat, (const char* path, struct stat* status) noexcept, path, status)
FAILING(Status, int, -1, fstat, (int file, struct stat* status) noexcept, file, status)
// clang-format on

pid_t fork() noexcept
{
    return met(Fork, REAL(fork), -1);
}

} // extern "C"
#pragma GCC visibility pop
