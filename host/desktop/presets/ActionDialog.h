#pragma once

#include "host/desktop/change/ChangeDraft.h"
#include "host/program/PluginHost.h"
#include "host/settings/SettingsMap.h"

#include <QWidget>

#include <memory>

namespace host::desktop {

/// The action's own dialog. No document is read for it: it starts from settings, or from what is known of a document
/// and what is to change of that.
class ActionDialog
{
public:
    /// Shows the dialog until it is closed.
    /// \param facts of the document that it starts from; may be null.
    /// \returns the settings that were accepted; nothing after Cancel. Throws std::runtime_error without a plug-in.
    std::optional<StoredChoice> show(QWidget* parent, const ChangeDraft& start, const DocumentFacts* facts);

    /// What the dialog told of lists and favourites that it stored, or could not.
    const QStringList& reports() const { return m_reports; }

private:
    static SettingsMap startingFrom(const ChangeDraft& start, const DocumentFacts* facts);

    std::unique_ptr<PluginHost> m_plugin;
    QStringList m_reports;
};

} // namespace host::desktop
