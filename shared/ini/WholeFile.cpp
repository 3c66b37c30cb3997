#include "WholeFile.h"

#include <QRandomGenerator>

#include <fcntl.h>
#include <linux/limits.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace wholefile {

namespace {

const int mostLinks = 40; // as the kernel has it
const int mostNames = 100;
const char accessList[] = "system.posix_acl_access";
const long nanosecondsPerSecond = 1000000000;
const long nanosecondsPerMillisecond = 1000000;

class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor()
    {
        if (isOpen())
            ::close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }

private:
    int m_number;
};

bool readAll(int file, QByteArray& bytes, qint64 limit)
{
    char chunk[1 << 16];
    for (;;) {
        const ssize_t count = ::read(file, chunk, sizeof chunk);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        if (bytes.size() + count > limit) {
            errno = EFBIG;
            return false;
        }
        bytes.append(chunk, static_cast<int>(count));
    }
}

bool writeAll(int file, const QByteArray& bytes)
{
    for (int at = 0; at < bytes.size();) {
        const ssize_t count =
            ::write(file, bytes.constData() + at, static_cast<std::size_t>(bytes.size() - at));
        if (count < 0 && errno != EINTR)
            return false;
        at += count > 0 ? static_cast<int>(count) : 0;
    }
    return true;
}

bool saysNone(int error)
{
    return error == ENODATA || error == ENOTSUP;
}

/// Gives the new file the access list of the old one, or none: folders give their new files lists too.
bool giveAccessList(int file, const QByteArray& path)
{
    char list[XATTR_SIZE_MAX];
    const ssize_t size = getxattr(path.constData(), accessList, list, sizeof list);
    if (size > 0)
        return fsetxattr(file, accessList, list, static_cast<std::size_t>(size), 0) == 0;
    const bool hasNone = size == 0 || saysNone(errno);
    return hasNone && (fremovexattr(file, accessList) == 0 || saysNone(errno));
}

/// What was granted to an owner or a group that the new file cannot have is granted to no other. Without the
/// right access list only the owner's bits are sure: the group's may be a list's mask, and a list may keep
/// someone out whom the others' bits let in.
bool giveAttributes(int file, const QByteArray& path, const struct stat& like)
{
    mode_t mode = like.st_mode & 07777;
    if (fchown(file, like.st_uid, like.st_gid) != 0) {
        mode &= 0777;
        if (fchown(file, static_cast<uid_t>(-1), like.st_gid) != 0)
            mode &= 0707;
    }
    return fchmod(file, giveAccessList(file, path) ? mode : mode & 0700) == 0;
}

/// QSettings takes a file of the same size and the same millisecond for the one that it knows.
void makeNewer(int file, const struct stat& than)
{
    struct stat now = {};
    if (fstat(file, &now) != 0 || now.st_mtim.tv_sec > than.st_mtim.tv_sec + 1 ||
        than.st_mtim.tv_sec > now.st_mtim.tv_sec + 1)
        return;
    const auto milliseconds = [](const timespec& time) {
        return time.tv_sec * 1000 + time.tv_nsec / nanosecondsPerMillisecond;
    };
    if (milliseconds(now.st_mtim) > milliseconds(than.st_mtim))
        return;
    timespec next = than.st_mtim;
    next.tv_nsec += nanosecondsPerMillisecond;
    next.tv_sec += next.tv_nsec / nanosecondsPerSecond;
    next.tv_nsec %= nanosecondsPerSecond;
    const timespec times[] = {{0, UTIME_OMIT}, next};
    futimens(file, times);
}

/// A new file beside the path, whose name goes to `name`.
int makeBeside(const QByteArray& path, bool isPrivate, QByteArray& name)
{
    for (int attempt = 0; attempt < mostNames; ++attempt) {
        name =
            folderOf(path) + "/.settings-" + QByteArray::number(QRandomGenerator::global()->generate64(), 36);
        const int file = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                                isPrivate ? 0600 : 0666);
        if (file >= 0 || errno != EEXIST)
            return file;
    }
    return -1;
}

void flushFolder(const QByteArray& folder)
{
    const Descriptor directory(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.isOpen())
        fsync(directory.get());
}

/// A rename over a network can be reported as failed although it was done.
bool isInPlace(int file, const QByteArray& path)
{
    const int problem = errno;
    struct stat written = {};
    struct stat there = {};
    const bool inPlace = fstat(file, &written) == 0 && lstat(path.constData(), &there) == 0 &&
                         written.st_dev == there.st_dev && written.st_ino == there.st_ino;
    errno = problem;
    return inPlace;
}

bool writeAndRename(int file, const QByteArray& bytes, const QByteArray& name, const QByteArray& path,
                    const struct stat* old)
{
    if (!writeAll(file, bytes) || (old != nullptr && !giveAttributes(file, path, *old)))
        return false;
    if (old != nullptr)
        makeNewer(file, *old);
    return fsync(file) == 0 &&
           (std::rename(name.constData(), path.constData()) == 0 || isInPlace(file, path));
}

} // namespace

QString systemError(int number)
{
    QString text = QString::fromLocal8Bit(std::strerror(number));
    return text.left(1).toLower() + text.mid(1);
}

std::optional<QByteArray> read(const QByteArray& path, qint64 limit, QString& problem)
{
    const Descriptor file(::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    QByteArray bytes;
    if (!file.isOpen() || fstat(file.get(), &status) != 0)
        problem = systemError(errno);
    else if (!S_ISREG(status.st_mode))
        problem = S_ISDIR(status.st_mode) ? systemError(errno = EISDIR) : QString("not a regular file");
    else if (status.st_size <= limit ? readAll(file.get(), bytes, limit) : (errno = EFBIG, false))
        return bytes;
    else
        problem = errno == EFBIG ? QString("too large for a settings file") : systemError(errno);
    if (file.isOpen())
        errno = 0;
    return std::nullopt;
}

QString replace(const QByteArray& path, const QByteArray& bytes)
{
    struct stat old = {};
    const bool isThere = lstat(path.constData(), &old) == 0;
    const bool isFile = isThere && S_ISREG(old.st_mode);
    if (!isThere && errno != ENOENT)
        return systemError(errno);
    if (isThere && S_ISDIR(old.st_mode))
        return systemError(EISDIR);
    QByteArray name;
    const Descriptor file(makeBeside(path, isFile, name));
    if (!file.isOpen())
        return systemError(errno);
    if (!writeAndRename(file.get(), bytes, name, path, isFile ? &old : nullptr)) {
        const int problem = errno;
        unlink(name.constData());
        return systemError(problem);
    }
    flushFolder(folderOf(path));
    return {};
}

QByteArray behindLinks(QByteArray path)
{
    for (int links = 0; links < mostLinks; ++links) {
        char target[PATH_MAX];
        const ssize_t length = readlink(path.constData(), target, sizeof target);
        if (length < 0)
            return path;
        const QByteArray next(target, static_cast<int>(length));
        path = next.startsWith('/') ? next : folderOf(path) + "/" + next;
    }
    return {};
}

QByteArray folderOf(const QByteArray& path)
{
    const int slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : path.left(std::max(slash, 1));
}

} // namespace wholefile
