#include "DocumentUndo.h"

#include "ClaimedUpdate.h"
#include "host/failures/Joined.h"
#include "host/files/Checksum.h"
#include "host/files/DiskFlush.h"
#include "host/files/FileState.h"
#include "host/saving/DocumentLock.h"
#include "host/saving/FileAttributes.h"
#include "host/saving/FileCopy.h"
#include "host/saving/InPlaceFile.h"
#include "host/saving/SafeOutput.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <stdexcept>
#include <string_view>

namespace host {

namespace {

const Failure changedMeanwhile{ReasonCode::ChangedMeanwhile, "another program changed it meanwhile"};
const char timeLost[] = "its time could not be restored";
const Failure olderStays{ReasonCode::ChangedSince,
                         "an older change stays: another program changed it between the two"};

Failure cannotRead(int error)
{
    return Failure::ofSystem(error, ReasonCode::ReadFailed);
}

/// Why isAsRead() was false, by the errno that it left.
Failure notAsRead()
{
    return errno == 0 ? changedMeanwhile : cannotRead(errno);
}

/// Of an update that is appended where the document lies; there is no longer one.
const std::int64_t longestInPlace = 2048;

/// Whether the bytes are an update that was to be appended where the document lies, with its last lines or
/// without.
bool isUnfinished(const std::string& bytes, const std::string& checksum)
{
    const std::string_view keyword = "startxref\n";
    const std::size_t lastLines = std::min(bytes.rfind(keyword), bytes.size());
    std::string_view end = std::string_view(bytes).substr(lastLines);
    end.remove_prefix(std::min(end.find_first_not_of("0123456789", keyword.size()), end.size()));
    const bool isWhole = lastLines == bytes.size() || end == "\n%%EOF\n";
    return isWhole && checksumOf(std::string_view(bytes).substr(0, lastLines)) == checksum;
}

std::int64_t sizeOf(const std::string& state)
{
    return FileState::fromText(state)->size;
}

std::array<struct timespec, 2> changeTime(const FileState& state)
{
    return {timespec{0, UTIME_OMIT}, state.time};
}

} // namespace

/// Of a document that the run called failed no update need be there: whatever it is like now is left alone.
UndoResult DocumentUndo::perform(bool dryRun)
{
    UndoResult result = attempt(dryRun);
    const bool nothingDone = std::all_of(m_document.updates.begin(), m_document.updates.end(),
                                         [](const AppendedUpdate& each) { return each.failed; });
    return nothingDone && m_cuts.empty() ? UndoResult{UndoResult::NothingDone} : result;
}

UndoResult DocumentUndo::attempt(bool dryRun)
{
    if (const Failure problem = open(); problem)
        return {UndoResult::LeftAlone, problem};
    if (!follow(stateOf(m_present))) {
        m_cutOff = cutOff();
        if (m_cutOff == nullptr || !follow(m_cutOff->before))
            return {UndoResult::LeftAlone,
                    {ReasonCode::ChangedSince,
                     "it is no longer as the report says, " + expected() + ", but " + stateOf(m_present)}};
    }
    UndoResult result{m_undoneAlready ? UndoResult::UndoneAlready : UndoResult::NothingDone};
    if (!m_cuts.empty()) {
        if (const Failure problem = whyNotCut(); problem)
            return {UndoResult::LeftAlone, problem};
        result = dryRun ? UndoResult{UndoResult::Undone} : cut();
    } else if (m_cutOff != nullptr && !dryRun) {
        result.note = restoreTime();
    }
    if (result.kind != UndoResult::LeftAlone && m_olderStays)
        result.reason = olderStays;
    return result;
}

/// What the document would be like, in words.
std::string DocumentUndo::expected() const
{
    const AppendedUpdate& newest = m_document.updates.front();
    return newest.after.empty() ? newest.before + " and what the run was about to append" : newest.after;
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
/// \returns false when that is none of them.
bool DocumentUndo::follow(std::string state)
{
    for (const AppendedUpdate& update : m_document.updates) {
        m_olderStays = !m_cuts.empty() || m_isBefore;
        if (isAfter(update, state)) {
            m_cuts.push_back(&update);
            state = update.before;
            m_olderStays = false;
        } else if (state == update.before) {
            m_isBefore = true;
            m_undoneAlready = m_undoneAlready || !update.failed;
            m_olderStays = false;
        }
    }
    return !m_cuts.empty() || m_isBefore;
}

/// The update that somebody has cut off who was killed before the time was restored; null for none.
const AppendedUpdate* DocumentUndo::cutOff() const
{
    const auto found =
        std::find_if(m_document.updates.begin(), m_document.updates.end(), [this](const auto& update) {
            return m_present.st_size == sizeOf(update.before) &&
                   checksumOf(m_file.get(), m_present.st_size) == update.checksum;
        });
    return found == m_document.updates.end() ? nullptr : &*found;
}

bool DocumentUndo::isAfter(const AppendedUpdate& update, const std::string& state) const
{
    if (!update.after.empty())
        return state == update.after;
    const std::int64_t begin = sizeOf(update.before);
    const std::int64_t end = sizeOf(state);
    return begin < end && end - begin <= longestInPlace &&
           isUnfinished(ClaimedUpdate::bytesOf(m_file.get(), begin, end), update.unfinished);
}

/// Why the updates must not be cut off.
Failure DocumentUndo::whyNotCut() const
{
    for (const AppendedUpdate* update : m_cuts) {
        const std::string checksum = checksumOf(m_file.get(), sizeOf(update->before));
        if (checksum.empty())
            return errno != 0 ? cannotRead(errno) : changedMeanwhile;
        if (checksum != update->checksum)
            return {ReasonCode::ChangedSince, "what stands before the update is not what stood there"};
    }
    std::int64_t end = m_present.st_size;
    for (const AppendedUpdate* update : m_cuts) {
        const std::int64_t begin = sizeOf(update->before);
        const bool isKnown = update->after.empty(); // byte by byte
        if (!isKnown && !ClaimedUpdate(m_file.get(), begin, end).isOne())
            return {ReasonCode::BadReport, "what the report calls an update is none"};
        end = begin;
    }
    return {};
}

UndoResult DocumentUndo::cut() const
{
    if (lockDocument(m_file.get()) == DocumentLock::Held)
        return {UndoResult::LeftAlone, documentLocked};
    if (!isAsRead(m_file.get(), m_document.path, m_present))
        return {UndoResult::LeftAlone, notAsRead()};
    const FileState before = *FileState::fromText(m_cuts.back()->before);
    const InPlaceFile file(m_document.path);
    return file.isSuited() && isSameFile(file.status(), m_present) ? cutInPlace(file, before)
                                                                   : replace(before);
}

/// \returns a note, empty when all is well.
std::string DocumentUndo::restoreTime() const
{
    const bool restored =
        lockDocument(m_file.get()) != DocumentLock::Held &&
        isAsRead(m_file.get(), m_document.path, m_present) &&
        futimens(m_file.get(), changeTime(*FileState::fromText(m_cutOff->before)).data()) == 0;
    return restored ? "" : timeLost;
}

/// A file's size changes in one step, also when power fails.
UndoResult DocumentUndo::cutInPlace(const InPlaceFile& file, const FileState& before) const
{
    if (!file.cut(before.size))
        return {UndoResult::LeftAlone, Failure::ofSystem(errno, ReasonCode::WriteFailed)};
    UndoResult result{UndoResult::Undone};
    if (!file.setTime(before.time))
        result.note = timeLost;
    if (!flushFile(file.get()))
        result.note = joined(result.note, "it may not survive a power failure: " + systemError(errno));
    return result;
}

UndoResult DocumentUndo::replace(const FileState& before) const
{
    const std::string temporary = SafeOutput::temporaryNameFor(m_document.path);
    SafeOutput output(m_document.path, temporary);
    output.replaceOnly(m_present);
    const auto size = static_cast<std::uint64_t>(before.size);
    if (const Failure problem = copyBegin(m_file.get(), size, temporary); problem)
        return {UndoResult::LeftAlone, problem};
    const bool timeKept =
        utimensat(AT_FDCWD, temporary.c_str(), changeTime(before).data(), AT_SYMLINK_NOFOLLOW) == 0;
    const auto beforeRename = [this](const struct stat&, const std::string&) {
        if (!isAsRead(m_file.get(), m_document.path, m_present))
            throw DocumentError(notAsRead());
    };
    try {
        const SafeOutput::Outcome outcome =
            output.commit(FileAttributes(m_file.get(), FileAttributes::Take::All), true, beforeRename);
        if (outcome.problem)
            return {UndoResult::LeftAlone, outcome.problem};
        return {UndoResult::Undone, {}, joined(outcome.note, timeKept ? "" : timeLost)};
    } catch (const std::runtime_error&) {
        return {UndoResult::LeftAlone, Failure::ofException()};
    }
}

} // namespace host
