#include "CUtils.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGLFormat>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QStandardPaths>
#include <QThread>

#include <dlfcn.h>

#include <optional>

QString CUtils::mApplicationName;

namespace {

const char productFolder[] = "/kelvane software";
const char applicationFolder[] = "Plexor";
const int lastTempFolderNumber = 99999;
const int lastTempFileNumber = 9999;

/// Where the code of a function was loaded to.
const void* homeOf(const void* function)
{
    Dl_info found{};
    return dladdr(function, &found) != 0 ? found.dli_fbase : nullptr;
}

/// Whether the program has put a function of its own in the place of QGLFormat::openGLVersionFlags.
bool answersItself()
{
    return homeOf(reinterpret_cast<const void*>(&QGLFormat::openGLVersionFlags)) !=
           homeOf(reinterpret_cast<const void*>(&QGLFormat::hasOpenGL));
}

/// Qt's own function crashes where no context can be made current, so that is tried first.
std::optional<int> askQt()
{
    const auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (application == nullptr || QThread::currentThread() != application->thread())
        return std::nullopt;
    QOpenGLContext context;
    if (!context.create())
        return 0;
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!surface.isValid() || !context.makeCurrent(&surface))
        return 0;
    const int flags = static_cast<int>(QGLFormat::openGLVersionFlags());
    context.doneCurrent();
    return flags;
}

int openGLFlags()
{
    if (answersItself())
        return static_cast<int>(QGLFormat::openGLVersionFlags());
    static std::optional<int> answer;
    if (!answer)
        answer = askQt();
    return answer.value_or(0);
}

void makeMissing(QDir& directory, const QString& path)
{
    directory.setPath(path);
    if (!directory.exists())
        directory.mkdir(path);
}

void makeMissingInside(QDir& directory, const QString& path, const QString& name)
{
    directory.setPath(path);
    if (!directory.exists(name))
        directory.mkdir(name);
}

} // namespace

void CUtils::SetAppName(QString name)
{
    mApplicationName = name;
}

QString CUtils::GetAppName()
{
    return mApplicationName.isEmpty() ? applicationFolder : mApplicationName;
}

QString CUtils::GetAppDataFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString CUtils::GetAppDataToolsFolder()
{
    return GetAppDataFolder() + productFolder + '/' + applicationFolder + '/';
}

QString CUtils::GetSequenceFolder()
{
    return GetAppDataToolsFolder() + "Actions";
}

QString CUtils::GetReportsFolder()
{
    return GetAppDataToolsFolder() + "/Reports/Action Reports";
}

QString CUtils::GetAppLogFolder()
{
    return GetAppDataToolsFolder() + "/Reports/App Log";
}

QString CUtils::GetWFFolder()
{
    return GetAppDataToolsFolder() + "WF";
}

QString CUtils::GetSettingsFolder()
{
    return GetAppDataToolsFolder() + "/Settings";
}

QString CUtils::GetCollectionsFolder()
{
    return GetAppDataToolsFolder() + "/Settings/Favorites";
}

QString CUtils::GetAdvSplitTemplatesFolder()
{
    return GetAppDataToolsFolder() + "/Settings/AdvSplitTemplates";
}

QString CUtils::GetActionFolder()
{
    return "./Tools";
}

void CUtils::SetupFolders()
{
    QDir directory;
    QString base = GetAppDataFolder() + productFolder;
    makeMissing(directory, base);
    base = base + '/' + applicationFolder;
    makeMissing(directory, base);
    for (const char* suffix :
         {"/Actions", "/Reports", "/Scripts", "/Reports/Action Reports", "/Reports/App Log", "/WF",
          "/Settings", "/Settings/Favorites", "/Settings/AdvSplitTemplates"})
        makeMissing(directory, base + suffix);

    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString application = QCoreApplication::applicationName();
    makeMissingInside(directory, documents, application);
    makeMissingInside(directory, documents + "/" + application + "/", "Input");
    makeMissingInside(directory, documents + "/" + application + "/", "Output");
}

QDir CUtils::GetNewTempFolder(QString* name)
{
    const QString temp = QDir::tempPath() + "/";
    QString candidate = temp + *name;
    for (int number = 0; number <= lastTempFolderNumber && QDir().exists(candidate); ++number)
        candidate = temp + *name + "_" + QString::number(number);
    if (!QDir().exists(candidate))
        QDir().mkpath(candidate);
    if (!QDir().exists(candidate)) {
        *name = temp;
        return QDir::temp();
    }
    *name = candidate;
    return QDir(candidate);
}

QString CUtils::GetNewTempFile(char* prefix)
{
    const QString wanted = QString::fromUtf8(prefix);
    for (int number = 1; number <= lastTempFileNumber; ++number) {
        QString candidate = QDir::tempPath() + QString("/%1_%2.pdf").arg(wanted, QString::number(number));
        candidate.replace('\\', '/');
        if (!QFileInfo::exists(candidate))
            return candidate;
    }
    return QString();
}

bool CUtils::CheckOpenGLSupport()
{
    const int flags = openGLFlags();
    return flags >= 32 && (flags <= 64 || flags >= 2048);
}
