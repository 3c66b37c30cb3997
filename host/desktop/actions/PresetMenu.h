#pragma once

#include "ActionTable.h"

#include "host/desktop/presets/PresetFolder.h"
#include "host/desktop/workbench/Workbench.h"

#include <QMenu>

namespace host::desktop {

/// The presets by name, and what can be done with them. Filled each time it opens.
class PresetMenu : public QMenu
{
    Q_OBJECT

public:
    PresetMenu(Workbench& workbench, ActionTable& actions, const QString& folder, QWidget* parent);

    /// Asks for a name and keeps the change under it.
    void save();
    void keep(const QString& name);

signals:
    void said(const QString& text);
    void failed(const QString& text);

private:
    void fill();
    void addPresets(Preset::Kind kind, const QString& title);
    void addRemoval();

    Workbench& m_workbench;
    ActionTable& m_actions;
    PresetFolder m_folder;
    std::vector<Preset> m_presets;
};

} // namespace host::desktop
