#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>

/// One run of a program as a user has it, and what came of it.
struct ProgramRun
{
    int status = -1; // the exit status, or minus the signal that ended it
    QByteArray out;
    QByteArray err;

    ProgramRun(const QString& program, const QStringList& arguments, const QString& folder = QString(),
               const QByteArray& input = QByteArray())
    {
        QProcess process;
        process.setWorkingDirectory(folder);
        process.start(program, arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(60000))
            process.kill();
        status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -process.exitCode();
        out = process.readAllStandardOutput();
        err = process.readAllStandardError();
    }

    /// Standard output as JSON, an object a line.
    static QList<QJsonObject> jsonLines(const QByteArray& text)
    {
        QList<QJsonObject> objects;
        for (const QByteArray& line : text.split('\n'))
            if (!line.isEmpty())
                objects += QJsonDocument::fromJson(line).object();
        return objects;
    }
};

/// What another reader sees in a document.
class QpdfReader
{
public:
    explicit QpdfReader(const QString& file, const QString& password = QString())
    {
        const ProgramRun run("qpdf", {"--json", "--json-key=qpdf", "--password=" + password, file});
        m_objects = QJsonDocument::fromJson(run.out).object().value("qpdf").toArray().at(1).toObject();
    }

    QJsonObject catalog() const
    {
        const QJsonObject trailer = m_objects.value("trailer").toObject().value("value").toObject();
        return resolved(trailer.value("/Root")).toObject();
    }

    /// What a reference stands for; other values are themselves.
    QJsonValue resolved(const QJsonValue& value) const
    {
        const QJsonValue object = m_objects.value("obj:" + value.toString());
        return object.isUndefined() ? value : object.toObject().value("value");
    }

private:
    QJsonObject m_objects;
};
