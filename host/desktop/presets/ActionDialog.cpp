#include "ActionDialog.h"

#include "SettingsLines.h"
#include "host/program/InstallLayout.h"
#include "host/settings/DialogSettings.h"
#include "host/settings/SetOption.h"
#include "host/settings/SettingsFile.h"
#include "host/settings/SettingsFolder.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"
#include "shared/CActionInterface.h"
#include "shared/ini/StoreReport.h"
#include "shared/ini/StoredKeys.h"

#include <QCoreApplication>
#include <QFile>

namespace host::desktop {

namespace {

/// What entries do that are applied one after the other: of each group, the last that has it switched on.
SettingsMap together(const std::vector<ActionEntry>& entries)
{
    SettingsMap map = entries.front().settings;
    for (const ActionEntry& entry : entries)
        for (const initialview::Key& each : initialview::keys)
            if (entry.settings.value(each.group != nullptr ? each.group : each.name).toBool())
                map.insert(each.name, entry.settings.value(each.name));
    return map;
}

SettingsMap settingsOf(const QStringList& options)
{
    SettingsMap map;
    try {
        for (int place = 0; place + 1 < options.size(); place += 2) {
            const std::string word = QFile::encodeName(options.at(place + 1)).toStdString();
            if (options.at(place) == "--set")
                setoption::apply(word, map);
            else
                map = together(options.at(place) == "--list" ? settingsfile::readActionList(word)
                                                             : settingsfile::readFavorite(word));
        }
    } catch (const UsageError&) { // gone or changed meanwhile: the dialog starts empty
    }
    return map;
}

StoredChoice choiceOf(const SettingsMap& map)
{
    StoredChoice choice;
    choice.name = QCoreApplication::translate("ActionDialog", "Settings of the action");
    std::vector<std::string> leftOut;
    for (const std::string& word : setoption::wordsOf(map, leftOut))
        choice.options += {"--set", QString::fromStdString(word)};
    choice.lines = settingsLines(map);
    choice.view = DialogSettings::viewOf(map);
    return choice;
}

} // namespace

SettingsMap ActionDialog::startingFrom(const ChangeDraft& start, const DocumentFacts* facts)
{
    if (start.stored())
        return settingsOf(start.stored()->options);
    if (facts == nullptr && start.isEmpty())
        return {};
    ViewChange present;
    for (const viewentries::Description& each : viewentries::all())
        present.set(each.entry, facts != nullptr ? (*facts)[each.entry] : ViewValue(Unset()));
    if (facts != nullptr && !facts->view.action.isEmpty())
        present.set(ViewEntry::OpenPage, OtherAction{facts->view.action.toStdString()});
    present.add(start.view());
    return DialogSettings(present).map();
}

std::optional<StoredChoice> ActionDialog::show(QWidget* parent, const ChangeDraft& start,
                                               const DocumentFacts* facts)
{
    if (m_plugin == nullptr)
        m_plugin = std::make_unique<PluginHost>(installlayout::pluginFile());
    for (const SettingsFolder& folder : {SettingsFolder::actionLists(), SettingsFolder::favorites()})
        folder.make();
    SettingsMap map = startingFrom(start, facts);
    DialogLoadStruct load{};
    load.pSettings = &map;
    load.bSkipDocumentRead = true;
    storereport::begin();
    const bool isAccepted = m_plugin->action().ShowDialogProc(parent, &load) == 1;
    m_reports = storereport::take();
    if (!isAccepted)
        return std::nullopt;
    using namespace storedkeys;
    for (const char* key :
         {request::actionListName, request::actionListCategory, request::actionListOverwrite})
        map.remove(key);
    return choiceOf(map);
}

} // namespace host::desktop
