#include "LineReader.h"

#include "host/files/FileDescriptor.h"

#include <unistd.h>

#include <cerrno>
#include <stdexcept>

namespace host {

namespace {

const std::size_t readAtOnce = 64 << 10;

} // namespace

std::optional<std::string_view> LineReader::next()
{
    std::size_t end = m_waiting.find('\n', m_begin);
    while (end == std::string::npos) {
        m_waiting.erase(0, m_begin);
        m_begin = 0;
        const std::size_t searched = m_waiting.size();
        if (searched > m_longest)
            throw std::runtime_error("line " + std::to_string(m_number + 1) + " is too long");
        if (!readMore())
            return std::nullopt;
        end = m_waiting.find('\n', searched);
    }
    const std::string_view line = std::string_view(m_waiting).substr(m_begin, end + 1 - m_begin);
    m_begin = end + 1;
    ++m_number;
    return line;
}

bool LineReader::readMore()
{
    const std::size_t before = m_waiting.size();
    m_waiting.resize(before + readAtOnce);
    ssize_t count = -1;
    do
        count = ::read(m_file, m_waiting.data() + before, readAtOnce);
    while (count < 0 && errno == EINTR);
    if (count < 0)
        throw std::runtime_error(systemError(errno));
    m_waiting.resize(before + static_cast<std::size_t>(count));
    return count > 0;
}

} // namespace host
