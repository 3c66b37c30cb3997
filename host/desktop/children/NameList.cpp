#include "NameList.h"

#include <QDir>
#include <QFileInfo>

namespace host::desktop {

namespace {

/// Below the user's own run-time folder, which lies in memory, where there is one.
QString folder()
{
    const QString own = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return own.startsWith('/') && QFileInfo(own).isWritable() ? own : QDir::tempPath();
}

} // namespace

/// QTemporaryFile gives nobody else any rights.
NameList NameList::of(const QVector<QByteArray>& names)
{
    QByteArray bytes;
    for (const QByteArray& name : names)
        bytes += name + '\0';
    NameList list;
    auto file = std::make_unique<QTemporaryFile>(folder() + "/quintar-XXXXXX");
    if (file->open() && file->write(bytes) == bytes.size() && file->flush())
        list.m_file = std::move(file);
    return list;
}

} // namespace host::desktop
