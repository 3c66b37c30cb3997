#include "LastFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace host::desktop {

namespace {

QString keyOf(LastFolders::Use use)
{
    return use == LastFolders::Use::Adding ? QStringLiteral("folders/adding")
                                           : QStringLiteral("folders/reports");
}

} // namespace

QString LastFolders::of(Use use) const
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& each : {m_settings.value(keyOf(use)).toString(), documents})
        if (QDir::isAbsolutePath(each) && QFileInfo(each).isDir())
            return each;
    return QDir::homePath();
}

void LastFolders::keepFolderOf(Use use, const QString& path)
{
    if (!path.isEmpty())
        m_settings.setValue(keyOf(use), QFileInfo(path).absolutePath());
}

} // namespace host::desktop
