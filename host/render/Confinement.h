#pragma once

/// Keeps a process that reads a stranger's document from doing more than that.
namespace host::confinement {

/// What a process may allocate.
inline constexpr int memoryMiB = 2048;
/// How long it may work once it has started.
inline constexpr unsigned workSeconds = 10;

/// Limits this process, which has opened what it reads and has one thread, for good: its memory, no new
/// privileges, no processes, no core file, nothing written to files, and it ends with the process that
/// started it. Where the kernel can do that, it opens nothing but fonts, and makes the system calls that it
/// needs. Throws std::runtime_error when that cannot be had.
void enter();

/// From now on the process may work for `workSeconds`; it ends if it is not done by then.
void startWork();
/// It waits for work.
void rest();

} // namespace host::confinement
