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
