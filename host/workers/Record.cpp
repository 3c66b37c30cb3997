#include "Record.h"

#include <cstring>

namespace host {

RecordWriter& RecordWriter::add(std::int64_t number)
{
    m_bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
    return *this;
}

RecordWriter& RecordWriter::add(std::string_view bytes)
{
    add(static_cast<std::int64_t>(bytes.size()));
    m_bytes += bytes;
    return *this;
}

bool RecordReader::take(void* into, std::size_t size)
{
    m_fits = m_fits && m_rest.size() >= size;
    if (!m_fits)
        return false;
    std::memcpy(into, m_rest.data(), size);
    m_rest.remove_prefix(size);
    return true;
}

std::int64_t RecordReader::number()
{
    std::int64_t number = 0;
    return take(&number, sizeof number) ? number : 0;
}

std::string RecordReader::text()
{
    const std::int64_t size = number();
    m_fits = m_fits && size >= 0 && static_cast<std::uint64_t>(size) <= m_rest.size();
    std::string text(m_fits ? static_cast<std::size_t>(size) : 0, '\0');
    take(text.data(), text.size());
    return text;
}

} // namespace host
