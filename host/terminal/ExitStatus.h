#pragma once

/// The program's exit statuses.
namespace host::exitstatus {

inline constexpr int done = 0;
inline constexpr int someFailed = 1;
inline constexpr int usage = 2;     ///< nothing was begun
inline constexpr int stopped = 130; ///< by a signal

} // namespace host::exitstatus
