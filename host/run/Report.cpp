#include "Report.h"

#include "host/terminal/FileNames.h"
#include "host/terminal/UsageError.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace host {

namespace {

/// JSON holds text only: bytes that are none show as U+FFFD, and the exact name stands beside,
/// percent-encoded.
void insertName(QJsonObject& object, const QString& key, const std::string& name)
{
    object.insert(key, name.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(name)));
    if (!isUtf8(name))
        object.insert(key + "Bytes", QString::fromStdString(percentEncoded(name)));
}

QJsonValue textOrNull(const std::string& text)
{
    return text.empty() ? QJsonValue() : QJsonValue(QString::fromStdString(text));
}

} // namespace

Report::Report(const std::string& path, Start start)
    : m_path(path),
      m_file(::open(path.c_str(),
                    O_CREAT | O_CLOEXEC | (start == Start::New ? O_WRONLY | O_TRUNC : O_RDWR | O_APPEND),
                    0666))
{
    if (!m_file.isOpen())
        throw UsageError("the report " + path + " cannot be written: " + systemError(errno));
    if (start == Start::Continue)
        dropCutOffLine();
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

void Report::flush()
{
    for (const auto& [index, line] : std::exchange(m_waiting, {}))
        write(line);
}

void Report::write(const std::string& line)
{
    if (m_problem.empty() && !writeAll(m_file.get(), line.data(), line.size()))
        m_problem = "the report " + m_path + " is incomplete: " + systemError(errno);
}

std::string Report::toJson(const Line& line)
{
    QJsonObject object;
    insertName(object, "file", line.file);
    insertName(object, "output", line.output);
    object.insert("status", nameOf(line.result.status));
    object.insert("saved", textOrNull(nameOf(line.result.saved)));
    if (line.result.certified)
        object.insert("certified", true);
    object.insert("reason", textOrNull(line.result.reason));
    object.insert("milliseconds", static_cast<qint64>(line.result.milliseconds));
    object.insert("fileState", textOrNull(line.result.fileState));
    object.insert("outputState", textOrNull(line.result.outputState));
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString() + "\n";
}

} // namespace host
