#include "PresetMenu.h"

#include "host/desktop/platform/Dialogs.h"
#include "host/desktop/texts/PlainText.h"

namespace host::desktop {

using Id = ActionTable::Id;

namespace {

/// A name is no mnemonic, and what stands behind a tabulator is no key.
QString asMenuText(const QString& name)
{
    return plaintext::shown(name).replace('&', "&&");
}

QString helpOf(const Preset& preset)
{
    if (!preset.problem.isEmpty())
        return preset.problem;
    return preset.draft.stored() ? preset.draft.stored()->lines.join('\n') : preset.draft.inWords();
}

} // namespace

PresetMenu::PresetMenu(Workbench& workbench, ActionTable& actions, const QString& folder, QWidget* parent)
    : QMenu(parent), m_workbench(workbench), m_actions(actions), m_folder(folder)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &PresetMenu::fill);
    connect(actions[Id::SavePreset], &QAction::triggered, this, &PresetMenu::save);
    const auto enable = [this] {
        m_actions[Id::SavePreset]->setEnabled(!m_workbench.draft().view().isEmpty());
    };
    connect(&workbench, &Workbench::draftChanged, this, enable);
    enable();
}

void PresetMenu::fill()
{
    clear();
    delete findChild<QMenu*>(); // of what could be removed before
    m_presets = m_folder.presets();
    addPresets(Preset::Kind::View, tr("Views"));
    addPresets(Preset::Kind::ActionList, tr("Action Lists"));
    addPresets(Preset::Kind::Favorite, tr("Favourites"));
    if (m_presets.empty())
        addAction(tr("Nothing is kept yet"))->setEnabled(false);
    addSeparator();
    addAction(m_actions[Id::SavePreset]);
    addRemoval();
    addAction(m_actions[Id::Configure]);
}

void PresetMenu::addPresets(Preset::Kind kind, const QString& title)
{
    bool isFirst = true;
    for (const Preset& preset : m_presets) {
        if (preset.kind != kind)
            continue;
        if (isFirst)
            addSection(title);
        isFirst = false;
        QAction* action = addAction(asMenuText(preset.name));
        action->setToolTip(plaintext::tip(helpOf(preset)));
        action->setEnabled(preset.problem.isEmpty());
        connect(action, &QAction::triggered, this,
                [this, draft = preset.draft] { m_workbench.setDraft(draft); });
    }
}

void PresetMenu::addRemoval()
{
    auto* removal = new QMenu(tr("&Remove Preset"), this);
    for (const Preset& preset : m_presets) {
        if (preset.kind != Preset::Kind::View)
            continue;
        connect(removal->addAction(asMenuText(preset.name)), &QAction::triggered, this, [this, preset] {
            dialogs::confirm(parentWidget(), tr("Remove the preset “%1”?").arg(preset.name), {},
                             tr("&Remove"), [this, preset] {
                                 if (const QString problem = m_folder.remove(preset); !problem.isEmpty())
                                     emit failed(problem);
                             });
        });
    }
    removal->setEnabled(!removal->isEmpty());
    addMenu(removal);
}

void PresetMenu::save()
{
    dialogs::askText(parentWidget(), tr("Save as Preset"), tr("Name:"), [this](const QString& name) {
        const QString wanted = name.trimmed();
        if (wanted.isEmpty())
            return;
        if (!m_folder.holds(wanted))
            return keep(wanted);
        dialogs::confirm(parentWidget(), tr("Replace the preset “%1”?").arg(wanted),
                         tr("There is one of this name already."), tr("&Replace"),
                         [this, wanted] { keep(wanted); });
    });
}

void PresetMenu::keep(const QString& name)
{
    const QString problem = m_folder.save(name, m_workbench.draft().view());
    if (problem.isEmpty())
        emit said(tr("The change is kept as “%1”.").arg(name));
    else
        emit failed(problem);
}

} // namespace host::desktop
