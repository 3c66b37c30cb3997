#include "EventReader.h"

#include <QCoreApplication>
#include <QJsonDocument>

namespace host::desktop::eventreader {

namespace {

Event start(const QJsonObject& line)
{
    const StartEvent event{line.value("version").toInt(), line.value("documents").toInt()};
    if (event.version == version)
        return event;
    return BadLine{
        QCoreApplication::translate("EventReader", "the program and the window are of different versions")};
}

Event found(const QJsonObject& line)
{
    const QJsonValue bytes = line.value("fileBytes"); // only of names that are no text
    return FoundEvent{line.value("number").toInt(-1),
                      bytes.isString() ? QByteArray::fromBase64(bytes.toString().toLatin1())
                                       : line.value("file").toString().toUtf8()};
}

Event document(const QJsonObject& line)
{
    return DocumentEvent{line.value("number").toInt(-1), line};
}

Event result(const QJsonObject& line)
{
    return ResultEvent{line.value("number").toInt(-1), line};
}

Event progress(const QJsonObject& line)
{
    return ProgressEvent{line.value("done").toInt(), line.value("failed").toInt()};
}

Event end(const QJsonObject& line)
{
    return EndEvent{line, line.value("stopped").toBool()};
}

struct Row
{
    const char* name;
    Event (*read)(const QJsonObject& line);
};

const Row rows[] = {{"start", start},   {"found", found},       {"document", document},
                    {"result", result}, {"progress", progress}, {"end", end}};

} // namespace

Event read(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const QString name = object.value("event").toString();
    for (const Row& row : rows)
        if (name == row.name)
            return row.read(object);
    if (!name.isEmpty())
        return OtherEvent();
    return BadLine{
        QCoreApplication::translate("EventReader", "the program said something that is not understood")};
}

} // namespace host::desktop::eventreader
