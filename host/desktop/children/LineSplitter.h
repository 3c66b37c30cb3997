#pragma once

#include <QByteArray>

#include <optional>

namespace host::desktop {

/// Takes bytes as they come and gives whole lines.
class LineSplitter
{
public:
    /// Of a line, its line feed included.
    static constexpr int longestLine = 1 << 20;

    void add(const QByteArray& bytes) { m_bytes += bytes; }
    /// The next line without its line feed; nothing until it has come whole.
    std::optional<QByteArray> next();
    /// Whether the line under way is longer than any may be.
    bool isTooLong() const { return m_isTooLong; }
    /// How much waits to be read.
    int waiting() const { return m_bytes.size() - m_begin; }

private:
    QByteArray m_bytes;
    int m_begin = 0;
    bool m_isTooLong = false;
};

} // namespace host::desktop
