#include "EventStream.h"

#include "host/terminal/JsonLine.h"
#include "host/terminal/StandardOutput.h"

namespace host {

namespace {

const int formVersion = 1;
const std::chrono::seconds longestSilence(1);

qint64 number(std::size_t count)
{
    return static_cast<qint64>(count);
}

} // namespace

void EventStream::start(const std::string& command, std::optional<std::size_t> documents,
                        const std::string& report)
{
    QJsonObject object{{"version", formVersion},
                       {"command", QString::fromStdString(command)},
                       {"documents", documents ? QJsonValue(number(*documents)) : QJsonValue()}};
    insertName(object, "report", report);
    write("start", object);
}

std::size_t EventStream::found(const std::string& file)
{
    const QByteArray bytes = QByteArray::fromStdString(file);
    QJsonObject object{{"number", number(m_found)}};
    insertName(object, "file", file);
    object.insert("fileBytes",
                  object.contains("fileBytes") ? QJsonValue(QString(bytes.toBase64())) : QJsonValue());
    write("found", object);
    return m_found++;
}

void EventStream::document(std::size_t number, QJsonObject shown)
{
    ++m_done;
    shown.insert("number", host::number(number));
    write("document", shown);
}

void EventStream::result(std::size_t number, const Failure& reason, bool failed, QJsonObject result)
{
    ++m_done;
    m_failed += failed ? 1 : 0;
    result.insert("number", host::number(number));
    result.insert("reasonCode", textOrNull(nameOf(reason.code)));
    result.insert("reason", textOrNull(reason.text));
    write("result", result);
}

void EventStream::beat()
{
    if (m_done != m_told || Clock::now() - m_lastTold >= longestSilence)
        progress();
}

void EventStream::progress()
{
    m_told = m_done;
    QJsonObject object{
        {"done", number(m_done)}, {"failed", number(m_failed)}, {"documents", number(m_found)}};
    write("progress", object);
}

void EventStream::end(QJsonObject counts, bool stopped)
{
    progress();
    counts.insert("notDone", number(notDone()));
    counts.insert("stopped", stopped);
    write("end", counts);
}

void EventStream::write(const char* event, QJsonObject& object)
{
    if (m_isUnheard)
        return;
    object.insert("event", event);
    m_lastTold = Clock::now();
    try {
        printResult(jsonLine(object));
    } catch (const OutputError&) {
        if (m_unheard == Unheard::Ends)
            throw;
        m_isUnheard = true;
    }
}

} // namespace host
