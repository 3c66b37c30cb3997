#include "StoreReport.h"

#include "StoredKeys.h"
#include "ini/CIniFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QVariant>

namespace storereport {

using namespace storedkeys;

namespace {

// Program and plug-ins have copies of this code each, but one application object.
const QLatin1String stored("stored: ");
const char property[] = "quintarStoreReports";

} // namespace

void begin()
{
    if (QCoreApplication* const application = QCoreApplication::instance())
        application->setProperty(property, QStringList());
}

void add(const QString& report)
{
    QCoreApplication* const application = QCoreApplication::instance();
    if (application == nullptr || !application->property(property).isValid())
        return;
    application->setProperty(property, application->property(property).toStringList() << report);
}

QStringList take()
{
    QCoreApplication* const application = QCoreApplication::instance();
    if (application == nullptr)
        return {};
    QStringList reports = application->property(property).toStringList();
    application->setProperty(property, QVariant());
    return reports;
}

QString inPlaceOf(const QByteArray& path)
{
    if (!QFile::exists(QFile::decodeName(path)))
        return {};
    const CIniFile old(path, CIniFile::Access::Read);
    const std::size_t entries = actionlist::entryNumbers(old.keys()).size();
    if (entries == 0)
        return ", in place of the one before";
    return QString(", in place of one with %1 %2").arg(entries).arg(entries == 1 ? "entry" : "entries");
}

QString inWords(const QString& what, const QString& replaced, const QString& problem)
{
    return problem.isEmpty() ? stored + QString("%1%2").arg(what, replaced)
                             : QString("not stored: %1: %2").arg(what, problem);
}
bool isTrouble(const QString& report)
{
    return !report.startsWith(stored);
}

} // namespace storereport
