#include "PluginHost.h"

#include "EditInitialView/InitialViewSettings.h"
#include "shared/CActionInterface.h"

#include <QFile>
#include <QJsonObject>

#include <stdexcept>

namespace host {

namespace {

const QString interfaceId = QStringLiteral("org.telvar.quintar.editinitialview");
const QString className = QStringLiteral("CEditInitialView");

[[noreturn]] void refuse(const std::string& file, const QString& reason)
{
    throw std::runtime_error("the plug-in cannot be used: " + file + ": " + reason.toStdString());
}

} // namespace

PluginHost::PluginHost(const std::string& file)
{
    m_loader.setFileName(QFile::decodeName(QByteArray::fromStdString(file)));
    const QJsonObject metaData = m_loader.metaData();
    if (metaData.isEmpty())
        refuse(file, m_loader.errorString());
    if (metaData.value("IID").toString() != interfaceId ||
        metaData.value("className").toString() != className)
        refuse(file, "it is another plug-in");
    QObject* root = m_loader.instance();
    if (root == nullptr)
        refuse(file, m_loader.errorString());
    m_action = qobject_cast<CActionInterface*>(root);
    if (m_action == nullptr || m_action->GetActionName() != initialview::actionName)
        refuse(file, "it does not offer the action");
}

PluginHost::~PluginHost()
{
    m_loader.unload();
}

} // namespace host
