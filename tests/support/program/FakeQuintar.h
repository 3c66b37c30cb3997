#pragma once

#include <QFile>
#include <QTemporaryDir>

/// Stands in for the program: plays a stored stream of events, and keeps what it was told. Each command has a
/// stream of its own, written in lines; besides events a stream has orders: "#wait MS", "#hear WORD" waits
/// for a word on standard input, "#say TEXT" prints on standard error, "#exit STATUS" ends.
class FakeQuintar
{
public:
    FakeQuintar() { qputenv("FAKE_QUINTAR", m_folder.path().toUtf8()); }

    static QString program() { return FAKE_QUINTAR_FILE; }

    /// \param command the first argument, or "try" for a run that only tries out.
    void plays(const QString& command, const QByteArray& stream) const
    {
        put(m_folder.filePath(command), stream);
    }

    /// A line for each start: the arguments, separated by spaces.
    QStringList starts() const { return lines("starts"); }
    /// The names that the last start was given.
    QList<QByteArray> names() const
    {
        QList<QByteArray> names = content("names").split('\0');
        names.removeLast();
        return names;
    }
    QByteArray password() const { return content("password"); }

    static QByteArray start() { return "{\"event\":\"start\",\"version\":1,\"documents\":null}\n"; }
    static QByteArray end() { return "{\"event\":\"end\",\"stopped\":false}\n"; }
    static QByteArray found(int number, const QByteArray& file)
    {
        return "{\"event\":\"found\",\"number\":" + QByteArray::number(number) + ",\"file\":\"" + file +
               "\",\"fileBytes\":null}\n";
    }
    /// \param more further entries, each with a comma before it.
    static QByteArray document(int number, const QByteArray& more = {})
    {
        return "{\"event\":\"document\",\"number\":" + QByteArray::number(number) +
               ",\"pages\":8,\"bookmarks\":3,\"title\":\"Title " + QByteArray::number(number) +
               "\",\"pageMode\":null,\"openAction\":null,\"viewerPreferences\":{}" + more + "}\n";
    }
    static QByteArray result(int number, const QByteArray& status, const QByteArray& more = {})
    {
        return "{\"event\":\"result\",\"number\":" + QByteArray::number(number) + ",\"status\":\"" + status +
               "\"" + more + "}\n";
    }
    static QByteArray changed(int number)
    {
        return result(number, "changed",
                      ",\"before\":{\"pageMode\":null},\"after\":{\"pageMode\":\"UseOutlines\"}");
    }
    static QByteArray failed(int number, const QByteArray& code)
    {
        return result(number, "failed",
                      ",\"reasonCode\":\"" + code + "\",\"reason\":\"words\",\"before\":{},\"after\":{}");
    }

private:
    static void put(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
    }
    QByteArray content(const QString& name) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList lines(const QString& name) const
    {
        return QString::fromUtf8(content(name)).split('\n', Qt::SkipEmptyParts);
    }

    QTemporaryDir m_folder;
};
