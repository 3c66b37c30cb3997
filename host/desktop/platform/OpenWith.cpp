#include "OpenWith.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QUrl>

namespace host::desktop::openwith {

namespace {

QUrl addressOf(const QByteArray& path)
{
    return QUrl::fromEncoded("file://" + path.toPercentEncoding("/"));
}

} // namespace

bool viewer(const QByteArray& path)
{
    return QDesktopServices::openUrl(addressOf(path));
}

bool folder(const QByteArray& path)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                                       "org.freedesktop.FileManager1", "ShowItems");
    call << QStringList{QString::fromLatin1(addressOf(path).toEncoded())} << QString();
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (bus.isConnected() && bus.call(call, QDBus::Block, 2000).type() == QDBusMessage::ReplyMessage)
        return true;
    return QDesktopServices::openUrl(addressOf(path.left(path.lastIndexOf('/') + 1)));
}

bool contents(const QByteArray& folder)
{
    return QDesktopServices::openUrl(addressOf(folder));
}

} // namespace host::desktop::openwith
