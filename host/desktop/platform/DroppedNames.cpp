#include "DroppedNames.h"

#include <QDir>
#include <QFile>
#include <QMimeData>

namespace host::desktop::droppednames {

namespace {

const QByteArray scheme = "file:/";

/// QUrl would replace bytes that are no text. A host's name, which may stand before the path, is passed over; some
/// programs write no place for one.
QByteArray pathOf(const QByteArray& address)
{
    const int behind = scheme.size();
    const int slash = address.mid(behind, 1) == "/" ? address.indexOf('/', behind + 1) : behind - 1;
    return slash < 0 ? QByteArray() : QByteArray::fromPercentEncoding(address.mid(slash));
}

QByteArray nameIn(QByteArray line)
{
    line = line.trimmed();
    if (line.size() > 1 && (line.startsWith('"') || line.startsWith('\'')) && line.endsWith(line.at(0)))
        line = line.mid(1, line.size() - 2);
    if (line.startsWith(scheme))
        return pathOf(line);
    if (line.startsWith("~/"))
        return QFile::encodeName(QDir::homePath()) + line.mid(1);
    return line.startsWith('/') ? line : QByteArray();
}

} // namespace

QVector<QByteArray> of(const QMimeData& data)
{
    const QByteArray lines =
        data.hasFormat("text/uri-list") ? data.data("text/uri-list") : data.text().toUtf8();
    QVector<QByteArray> names;
    for (const QByteArray& line : lines.split('\n'))
        if (const QByteArray name = nameIn(line); !line.startsWith('#') && !name.isEmpty())
            names.append(absolute(name));
    return names;
}

QByteArray absolute(const QByteArray& name)
{
    QByteArray path = name.startsWith('/') ? name : QFile::encodeName(QDir::currentPath()) + "/" + name;
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path;
}

} // namespace host::desktop::droppednames
