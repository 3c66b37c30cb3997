#include "LineSplitter.h"

namespace host::desktop {

std::optional<QByteArray> LineSplitter::next()
{
    const int end = m_bytes.indexOf('\n', m_begin);
    m_isTooLong = (end >= 0 ? end - m_begin + 1 : waiting()) > longestLine;
    if (end >= 0 && !m_isTooLong) {
        const QByteArray line = m_bytes.mid(m_begin, end - m_begin);
        m_begin = end + 1;
        return line;
    }
    m_bytes.remove(0, m_begin);
    m_begin = 0;
    return std::nullopt;
}

} // namespace host::desktop
