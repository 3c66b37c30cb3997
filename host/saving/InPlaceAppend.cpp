#include "InPlaceAppend.h"

#include "InPlaceFile.h"
#include "host/failures/Joined.h"
#include "host/files/FileState.h"

#include "pdflibrary/ErrorCodes.h"

#include <unistd.h>

#include <cerrno>

namespace host {

namespace {

Failure changedMeanwhile()
{
    return Failure::ofLibrary(int(engine::ErrorCode::SourceChanged));
}

Failure cannotWrite()
{
    return Failure::ofSystem(errno, ReasonCode::WriteFailed);
}

/// Why the document does not count as this object left it.
Failure notAsLeft()
{
    return errno == 0 ? changedMeanwhile() : Failure::ofSystem(errno, ReasonCode::ReadFailed);
}

const char overlooked[] = "bytes that viewers pass over are left behind its end";

} // namespace

Failure InPlaceAppend::Outcome::whole() const
{
    return {problem.code, joined(problem.text, aftermath)};
}

InPlaceAppend::InPlaceAppend(const InPlaceFile& file, const struct stat& before, std::string_view update)
    : m_file(file), m_before(before), m_update(update), m_begin(withoutLastLines(update)), m_left(before)
{}

std::string_view InPlaceAppend::withoutLastLines(std::string_view update)
{
    return update.substr(0, update.rfind("startxref"));
}

InPlaceAppend::Outcome InPlaceAppend::perform()
{
    if (!isAsLeft())
        return {notAsLeft()};
    if (!write(m_begin))
        return failed(cannotWrite());
    if (!isAsLeft())
        return failed(notAsLeft());
    if (m_left->st_size != endOf(m_begin) || !isUntouched())
        return failed(changedMeanwhile());
    if (!write(m_update.substr(m_begin.size())))
        return failed(cannotWrite());
    return {};
}

bool InPlaceAppend::write(std::string_view bytes)
{
    if (!m_file.append(bytes)) {
        const int problem = errno;
        look();
        errno = problem;
        return false;
    }
    return look() && m_file.flush();
}

bool InPlaceAppend::look()
{
    struct stat now;
    const bool seen = fstat(m_file.get(), &now) == 0;
    m_left = seen ? std::optional(now) : std::nullopt;
    return seen;
}

bool InPlaceAppend::isAsLeft() const
{
    return isAsRead(m_file.get(), m_file.path(), *m_left);
}

/// By the time of the last change of status (ctime): a program can set the time of change back,
/// but not that one.
bool InPlaceAppend::isUntouched() const
{
    struct stat now;
    return fstat(m_file.get(), &now) == 0 && now.st_ctim.tv_sec == m_left->st_ctim.tv_sec &&
           now.st_ctim.tv_nsec == m_left->st_ctim.tv_nsec;
}

/// Wherever its path leads by now: being moved changes a file's status, but not what stands in it.
bool InPlaceAppend::isFileAsLeft() const
{
    if (!m_left)
        return true;
    struct stat now;
    struct stat named;
    if (fstat(m_file.get(), &now) != 0 || !isSameState(now, *m_left))
        return false;
    const bool isMoved = stat(m_file.path().c_str(), &named) != 0 || !isSameFile(named, now);
    return isMoved || isUntouched();
}

/// What another program has left of the update in the document, in words.
std::string InPlaceAppend::leftOver() const
{
    struct stat now;
    if (stat(m_file.path().c_str(), &now) != 0 || !isSameFile(now, m_before))
        return {};
    const auto bytes = behindDocument();
    return bytes && bytes->starts_with(m_begin) ? overlooked : "";
}

InPlaceAppend::Outcome InPlaceAppend::settle(const Failure& why)
{
    m_left.reset(); // nobody can tell how the other process left it
    if (!isAll(found()))
        return failed(why);
    const std::string problem = m_file.flush() ? "" : systemError(errno);
    return {{}, {}, problem.empty() ? "" : "it may not survive a power failure: " + problem};
}

InPlaceAppend::Outcome InPlaceAppend::failed(const Failure& why) const
{
    const Found found = this->found();
    if (!found.problem.empty())
        return {why, "what stands behind its end cannot be read: " + found.problem};
    if (!found.isOfUpdate || !isFileAsLeft()) {
        const bool isTold = why.code == ReasonCode::ChangedMeanwhile;
        return {why, joined(isTold ? "" : changedMeanwhile().text, leftOver())};
    }
    return isNothing(found) ? Outcome{why} : cutBack(found, why);
}

/// The last lines go first, and are gone on the disk too before the rest goes.
InPlaceAppend::Outcome InPlaceAppend::cutBack(const Found& found, const Failure& why) const
{
    bool isFlushed = found.size <= m_begin.size() || (m_file.cut(endOf(m_begin)) && m_file.flush());
    if (m_file.cut(m_before.st_size)) {
        const std::string lost = m_file.setTime(m_before.st_mtim) ? "" : "its time could not be restored";
        isFlushed = m_file.flush() && isFlushed;
        return {why, joined(lost, isFlushed ? "" : "after a power failure it may open as was asked")};
    }
    const std::string problem = "it cannot be cut back: " + systemError(errno);
    if (isAll(this->found()))
        return {{}, {}, "it may not survive a power failure: " + why.text + "; " + problem};
    return {why, overlooked + (", for " + problem)};
}

InPlaceAppend::Found InPlaceAppend::found() const
{
    errno = 0;
    const auto bytes = behindDocument();
    if (!bytes)
        return {false, 0, errno == 0 ? "" : systemError(errno)};
    return {m_update.starts_with(*bytes), bytes->size(), {}};
}

/// What stands behind the document; of more than the update, one byte more. Nothing when the document is
/// another one, and, with errno set, when it cannot be read.
std::optional<std::string> InPlaceAppend::behindDocument() const
{
    struct stat now;
    if (fstat(m_file.get(), &now) != 0 || !isSameFile(now, m_before) || now.st_size < m_before.st_size)
        return std::nullopt;
    std::string bytes(m_update.size() + 1, '\0');
    std::size_t size = 0;
    for (ssize_t count = 1; count != 0 && size < bytes.size();) {
        count = pread(m_file.get(), bytes.data() + size, bytes.size() - size,
                      m_before.st_size + static_cast<off_t>(size));
        if (count < 0 && errno != EINTR)
            return std::nullopt;
        size += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    bytes.resize(size);
    return bytes;
}

std::int64_t InPlaceAppend::endOf(std::string_view part) const
{
    return m_before.st_size + static_cast<std::int64_t>(part.size());
}

} // namespace host
