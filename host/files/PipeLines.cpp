#include "PipeLines.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace host {

std::optional<std::string> PipeLines::next()
{
    while (!m_bytes.empty() || fill()) {
        const std::size_t end = std::min(m_bytes.find('\n'), m_bytes.size());
        m_line.append(m_bytes, 0, std::min(end, m_longest - m_line.size()));
        const bool isWhole = end < m_bytes.size();
        m_bytes.erase(0, end + (isWhole ? 1 : 0));
        if (isWhole)
            return std::exchange(m_line, {});
    }
    return std::nullopt;
}

/// Asks before it reads: whoever made the pipe may not expect it to become one that does not wait.
bool PipeLines::fill()
{
    pollfd waiting{m_descriptor, POLLIN, 0};
    if (m_isAtEnd || poll(&waiting, 1, 0) <= 0)
        return false;
    std::array<char, 256> bytes;
    const ssize_t count = read(m_descriptor, bytes.data(), bytes.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return false;
    m_isAtEnd = count <= 0;
    m_bytes.assign(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return !m_isAtEnd;
}

} // namespace host
