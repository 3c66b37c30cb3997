#include "SafeOutput.h"

#include "FileAttributes.h"
#include "host/failures/Joined.h"
#include "host/files/DiskFlush.h"
#include "host/files/FileDescriptor.h"
#include "host/files/FileState.h"

#include "pdflibrary/ErrorCodes.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>
#include <regex>
#include <string_view>
#include <utility>

namespace host {

namespace {

const std::string_view prefix = ".quintar-"; // the library writes files of such names as they are
const std::time_t strangerAge = std::time_t{24} * 60 * 60;

/// Process numbers mean something only on one machine since its start and in one container, so names carry
/// this too: ".quintar-<place>-<process>-<count>".
std::string placeOfProcesses()
{
    std::string bootId;
    const FileDescriptor file(::open("/proc/sys/kernel/random/boot_id", O_RDONLY | O_CLOEXEC));
    readAll(file.get(), bootId, 4096);
    char processes[64] = "";
    const ssize_t length = readlink("/proc/self/ns/pid", processes, sizeof processes);
    bootId.append(processes, length > 0 ? static_cast<std::size_t>(length) : 0);
    char text[20];
    std::snprintf(text, sizeof text, "%016zx", std::hash<std::string>()(bootId));
    return text;
}

const std::string& place()
{
    static const std::string text = placeOfProcesses();
    return text;
}

/// The process a temporary name belongs to, or 0 when it belongs to another machine or container.
pid_t ownerOf(std::string_view name)
{
    const std::string ours = std::string(prefix) + place() + "-";
    pid_t owner = 0;
    if (name.substr(0, ours.size()) == ours)
        std::from_chars(name.data() + ours.size(), name.data() + name.size(), owner);
    return owner;
}

/// Whether it is a name of this program or of the library; other files may begin so and be somebody's.
bool isTemporaryName(const char* name)
{
    if (!std::string_view(name).starts_with(prefix))
        return false;
    static const std::regex form("\\.quintar-[0-9a-f]{16}(-[0-9]+-[0-9]+|\\.tmp)"); // takes long to make
    return std::regex_match(name, form);
}

bool isLeftOver(int folder, const char* name)
{
    struct stat status;
    if (fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(status.st_mode))
        return false;
    if (const pid_t owner = ownerOf(name); owner > 0)
        return kill(owner, 0) != 0 && errno == ESRCH;
    return std::time(nullptr) - status.st_mtime > strangerAge;
}

std::string inWords(const std::vector<std::string>& notKept)
{
    std::string text = notKept.empty() ? "" : "could not be kept: ";
    for (std::size_t index = 0; index < notKept.size(); ++index)
        text += (index > 0 ? ", " : "") + notKept[index];
    return text;
}

} // namespace

SafeOutput::SafeOutput(std::string target, std::string temporary)
    : m_target(std::move(target)), m_temporary(std::move(temporary))
{}

SafeOutput::~SafeOutput()
{
    if (!m_committed && m_kept.empty())
        removeTemporary(m_temporary);
}

Failure SafeOutput::makeFolder(const std::string& folder)
{
    struct stat status;
    if (stat(folder.c_str(), &status) == 0)
        return S_ISDIR(status.st_mode) ? Failure()
                                       : Failure{ReasonCode::WriteFailed, folder + " is not a folder"};
    if (Failure problem = makeFolder(folderOf(folder)); problem)
        return problem;
    if (mkdir(folder.c_str(), 0777) == 0)
        return {};
    const int problem = errno;
    if (stat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode))
        return {}; // another worker has made it
    if (lstat(folder.c_str(), &status) == 0 && S_ISLNK(status.st_mode))
        return {ReasonCode::WriteFailed, folder + " is a symbolic link that leads nowhere"};
    return Failure::ofSystem(problem, ReasonCode::WriteFailed, "the folder " + folder + " cannot be made: ");
}

std::string SafeOutput::folderOf(const std::string& file)
{
    const std::size_t slash = file.find_last_of('/');
    return slash == std::string::npos ? "." : file.substr(0, slash == 0 ? 1 : slash);
}

SafeOutput::Outcome SafeOutput::commit(const FileAttributes& attributes, bool flush,
                                       const BeforeRename& beforeRename)
{
    const auto failed = [this] {
        return Outcome{Failure::ofSystem(errno, ReasonCode::WriteFailed, m_target + " cannot be written: "),
                       {}};
    };
    std::vector<std::string> notKept;
    const FileDescriptor file(::open(m_temporary.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW));
    struct stat finished;
    if (!file.isOpen() || !attributes.giveTo(file.get(), notKept) || (flush && !flushFile(file.get())) ||
        fstat(file.get(), &finished) != 0)
        return failed();
    std::string note = inWords(notKept);
    if (beforeRename)
        beforeRename(finished, note);
    if (!putInPlace(file.get())) {
        if (errno != 0)
            return failed();
        const Failure changed = Failure::ofLibrary(int(engine::ErrorCode::SourceChanged));
        return {{changed.code, joined(changed.text, aboutKept())}, {}};
    }
    m_committed = true;
    note = joined(note, aboutKept());
    if (flush && !flushFolder(folderOf(m_target), file.get()))
        note = joined(note, "it may not survive a power failure: its folder cannot be flushed: " +
                                systemError(errno));
    return {{}, note};
}

/// \returns false with errno set on failure, and with 0 when another program has changed the target.
bool SafeOutput::putInPlace(int file)
{
    const auto isDone = [&](bool told) { return told || isAt(m_target, file); };
    if (!m_replaced)
        return isDone(rename(m_temporary.c_str(), m_target.c_str()) == 0);
    if (!isDone(exchange())) {
        const bool isUnknown = errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
        return isUnknown && isDone(rename(m_temporary.c_str(), m_target.c_str()) == 0);
    }
    struct stat replaced;
    const bool isAsKnown = lstat(m_temporary.c_str(), &replaced) == 0 && isSameState(replaced, *m_replaced);
    if (isAsKnown) {
        removeTemporary(m_temporary);
        return true;
    }
    const bool isBack = giveBack(file);
    errno = 0;
    return !isBack;
}

/// Puts what another program has written back in its place. \returns false where the new file has stayed there.
bool SafeOutput::giveBack(int file)
{
    const bool isExchanged = exchange();
    if (isExchanged && !isKnownElsewhere(m_temporary, file))
        return true;
    const bool isBack = isExchanged || isKnownElsewhere(m_target, file); // somebody may have taken it away
    if (!isExchanged &&
        renameat2(AT_FDCWD, m_temporary.c_str(), AT_FDCWD, m_target.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    keep();
    return isBack;
}

/// Under a name that nobody takes for a leftover.
void SafeOutput::keep()
{
    const std::string name = m_temporary.substr(m_temporary.rfind('/') + 1);
    const std::string kept = folderOf(m_temporary) + "/" + name.substr(1) + ".kept";
    const bool isRenamed =
        renameat2(AT_FDCWD, m_temporary.c_str(), AT_FDCWD, kept.c_str(), RENAME_NOREPLACE) == 0;
    m_kept = isRenamed ? kept : m_temporary;
    struct stat status;
    if (!isRenamed && lstat(m_temporary.c_str(), &status) != 0)
        m_kept.clear(); // there is nothing
}

std::string SafeOutput::aboutKept() const
{
    return m_kept.empty() ? "" : "what another program wrote there at the last moment is kept as " + m_kept;
}

bool SafeOutput::exchange() const
{
    return renameat2(AT_FDCWD, m_temporary.c_str(), AT_FDCWD, m_target.c_str(), RENAME_EXCHANGE) == 0;
}

/// Whether the path leads to the file: a rename over a network can be reported as failed although it was done.
/// errno stays.
bool SafeOutput::isAt(const std::string& path, int file)
{
    const int problem = errno;
    struct stat written;
    struct stat there;
    const bool isThere =
        fstat(file, &written) == 0 && stat(path.c_str(), &there) == 0 && isSameFile(written, there);
    errno = problem;
    return isThere;
}

/// Whether the path does not lead to the file; false as well when that cannot be told.
bool SafeOutput::isKnownElsewhere(const std::string& path, int file)
{
    struct stat written;
    struct stat there;
    if (fstat(file, &written) != 0)
        return false;
    return stat(path.c_str(), &there) == 0 ? !isSameFile(written, there) : errno == ENOENT;
}

bool SafeOutput::flushPlaced(const std::string& target)
{
    const FileDescriptor file = openRegularFile(target);
    return file.isOpen() && flushFolder(folderOf(target), file.get());
}

std::string SafeOutput::temporaryNameFor(const std::string& target)
{
    static unsigned long count = 0;
    return folderOf(target) + "/" + std::string(prefix) + place() + "-" + std::to_string(getpid()) + "-" +
           std::to_string(++count);
}

void SafeOutput::removeTemporary(const std::string& temporary)
{
    unlink(temporary.c_str());
}

void SafeOutput::removeLeftovers(const std::string& folder)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
    if (listing == nullptr)
        return;
    const int directory = dirfd(listing.get());
    while (const dirent* entry = readdir(listing.get()))
        if (isTemporaryName(entry->d_name) && isLeftOver(directory, entry->d_name))
            unlinkat(directory, entry->d_name, 0);
}

} // namespace host
