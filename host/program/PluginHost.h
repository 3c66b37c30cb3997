#pragma once

#include <QPluginLoader>

#include <string>

class CActionInterface;

namespace host {

/// The loaded action plug-in. It stays loaded as long as the object lives.
class PluginHost
{
public:
    /// Loads the file and checks that it is the plug-in by its metadata and its name. Throws
    /// std::runtime_error with file and reason.
    explicit PluginHost(const std::string& file);
    ~PluginHost();

    /// Owned by the plug-in.
    CActionInterface& action() const { return *m_action; }

private:
    QPluginLoader m_loader;
    CActionInterface* m_action = nullptr;
};

} // namespace host
