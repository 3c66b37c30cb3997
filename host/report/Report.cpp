#include "Report.h"

#include "host/failures/Failure.h"
#include "host/files/DiskFlush.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/UsageError.h"

#include <QDateTime>
#include <QJsonDocument>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <utility>

namespace host {

namespace {

const char begun[] = "begun";
const char startEvent[] = "start";
const char endEvent[] = "end";
const int formVersion = 1;

/// In UTC, as ISO 8601 writes it.
QString now()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
}

/// Takes back what was written last, unless another process has written behind it.
void takeBack(int file, std::size_t written)
{
    struct stat status;
    const off_t end = lseek(file, 0, SEEK_CUR);
    if (written > 0 && fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_size == end)
        static_cast<void>(ftruncate(file, end - static_cast<off_t>(written)) ==
                          0); // nobody is left to be told
}

/// Appends the line, or nothing of it: behind the half that fits on a full disk the next line
/// would be lost, too.
/// \returns false, with errno set, on failure.
bool appendLine(int file, const std::string& line)
{
    for (std::size_t written = 0; written < line.size();) {
        const ssize_t count = ::write(file, line.data() + written, line.size() - written);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0) {
            const int problem = errno;
            takeBack(file, written);
            errno = problem;
            return false;
        }
        written += static_cast<std::size_t>(count);
    }
    return true;
}

QJsonObject undoing(const DocumentResult& result)
{
    QJsonObject object{{"fileState", QString::fromStdString(result.stateBefore)},
                       {"sha256", QString::fromStdString(result.checksumBefore)}};
    if (!result.checksumUnfinished.empty())
        object.insert("unfinished", QString::fromStdString(result.checksumUnfinished));
    return object;
}

QJsonObject objectIn(const std::string& text)
{
    return QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
}

} // namespace

Report::Report(const std::string& path, Start start) : m_path(path), m_start(start)
{
    open(0);
    if (!m_file.isOpen() && errno == ENOENT) {
        open(O_CREAT | O_EXCL);
        m_isNew = m_file.isOpen();
    }
    if (!m_file.isOpen() && errno == EEXIST) // another run was quicker, or a link leads nowhere yet
        open(O_CREAT);
    if (m_file.isOpen())
        lock();
    else if (errno != ENOENT)
        throw UsageError("the report " + path + " cannot be written: " + systemError(errno));
}

Report::~Report()
{
    if (m_isNew)
        unlink(m_path.c_str());
}

void Report::open(int flags)
{
    if (isStandardOutput()) {
        m_file = FileDescriptor(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0));
        return;
    }
    const int access = m_start == Start::New ? O_WRONLY : O_RDWR;
    m_file = FileDescriptor(::open(m_path.c_str(), access | O_APPEND | flags | O_CLOEXEC, 0666));
}

bool Report::isRegular() const
{
    struct stat status;
    return !isStandardOutput() && fstat(m_file.get(), &status) == 0 && S_ISREG(status.st_mode);
}

void Report::lock()
{
    if (!isRegular())
        return;
    const int problem = flock(m_file.get(), LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
    struct stat status; // another run may have removed a file that it had not begun
    const bool isGone = problem == 0 && fstat(m_file.get(), &status) == 0 && status.st_nlink == 0;
    if (problem == EWOULDBLOCK || isGone)
        throw UsageError("the report " + m_path + " is being written by another run");
    if (problem != 0)
        m_doubt = "the report " + m_path + " cannot be locked (" + systemError(problem) +
                  "); no other run may write it meanwhile";
}

void Report::begin(QJsonObject about)
{
    if (!m_file.isOpen()) {
        open(O_CREAT);
        if (!m_file.isOpen())
            throw UsageError("the report " + m_path + " cannot be written: " + systemError(errno));
        lock();
    }
    m_isNew = false;
    if (m_start == Start::Continue)
        dropCutOffLine();
    else if (isRegular() && ftruncate(m_file.get(), 0) != 0)
        throw UsageError("the report " + m_path + " cannot be written: " + systemError(errno));
    about.insert("event", startEvent);
    about.insert("version", formVersion);
    about.insert("time", now());
    write(jsonLine(about));
}

/// An earlier run may have been killed in the middle of a line.
void Report::dropCutOffLine()
{
    struct stat status;
    if (fstat(m_file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return;
    off_t end = status.st_size;
    char last = '\0';
    while (end > 0 && pread(m_file.get(), &last, 1, end - 1) == 1 && last != '\n')
        --end;
    if (end < status.st_size && ftruncate(m_file.get(), end) != 0)
        m_problem = "the report " + m_path + " cannot be continued: " + systemError(errno);
}

void Report::add(std::size_t index, std::string line)
{
    m_waiting.emplace(index, std::move(line));
    while (!m_waiting.empty() && m_waiting.begin()->first == m_next) {
        write(m_waiting.begin()->second);
        m_waiting.erase(m_waiting.begin());
        ++m_next;
    }
}

void Report::end(QJsonObject counts)
{
    for (const auto& [index, line] : std::exchange(m_waiting, {}))
        write(line);
    counts.insert("event", endEvent);
    counts.insert("time", now());
    write(jsonLine(counts));
}

/// A forked process shares the descriptor, and with it the lock: so it opens the file once more for itself.
int Report::leave()
{
    const FileDescriptor locked = std::move(m_file);
    struct stat old;
    struct stat now;
    if (fstat(locked.get(), &old) != 0 || !S_ISREG(old.st_mode))
        return -1;
    FileDescriptor file(::open(m_path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK));
    if (file.isOpen() && fstat(file.get(), &now) == 0 && now.st_dev == old.st_dev && now.st_ino == old.st_ino)
        m_file = std::move(file);
    return m_file.get();
}

void Report::announce(const Line& line)
{
    const std::string text = toJson(line, begun);
    if (!m_file.isOpen() || (appendLine(m_file.get(), text) && flushFile(m_file.get())))
        return;
    Failure failure =
        Failure::ofSystem(errno, ReasonCode::WriteFailed, "the report " + m_path + " cannot be written: ");
    if (failure.code != ReasonCode::NoSpace)
        failure.code = ReasonCode::WriteFailed; // others would be taken for the document's own
    throw DocumentError(failure);
}

void Report::write(const std::string& line)
{
    if (m_problem.empty() && !appendLine(m_file.get(), line))
        m_problem = "the report " + m_path + " is incomplete: " + systemError(errno);
}

bool Report::isAboutRun(const QJsonObject& line)
{
    const QString event = line.value("event").toString();
    return event == startEvent || event == endEvent;
}

std::string Report::toJson(const Line& line, const char* status)
{
    QJsonObject object;
    insertName(object, "file", line.file);
    insertName(object, "output", line.output);
    object.insert("status", status);
    object.insert("saved", textOrNull(nameOf(line.result.saved)));
    if (line.result.certified)
        object.insert("certified", true);
    object.insert("reasonCode", textOrNull(nameOf(line.result.reason.code)));
    object.insert("reason", textOrNull(line.result.reason.text));
    if (!line.result.note.empty())
        object.insert("note", QString::fromStdString(line.result.note));
    object.insert("milliseconds", static_cast<qint64>(line.result.milliseconds));
    object.insert("fileState", textOrNull(line.result.fileState));
    object.insert("outputState", textOrNull(line.result.outputState));
    if (!line.result.stateBefore.empty())
        object.insert("undo", undoing(line.result));
    if (!line.result.viewBefore.empty()) {
        object.insert("before", objectIn(line.result.viewBefore));
        object.insert("after", objectIn(line.result.viewAfter));
    }
    return jsonLine(object);
}

} // namespace host
