#include "Progress.h"

#include "host/files/FileDescriptor.h"

#include <sys/ioctl.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace host {

namespace {

const std::chrono::milliseconds pause(100);
const std::size_t barWidth = 24;
const std::string clearLine = "\r\x1b[K";

std::size_t widthOf(int descriptor)
{
    winsize size{};
    return ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

std::string clockText(double seconds)
{
    const long whole = std::lround(std::min(seconds, 359999.0));
    char text[32];
    if (whole >= 3600)
        std::snprintf(text, sizeof text, "%ld:%02ld:%02ld", whole / 3600, whole / 60 % 60, whole % 60);
    else
        std::snprintf(text, sizeof text, "%ld:%02ld", whole / 60, whole % 60);
    return text;
}

} // namespace

Progress::Progress(int descriptor, std::size_t total) : m_descriptor(descriptor), m_total(total)
{
    draw();
}

Progress::~Progress()
{
    writeAll(m_descriptor, clearLine.data(), clearLine.size());
}

void Progress::advance(bool failed)
{
    ++m_done;
    m_failed += failed ? 1 : 0;
    if (Clock::now() - m_drawn >= pause)
        draw();
}

void Progress::draw()
{
    m_drawn = Clock::now();
    const double seconds = std::chrono::duration<double>(m_drawn - m_begin).count();
    // One column stays free: some terminals wrap as soon as the last one is used.
    const std::string text =
        clearLine + lineFor(m_done, m_failed, m_total, seconds, widthOf(m_descriptor) - 1);
    writeAll(m_descriptor, text.data(), text.size());
}

std::string Progress::lineFor(std::size_t done, std::size_t failed, std::size_t total, double seconds,
                              std::size_t width)
{
    const std::size_t filled = total > 0 ? barWidth * done / total : barWidth;
    const double rate = seconds > 0 ? static_cast<double>(done) / seconds : 0;
    std::string line = "[" + std::string(filled, '#') + std::string(barWidth - filled, '.') + "] " +
                       std::to_string(done) + "/" + std::to_string(total);
    if (failed > 0)
        line += ", " + std::to_string(failed) + " failed";
    if (done > 0) {
        char text[32];
        std::snprintf(text, sizeof text, "  %.*f/s", rate < 10 ? 1 : 0, rate);
        line += text + ("  " + clockText(static_cast<double>(total - done) / rate) + " left");
    }
    return line.substr(0, width);
}

} // namespace host
