#include "Report.h"

#include "FileNames.h"
#include "UsageError.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <fcntl.h>

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

Report::Report(const std::string& path)
    : m_path(path), m_file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666))
{
    if (!m_file.isOpen())
        throw UsageError("the report " + path + " cannot be written: " + systemError(errno));
}

void Report::add(std::size_t index, Line line)
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

void Report::write(const Line& line)
{
    const std::string text = toJson(line);
    if (m_problem.empty() && !writeAll(m_file.get(), text.data(), text.size()))
        m_problem = "the report " + m_path + " is incomplete: " + systemError(errno);
}

std::string Report::toJson(const Line& line)
{
    QJsonObject object;
    insertName(object, "file", line.file);
    insertName(object, "output", line.output);
    object.insert("status", nameOf(line.result.status));
    object.insert("saved", textOrNull(nameOf(line.result.saved)));
    object.insert("reason", textOrNull(line.result.reason));
    object.insert("milliseconds", static_cast<qint64>(line.result.milliseconds));
    return QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString() + "\n";
}

} // namespace host
