#include <QObject>

/// What Qt takes for a platform plug-in, by what stands in its file.
class HostilePlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QPA.QPlatformIntegrationFactoryInterface.5.3" FILE
                          "hostile.json")
};

#include "HostilePlugin.moc"
