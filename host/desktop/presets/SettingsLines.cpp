#include "SettingsLines.h"

#include "host/settings/SettingsWords.h"

#include <QRegularExpression>

namespace host::desktop {

QStringList settingsLines(const SettingsMap& settings)
{
    static const QRegularExpression gap(" {2,}"); // between the columns
    QStringList lines;
    for (const QString& line :
         QString::fromStdString(settingsInWords(settings)).split('\n', Qt::SkipEmptyParts))
        lines += line.trimmed().replace(gap, ": ");
    return lines;
}

} // namespace host::desktop
