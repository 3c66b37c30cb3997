#include "LimitOptions.h"

#include "OptionParser.h"

#include <algorithm>
#include <thread>

namespace host {

namespace {

const int mostWorkers = 1024;
const int longestTimeout = 24 * 60 * 60;
const int leastMemory = 32;
const int mostMemory = 1 << 20;

} // namespace

void takeLimits(OptionParser& parser, WorkerPool::Limits& limits)
{
    limits.workers = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    parser.takeValue("jobs", [&limits](const std::string& value) {
        limits.workers = numberOption("--jobs", value, 1, mostWorkers);
    });
    parser.takeValue("timeout", [&limits](const std::string& value) {
        limits.timeoutSeconds = numberOption("--timeout", value, 1, longestTimeout);
    });
    parser.takeValue("memory", [&limits](const std::string& value) {
        limits.memoryMiB = numberOption("--memory", value, leastMemory, mostMemory);
    });
}

} // namespace host
