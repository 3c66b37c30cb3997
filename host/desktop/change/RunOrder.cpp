#include "RunOrder.h"

#include <QFile>
#include <QRegularExpression>

namespace host::desktop {

namespace {

const int mostNamed = 20;

/// In single quotes where a shell would understand it otherwise.
QString quoted(const QString& word)
{
    static const QRegularExpression plain("^[A-Za-z0-9_@%+=:,./-]+$");
    if (plain.match(word).hasMatch())
        return word;
    QString inner = word;
    return "'" + inner.replace("'", "'\\''") + "'";
}

} // namespace

QStringList RunOrder::arguments(const QString& base) const
{
    return draft.arguments() + destination.arguments(base);
}

QString RunOrder::commonFolder(const DocumentTable& table, const DocumentTable::Ids& ids)
{
    QByteArray common;
    bool isFirst = true;
    for (const DocumentId id : ids) {
        const DocumentRecord* record = table.find(id);
        if (record == nullptr)
            continue;
        const QByteArray folder = record->path.left(record->path.lastIndexOf('/') + 1);
        if (isFirst)
            common = folder;
        isFirst = false;
        while (!common.isEmpty() && !folder.startsWith(common))
            common = common.left(common.lastIndexOf('/', -2) + 1);
    }
    return QFile::decodeName(common.isEmpty() ? QByteArray("/") : common);
}

QByteArray RunOrder::resultOf(const QByteArray& path, const QString& base) const
{
    switch (destination.kind) {
    case Destination::Kind::InPlace:
        return path;
    case Destination::Kind::Folder:
        return QFile::encodeName(destination.folderPath()) + "/" + path.mid(QFile::encodeName(base).size());
    case Destination::Kind::Suffix: {
        const auto dot = path.lastIndexOf('.');
        return path.left(dot) + "-" + QFile::encodeName(destination.suffix) + path.mid(dot);
    }
    }
    return path;
}

/// Many documents are told by their folder: they need not be all that lie there, but a person sees how it is done.
QString RunOrder::commandLine(const DocumentTable& table, const DocumentTable::Ids& ids) const
{
    const QString base = commonFolder(table, ids);
    QStringList words = QStringList{"quintar", "run"} + arguments(base);
    if (ids.size() > mostNamed)
        words += base;
    else
        for (const DocumentId id : ids)
            if (const DocumentRecord* record = table.find(id))
                words += QFile::decodeName(record->path);
    QStringList safe;
    for (const QString& word : words)
        safe += quoted(word);
    return safe.join(' ');
}

} // namespace host::desktop
