#pragma once

#include "host/workers/WorkerPool.h"

namespace host {

class OptionParser;

/// Takes how many documents are worked on at a time, and what each may cost. Without the options, as many as
/// there are processors.
void takeLimits(OptionParser& parser, WorkerPool::Limits& limits);

} // namespace host
