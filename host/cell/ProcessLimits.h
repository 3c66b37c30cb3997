#pragma once

namespace host {

/// Whether a sanitizer watches this build, for tests. It needs address space without bound, and tells what it
/// found on standard error.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool sanitized = true;
#elif defined(__has_feature)
inline constexpr bool sanitized = __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#else
inline constexpr bool sanitized = false;
#endif

} // namespace host

/// What a process gives up by itself before it meets what strangers sent.
namespace host::processlimits {

/// New privileges, for good; and of those that root has, the ones that no reading and writing of files takes,
/// if the system allows that. \returns false with errno set when new ones cannot be given up.
bool giveUpPrivileges();

/// Its environment, in which there may be secrets.
void forgetEnvironment();

/// More memory than that, which this process allocates. What the kernel does not count as such (memory that is
/// taken as a stack) is within that as well and some more, together with what the process has mapped by now:
/// whatever it maps later is to be small. Sanitizers need memory without bound, and get it.
void limitMemory(int mebibytes);

} // namespace host::processlimits
