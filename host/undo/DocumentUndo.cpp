#include "DocumentUndo.h"

#include "host/files/Checksum.h"
#include "host/plan/FileState.h"
#include "host/saving/FileAttributes.h"
#include "host/saving/FileCopy.h"
#include "host/saving/SafeOutput.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <stdexcept>
#include <string_view>

namespace host {

namespace {

const Failure changedMeanwhile{ReasonCode::ChangedMeanwhile, "another program changed it meanwhile"};
const Failure olderStays{ReasonCode::ChangedSince,
                         "an older change stays: another program changed it between the two"};

Failure cannotRead(int error)
{
    return Failure::ofSystem(error, ReasonCode::ReadFailed);
}

/// Whether the bytes from `begin` to the end are what ends a PDF document: a report that claims too much must
/// not cut other files down.
bool endsAsUpdate(int file, std::int64_t begin, std::int64_t end)
{
    std::array<char, 32> bytes;
    const auto size = static_cast<std::size_t>(std::min<std::int64_t>(end - begin, bytes.size()));
    const ssize_t count = pread(file, bytes.data(), size, end - static_cast<std::int64_t>(size));
    return count == static_cast<ssize_t>(size) &&
           std::string_view(bytes.data(), size).find("%%EOF") != std::string_view::npos;
}

std::int64_t sizeBefore(const AppendedUpdate& update)
{
    return FileState::fromText(update.before)->size;
}

bool setTime(const std::string& path, const struct timespec& time)
{
    const std::array<struct timespec, 2> times{timespec{0, UTIME_OMIT}, time};
    return utimensat(AT_FDCWD, path.c_str(), times.data(), AT_SYMLINK_NOFOLLOW) == 0;
}

} // namespace

UndoResult DocumentUndo::perform(bool dryRun)
{
    if (const Failure problem = open(); problem)
        return {UndoResult::LeftAlone, problem};
    follow();
    if (m_cuts.empty() && !m_isBefore)
        return {UndoResult::LeftAlone,
                {ReasonCode::ChangedSince, "it is no longer as the report says, " +
                                               m_document.updates.front().after + ", but " +
                                               stateOf(m_present)}};
    UndoResult result{m_undoneAlready ? UndoResult::UndoneAlready : UndoResult::NothingDone};
    if (!m_cuts.empty()) {
        if (const Failure problem = whyNotCut(); problem)
            return {UndoResult::LeftAlone, problem};
        result = dryRun ? UndoResult{UndoResult::Undone} : cut();
    }
    if (result.kind != UndoResult::LeftAlone && m_olderStays)
        result.reason = olderStays;
    return result;
}

/// The path is one that links were resolved in, so a link at its end is not the document.
Failure DocumentUndo::open()
{
    struct stat named;
    if (lstat(m_document.path.c_str(), &named) != 0)
        return cannotRead(errno);
    if (!S_ISREG(named.st_mode))
        return cannotRead(notARegularFile);
    m_file = openRegularFile(m_document.path);
    if (!m_file.isOpen() || fstat(m_file.get(), &m_present) != 0)
        return cannotRead(errno);
    return isSameState(named, m_present) ? Failure() : changedMeanwhile;
}

/// Goes back from state to state. What is newer than the state that the document is in has been undone.
void DocumentUndo::follow()
{
    std::string state = stateOf(m_present);
    for (const AppendedUpdate& update : m_document.updates) {
        m_olderStays = !m_cuts.empty() || m_isBefore;
        if (state == update.after) {
            m_cuts.push_back(&update);
            state = update.before;
            m_olderStays = false;
        } else if (state == update.before) {
            m_isBefore = true;
            m_undoneAlready = m_undoneAlready || !update.begun;
            m_olderStays = false;
        }
    }
}

/// Why the updates must not be cut off.
Failure DocumentUndo::whyNotCut() const
{
    for (const AppendedUpdate* update : m_cuts) {
        const std::string checksum = checksumOf(m_file.get(), sizeBefore(*update));
        if (checksum.empty())
            return errno != 0 ? cannotRead(errno) : changedMeanwhile;
        if (checksum != update->checksum)
            return {ReasonCode::ChangedSince, "what stands before the update is not what stood there"};
    }
    return endsAsUpdate(m_file.get(), sizeBefore(*m_cuts.back()), m_present.st_size)
               ? Failure()
               : Failure{ReasonCode::BadReport, "what the report calls an update is none"};
}

UndoResult DocumentUndo::cut() const
{
    const FileState before = *FileState::fromText(m_cuts.back()->before);
    const std::string temporary = SafeOutput::temporaryNameFor(m_document.path);
    SafeOutput output(m_document.path, temporary);
    const auto size = static_cast<std::uint64_t>(before.size);
    if (const Failure problem = copyBegin(m_file.get(), size, temporary); problem)
        return {UndoResult::LeftAlone, problem};
    const bool timeKept = setTime(temporary, before.time);
    const auto beforeRename = [this](const struct stat&, const std::string&) {
        struct stat now;
        if (lstat(m_document.path.c_str(), &now) != 0 || !isSameState(now, m_present))
            throw DocumentError(changedMeanwhile);
    };
    try {
        const SafeOutput::Outcome outcome =
            output.commit(FileAttributes(m_file.get(), FileAttributes::Take::All), true, beforeRename);
        if (outcome.problem)
            return {UndoResult::LeftAlone, outcome.problem};
        return {UndoResult::Undone, {}, outcome.note + (timeKept ? "" : "its time could not be restored")};
    } catch (const std::runtime_error&) {
        return {UndoResult::LeftAlone, Failure::ofException()};
    }
}

} // namespace host
