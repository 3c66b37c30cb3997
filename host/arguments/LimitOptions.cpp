#include "LimitOptions.h"

#include "OptionParser.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include <algorithm>
#include <thread>

namespace host {

namespace {

const int mostWorkers = 1024;
const int longestTimeout = 24 * 60 * 60;
const int leastMemory = 32;
const int mostMemory = 1 << 20;

Sandbox sandboxNamed(const std::string& word)
{
    if (word == "try")
        return Sandbox::Try;
    if (word == "require")
        return Sandbox::Require;
    if (word != "off")
        throw UsageError("--sandbox takes try, require or off, not \"" + word + "\"" +
                         suggestion::didYouMean(word, {"try", "require", "off"}));
    return Sandbox::Off;
}

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

void takeSandbox(OptionParser& parser, Sandbox& sandbox)
{
    parser.takeValue("sandbox", [&sandbox](const std::string& value) { sandbox = sandboxNamed(value); });
}

void noteMissing(const Cell& cell, Sandbox sandbox)
{
    if (const std::string text = cell.state().missing(); sandbox == Sandbox::Try && !text.empty())
        note(text);
}

} // namespace host
