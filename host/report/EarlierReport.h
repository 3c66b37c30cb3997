#pragma once

#include "host/plan/RunPlan.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace host {

/// The report of an earlier run, and what of a plan it lists as done: documents that it says were changed or
/// unchanged, with the same output, where neither document nor output have changed since. Of several lines
/// about a document the last one counts. A last line that was cut off is no line.
class EarlierReport
{
public:
    /// Throws UsageError when the file cannot be read, or is no report.
    EarlierReport(const std::string& path, const RunPlan& plan);

    /// The lines of documents that are done, with their line feeds, by their place in the plan.
    const std::map<std::size_t, std::string>& done() const { return m_done; }

private:
    void takeLine(std::string_view line);

    const RunPlan& m_plan;
    std::map<std::string, std::size_t, std::less<>> m_places;
    std::map<std::size_t, std::string> m_done;
};

} // namespace host
