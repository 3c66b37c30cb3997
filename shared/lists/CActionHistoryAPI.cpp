#include "CActionHistoryAPI.h"

#include "CatchAllProtocol.h"
#include "actionutils/CActionUtils.h"
#include "ini/CIniFile.h"
#include "ini/StoreReport.h"
#include "ini/StoredKeys.h"

#include <QFile>
#include <QImage>
#include <QPixmap>

#include <limits>

namespace {

using namespace storedkeys;

const QSize iconSize(42, 42);

/// On screens of high resolution an icon hands out more pixels than it is asked for.
QImage storedIcon(const QIcon& icon)
{
    QImage image = icon.pixmap(iconSize, QIcon::Normal, QIcon::Off).toImage();
    image.setDevicePixelRatio(1);
    if (image.width() <= iconSize.width() && image.height() <= iconSize.height())
        return image;
    return image.scaled(iconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

void writeFavorite(const QMap<QString, QVariant>& prefs, const QIcon& icon)
{
    const QString name = prefs.value(request::collectionName).toString();
    const QString path = CActionUtils::GetCollectionsFolder() + "/" + name + favorite::suffix;
    const QString replaced = storereport::inPlaceOf(QFile::encodeName(path));
    CIniFile file(path, CIniFile::Access::Replace);
    file.setValue(favorite::actionPrefs, prefs);
    file.setValue(favorite::actionIcon, storedIcon(icon));
    file.commit();
    storereport::add(storereport::inWords("the favourite " + path, replaced, file.problem()));
}

int clampedSum(int a, int b)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(qBound(qint64(Limits::min()), qint64(a) + b, qint64(Limits::max())));
}

} // namespace

CActionHistoryAPI::CActionHistoryAPI(QString name) : m_Name(name)
{
    m_Dir.setPath(CActionUtils::GetCollectionsFolder());
    m_Dir.setNameFilters({m_Name + "*"});
    m_Files = m_Dir.entryInfoList(QDir::Files, QDir::Time | QDir::Reversed);
}

int CActionHistoryAPI::SaveSettingsToHistory(QMap<QString, QVariant>* prefs, QIcon* icon)
{
    const bool ran =
        runCatchAll(__FILE__, "SaveSettingsToHistory", __LINE__, [&] { writeFavorite(*prefs, *icon); });
    return ran ? 0 : 1;
}

QMap<QString, QVariant>* CActionHistoryAPI::LoadSettingsFromHistory(int step)
{
    m_nCurrent = clampedSum(m_nCurrent, step);
    if (m_nCurrent < 0 || m_nCurrent >= m_Files.size())
        return nullptr;
    const QFileInfo& listed = m_Files.at(m_Files.size() - 1 - m_nCurrent);
    const CIniFile file(listed.absoluteFilePath(), CIniFile::Access::Read);
    QString ignored;
    const std::optional<QVariant> prefs = file.decoded(favorite::actionPrefs, ignored);
    return prefs ? new QMap<QString, QVariant>(prefs->toMap()) : nullptr;
}
