#include "CIniFile.h"

#include "IniCheck.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QThread>

#include <filesystem>

namespace {

const qint64 largestFile = qint64(16) * 1024 * 1024;
const qint64 largestLock = 4096;
const qint64 longestWait = 2000;
const unsigned long pause = 5;
const qint64 clockDoubt = 1000;

bool isOrdinary(const QFileInfo& file)
{
    return file.isFile() && file.size() <= largestFile;
}

bool isHarmless(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && isHarmlessIni(file.read(largestFile));
}

/// QLockFile reads what stands in the lock's place, and a FIFO would stop it there.
bool canBeLock(const QFileInfo& place)
{
    if (place.isSymLink())
        return false;
    return !place.exists() || (place.isFile() && place.size() <= largestLock);
}

/// \returns null where the lock cannot be had in time. The file is whole without it all the same; what is
/// lost is only that two who add to it at the same moment see each other's addition.
std::unique_ptr<QLockFile> takeLock(const QString& path)
{
    const QString place = path + ".lock";
    if (!canBeLock(QFileInfo(place)))
        return nullptr;
    auto lock = std::make_unique<QLockFile>(place);
    QElapsedTimer waited;
    waited.start();
    // QLockFile's own waiting doubles its pauses and starves among busy writers.
    while (!lock->tryLock(0)) {
        if (lock->error() != QLockFile::LockFailedError || waited.hasExpired(longestWait))
            return nullptr;
        QThread::msleep(pause);
    }
    return lock;
}

/// The file that a write to `path` has to replace; empty where the links end nowhere.
QString behindLinks(const QFileInfo& path)
{
    if (!path.isSymLink())
        return path.absoluteFilePath();
    const QString target = path.exists() ? path.canonicalFilePath() : path.symLinkTarget();
    return QFileInfo(target).isSymLink() ? QString() : target;
}

/// QSettings keeps a bad first status for good, so another object on the same file is asked.
bool isWritten(const QString& path)
{
    QSettings again(path, QSettings::IniFormat);
    again.sync();
    return again.status() == QSettings::NoError && QFileInfo::exists(path);
}

/// Readers take a file of the same size and the same millisecond for the one that they know.
void makeNewer(const QString& path, const QString& than)
{
    const QDateTime old = QFileInfo(than).lastModified();
    const qint64 lead = QFileInfo(path).lastModified().msecsTo(old);
    QFile file(path);
    if (old.isValid() && lead >= 0 && lead < clockDoubt && file.open(QIODevice::ReadWrite))
        file.setFileTime(old.addMSecs(1), QFileDevice::FileModificationTime);
}

bool renameOver(const QString& from, const QString& to)
{
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(from).toStdString(), QFile::encodeName(to).toStdString(),
                            error);
    return !error;
}

} // namespace

CIniFile::CIniFile(const QString& path, Access access)
{
    if (path.isEmpty() || path.contains(QChar::Null))
        return;
    if (access == Access::Read)
        openForReading(path);
    else
        openForWriting(QFileInfo(path).absoluteFilePath(), access);
}

CIniFile::~CIniFile() = default;

void CIniFile::openForReading(const QString& path)
{
    if (isOrdinary(QFileInfo(path)) && isHarmless(path))
        m_settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
}

void CIniFile::openForWriting(const QString& path, Access access)
{
    m_target = access == Access::Extend ? behindLinks(QFileInfo(path)) : path;
    const QFileInfo target(m_target);
    if (target.fileName().isEmpty() || target.isDir())
        return;
    QDir().mkpath(QFileInfo(path).absolutePath());
    m_lock = takeLock(path);
    m_folder = std::make_unique<QTemporaryDir>(target.absolutePath() + "/.ini-XXXXXX");
    const QString copy = m_folder->filePath("settings.ini");
    if (!m_folder->isValid() || (access == Access::Extend && !copyTarget(copy)))
        return;
    m_settings = std::make_unique<QSettings>(copy, QSettings::IniFormat);
}

bool CIniFile::copyTarget(const QString& copy) const
{
    const QFileInfo target(m_target);
    if (!target.exists())
        return true;
    return isOrdinary(target) && target.isWritable() && QFile::copy(m_target, copy) && isHarmless(copy) &&
           QFile::setPermissions(copy, target.permissions() | QFile::ReadOwner | QFile::WriteOwner);
}

bool CIniFile::contains(const QString& key) const
{
    return m_settings && m_settings->contains(key);
}

QVariant CIniFile::value(const QString& key, const QVariant& fallback) const
{
    return m_settings ? m_settings->value(key, fallback) : fallback;
}

void CIniFile::setValue(const QString& key, const QVariant& value)
{
    if (m_settings && m_folder)
        m_settings->setValue(key, value);
}

bool CIniFile::commit()
{
    if (!m_settings || !m_folder)
        return false;
    const QString changed = m_settings->fileName();
    m_settings->sync();
    const bool written = isWritten(changed);
    m_settings.reset();
    if (!written)
        return false;
    makeNewer(changed, m_target);
    return renameOver(changed, m_target);
}
