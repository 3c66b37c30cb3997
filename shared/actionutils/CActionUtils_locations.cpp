#include "CActionUtils.h"

#include "CUtils.h"
#include "ini/CIniFile.h"

#include <QStandardPaths>

namespace {

const int keptLinks = 5;

QString storeFile()
{
    return CUtils::GetSettingsFolder() + "/LastVisitedLocations.qsf";
}

} // namespace

void CActionUtils::SaveLastVisitedLocation(QString key, QString location)
{
    CIniFile store(storeFile(), CIniFile::Access::Extend);
    store.setValue(key, location);
    store.commit();
}

QString CActionUtils::GetLastVisitedLocation(QString key)
{
    const CIniFile store(storeFile(), CIniFile::Access::Read);
    return store.contains(key) ? store.value(key).toString()
                               : QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
}

void CActionUtils::SaveLastEnteredLink(QString key, QString link)
{
    CIniFile store(storeFile(), CIniFile::Access::Extend);
    QStringList links = store.value(key).toStringList();
    links.prepend(link);
    links.removeDuplicates();
    store.setValue(key, QStringList(links.mid(0, keptLinks)));
    store.commit();
}

QStringList CActionUtils::GetLastEnteredLinks(QString key)
{
    return CIniFile(storeFile(), CIniFile::Access::Read).value(key).toStringList();
}
