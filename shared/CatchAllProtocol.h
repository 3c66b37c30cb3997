#pragma once

#include "CErrorHandler.h"

#include <cstdio>

/// Runs the body of a host-facing operation so that no exception leaves it, as CActionInterface.h promises to
/// the host. Every operation that a host calls and that can fail has its body in here:
///
///     const bool done = runCatchAll(__FILE__, "WorkProc", __LINE__, [&] { apply(*info); });
///     return done ? 0 : 1;
///
/// A throw of whatever type means that the operation failed: it stops there, what it had done so far stays
/// done, a record of where it stood (not of what was thrown) goes to StoreErrorToLog, and the operation turns
/// the false that it gets into its own result and message. Nothing is thrown on, bad_alloc included.
///
/// It may be called from any thread, and within itself. Of crashes it knows nothing, nor of what
/// other threads throw.
/// \param file, function, line where the operation stands: __FILE__, its unqualified name, __LINE__. A record
///     longer than 1023 bytes is cut. The strings are read during the call only.
/// \param body called once, on the caller's thread.
/// \returns true when the body ran to its end; a `return` in it counts as that.
template <class Body>
bool runCatchAll(const char* file, const char* function, int line, Body&& body)
{
    try {
        try {
            body();
        } catch (...) {
            char record[1024];
            std::snprintf(record, sizeof record,
                          "==============================\n"
                          "Exception handled: system\n"
                          "File: %s\n"
                          "Function: %s\n"
                          "Line: %d\n",
                          file, function, line);
            StoreErrorToLog(record);
            throw 0;
        }
    } catch (...) {
        return false;
    }
    return true;
}
