#include "InPlaceAppend.h"

#include "InPlaceFile.h"
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

} // namespace

Failure InPlaceAppend::Outcome::whole() const
{
    return {problem.code, problem.text + (aftermath.empty() ? "" : "; ") + aftermath};
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
    if (m_left->st_size != endOf(m_begin))
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

/// Wherever its path leads by now.
bool InPlaceAppend::isFileAsLeft() const
{
    struct stat now;
    return !m_left || (fstat(m_file.get(), &now) == 0 && isSameState(now, *m_left));
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
    if (found.problem != 0)
        return {why, "bytes that viewers pass over may be left behind its end, for it cannot be looked at: " +
                         systemError(found.problem)};
    if (!found.isOfUpdate || !isFileAsLeft())
        return {why, why.code == ReasonCode::ChangedMeanwhile ? "" : changedMeanwhile().text};
    return isNothing(found) ? Outcome{why} : cutBack(found, why);
}

/// The last lines go first, and are gone on the disk too before the rest goes.
InPlaceAppend::Outcome InPlaceAppend::cutBack(const Found& found, const Failure& why) const
{
    if (found.size > m_begin.size() && m_file.cut(endOf(m_begin)))
        m_file.flush();
    if (m_file.cut(m_before.st_size)) {
        m_file.setTime(m_before.st_mtim);
        m_file.flush();
        return {why};
    }
    const std::string problem = "it cannot be cut back: " + systemError(errno);
    if (isAll(this->found()))
        return {{}, {}, "it may not survive a power failure: " + why.text + "; " + problem};
    return {why, "bytes that viewers pass over are left behind its end, for " + problem};
}

InPlaceAppend::Found InPlaceAppend::found() const
{
    errno = 0;
    const auto bytes = behindDocument();
    if (!bytes)
        return {errno, false, 0};
    return {0, m_update.starts_with(*bytes), bytes->size()};
}

/// No more than it takes to know that it is not the update. Nothing when the document is another one, and, with errno
/// set, when it cannot be read.
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
