#pragma once

#include "CErrorHandler.h"

#include <cstdio>

/// Runs the body of a host-facing operation so that no exception leaves it.
///
/// Whatever the body throws is recorded for StoreErrorToLog and then counts as a failure of the operation.
/// \param file, function, line where the operation stands: __FILE__, its unqualified name, __LINE__.
/// \returns true when the body ran to its end.
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
