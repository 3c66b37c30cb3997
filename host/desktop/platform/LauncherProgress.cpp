#include "LauncherProgress.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

namespace host::desktop::launcherprogress {

void show(double fraction)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage signal =
        QDBusMessage::createSignal("/quintar", "com.canonical.Unity.LauncherEntry", "Update");
    signal << QStringLiteral("application://quintar-window.desktop")
           << QVariantMap{{"progress", fraction}, {"progress-visible", fraction >= 0}};
    bus.send(signal);
}

} // namespace host::desktop::launcherprogress
