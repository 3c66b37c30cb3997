#include "CIniFile.h"

#include "IniValue.h"
#include "WholeFile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

namespace {

const qint64 largestFile = qint64(16) * 1024 * 1024;
const qint64 largestLock = 4096;
const qint64 longestWait = 2000;
const unsigned long pause = 5;

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

} // namespace

CIniFile::CIniFile(const QString& path, Access access) : CIniFile(QFile::encodeName(path), access) {}

CIniFile::CIniFile(const QByteArray& path, Access access) : m_path(path)
{
    if (path.isEmpty() || path.contains('\0'))
        m_problem = "not a file name";
    else if (access == Access::Read)
        openForReading();
    else
        openForWriting(access);
}

CIniFile::~CIniFile() = default;
CIniFile::CIniFile(CIniFile&&) noexcept = default;

void CIniFile::openForReading()
{
    if (const std::optional<QByteArray> bytes = wholefile::read(m_path, largestFile, m_problem))
        m_values = initext::parse(*bytes);
}

void CIniFile::openForWriting(Access access)
{
    std::error_code error;
    std::filesystem::create_directories(wholefile::folderOf(m_path).toStdString(), error);
    if (error) {
        m_problem = wholefile::systemError(error.value());
        return;
    }
    const QString place = QFileInfo(QFile::decodeName(m_path)).absoluteFilePath();
    if (access == Access::Extend)
        m_path = wholefile::behindLinks(m_path);
    if (m_path.isEmpty() || m_path.endsWith('/')) {
        m_problem = m_path.isEmpty() ? wholefile::systemError(ELOOP) : QString("not a file name");
        return;
    }
    m_lock = takeLock(place);
    if (access == Access::Extend)
        readOld();
    m_isOpen = m_problem.isEmpty();
}

void CIniFile::readOld()
{
    QString problem;
    const std::optional<QByteArray> bytes = wholefile::read(m_path, largestFile, problem);
    if (bytes && access(m_path.constData(), W_OK) != 0)
        m_problem = wholefile::systemError(errno);
    else if (bytes)
        m_values = initext::parse(*bytes);
    else if (errno != ENOENT)
        m_problem = problem;
}

bool CIniFile::contains(const QString& key) const
{
    return m_values.contains(initext::normalizedKey(key));
}

QVariant CIniFile::value(const QString& key, const QVariant& fallback) const
{
    QString ignored;
    return decoded(key, ignored).value_or(fallback);
}

std::optional<QVariant> CIniFile::decoded(const QString& key, QString& problem) const
{
    const auto found = m_values.find(initext::normalizedKey(key));
    if (key.isEmpty() || found == m_values.end()) {
        problem = "is not there";
        return std::nullopt;
    }
    return inivalue::decoded(*found, problem);
}

void CIniFile::setValue(const QString& key, const QVariant& value)
{
    if (!m_isOpen || key.isEmpty())
        return;
    QString problem;
    if (const std::optional<initext::Value> encoded = inivalue::encoded(value, problem))
        m_values[initext::normalizedKey(key)] = *encoded;
    else
        m_problem = QString("the value \"%1\" %2").arg(key, problem);
}

bool CIniFile::commit()
{
    if (!std::exchange(m_isOpen, false))
        return false;
    if (m_problem.isEmpty())
        m_problem = write();
    m_values.clear();
    return m_problem.isEmpty();
}

QString CIniFile::write() const
{
    const QByteArray bytes = initext::format(m_values);
    if (bytes.size() > largestFile)
        return "it would be too large for a settings file";
    return wholefile::replace(m_path, bytes);
}
