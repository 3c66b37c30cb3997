#pragma once

#include "host/cell/Cell.h"
#include "host/workers/WorkerPool.h"

namespace host {

class OptionParser;

/// Takes how many documents are worked on at a time, and what each may cost. Without the options, as many as
/// there are processors.
void takeLimits(OptionParser& parser, WorkerPool::Limits& limits);

/// Takes how far workers are locked in.
void takeSandbox(OptionParser& parser, Sandbox& sandbox);

/// Where that was asked for by name, notes on standard error what is missing.
void noteMissing(const Cell& cell, Sandbox sandbox);

} // namespace host
