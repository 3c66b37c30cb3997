#include "Placement.h"

#include "FileState.h"
#include "host/workers/Record.h"

#include <algorithm>
#include <utility>

namespace host {

namespace {

const std::size_t longestNote = 1000;
const std::size_t longestChanges = 2000;

} // namespace

Placement::Placement(DocumentResult result, const struct stat& finished)
    : m_result(std::move(result)), m_finished(finished)
{
    m_result.note.resize(std::min(m_result.note.size(), longestNote));
    if (m_result.viewBefore.size() + m_result.viewAfter.size() + m_result.changes.size() > longestChanges)
        m_result.viewBefore = m_result.viewAfter = m_result.changes = {};
}

std::string Placement::toRecord() const
{
    return RecordWriter()
        .add(static_cast<std::int64_t>(m_finished.st_dev))
        .add(static_cast<std::int64_t>(m_finished.st_ino))
        .add(m_finished.st_size)
        .add(m_finished.st_mtim.tv_sec)
        .add(m_finished.st_mtim.tv_nsec)
        .add(m_result.toRecord())
        .bytes();
}

std::optional<Placement> Placement::fromRecord(const std::string& record)
{
    RecordReader reader(record);
    struct stat finished = {};
    finished.st_dev = static_cast<dev_t>(reader.number());
    finished.st_ino = static_cast<ino_t>(reader.number());
    finished.st_size = reader.number();
    finished.st_mtim.tv_sec = reader.number();
    finished.st_mtim.tv_nsec = reader.number();
    const auto result = DocumentResult::fromRecord(reader.text());
    return reader.complete() && result ? std::optional(Placement(*result, finished)) : std::nullopt;
}

bool Placement::isAt(const std::string& target) const
{
    struct stat now;
    return stat(target.c_str(), &now) == 0 && isSameState(now, m_finished);
}

} // namespace host
