#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace host {

/// A line that shows how far a run is: a bar, count, rate and time left. Drawn a few times a second at most.
class Progress
{
public:
    /// \param descriptor a terminal.
    Progress(int descriptor, std::size_t total);
    /// Takes the line away.
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void advance(bool failed);

    /// The line without its control characters, at most `width` columns.
    static std::string lineFor(std::size_t done, std::size_t failed, std::size_t total, double seconds,
                               std::size_t width);

private:
    using Clock = std::chrono::steady_clock;

    void draw();

    int m_descriptor;
    std::size_t m_total;
    std::size_t m_done = 0;
    std::size_t m_failed = 0;
    Clock::time_point m_begin = Clock::now();
    Clock::time_point m_drawn{};
};

} // namespace host
