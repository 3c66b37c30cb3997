#include "Placement.h"

#include "host/failures/Joined.h"
#include "host/files/FileState.h"
#include "host/saving/InPlaceAppend.h"
#include "host/saving/InPlaceFile.h"
#include "host/saving/SafeOutput.h"
#include "host/workers/Record.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace host {

namespace {

const std::size_t longestNote = 1000;
const std::size_t longestChanges = 2000;

} // namespace

Placement::Placement(DocumentResult result, const struct stat& finished)
    : Placement(std::move(result), finished, {})
{}

Placement::Placement(DocumentResult result, const struct stat& before, std::string update)
    : m_result(std::move(result)), m_file(before), m_update(std::move(update))
{
    m_result.note.resize(std::min(m_result.note.size(), longestNote));
    if (m_result.viewBefore.size() + m_result.viewAfter.size() + m_result.changes.size() > longestChanges)
        m_result.viewBefore = m_result.viewAfter = m_result.changes = {};
}

std::string Placement::toRecord() const
{
    return RecordWriter()
        .add(static_cast<std::int64_t>(m_file.st_dev))
        .add(static_cast<std::int64_t>(m_file.st_ino))
        .add(m_file.st_size)
        .add(m_file.st_mtim.tv_sec)
        .add(m_file.st_mtim.tv_nsec)
        .add(m_result.toRecord())
        .add(m_update)
        .bytes();
}

std::optional<Placement> Placement::fromRecord(const std::string& record)
{
    RecordReader reader(record);
    struct stat file = {};
    file.st_dev = static_cast<dev_t>(reader.number());
    file.st_ino = static_cast<ino_t>(reader.number());
    file.st_size = reader.number();
    file.st_mtim.tv_sec = reader.number();
    file.st_mtim.tv_nsec = reader.number();
    const auto result = DocumentResult::fromRecord(reader.text());
    std::string update = reader.text();
    return reader.complete() && result ? std::optional(Placement(*result, file, std::move(update)))
                                       : std::nullopt;
}

std::optional<DocumentResult> Placement::settle(const std::string& target, const Failure& why,
                                                bool flush) const
{
    return m_update.empty() ? settleRename(target, why, flush) : settleAppend(target, why);
}

std::optional<DocumentResult> Placement::settleRename(const std::string& target, const Failure& why,
                                                      bool flush) const
{
    struct stat now;
    if (stat(target.c_str(), &now) != 0 || !isSameState(now, m_file))
        return std::nullopt;
    const bool flushed = !flush || SafeOutput::flushPlaced(target);
    return placed(why, flushed ? "" : "it may not survive a power failure");
}

std::optional<DocumentResult> Placement::settleAppend(const std::string& target, const Failure& why) const
{
    const InPlaceFile file(target);
    if (file.get() < 0)
        return DocumentResult::failed(
            {why.code, why.text + "; what became of it cannot be told: " + systemError(errno)});
    if (!isSameFile(file.status(), m_file))
        return std::nullopt; // another program has replaced it since
    if (lockDocument(file.get()) == DocumentLock::Held)
        return DocumentResult::failed({why.code, why.text + "; " + documentLocked.text});
    const InPlaceAppend::Outcome outcome = InPlaceAppend(file, m_file, m_update).settle(why);
    if (!outcome.aftermath.empty())
        return DocumentResult::failed({why.code, why.text + "; " + outcome.aftermath});
    if (!outcome.isAppended())
        return std::nullopt;
    DocumentResult result = placed(why, outcome.note);
    if (!m_result.stateBefore.empty()) // there is a report
        result.outputState = result.fileState = stateOf(target);
    return result;
}

DocumentResult Placement::placed(const Failure& why, const std::string& note) const
{
    DocumentResult result = m_result;
    result.checksumUnfinished.clear();
    result.note = joined(joined(result.note, "it is in place, but then: " + why.text), note);
    return result;
}

} // namespace host
