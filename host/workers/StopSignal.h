#pragma once

#include "host/files/FileDescriptor.h"

namespace host {

/// Turns SIGINT, SIGTERM and SIGHUP into something to wait for, from construction on, except those that are
/// ignored; workers started later do not receive them at all.
class StopSignal
{
public:
    StopSignal();

    /// Becomes readable when a signal has come.
    int descriptor() const { return m_signals.get(); }

    /// Takes the signals that have come. \returns their number since the beginning.
    int count();

private:
    FileDescriptor m_signals;
    int m_count = 0;
};

} // namespace host
