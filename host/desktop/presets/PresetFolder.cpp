#include "PresetFolder.h"

#include "SettingsLines.h"
#include "host/change/ViewJson.h"
#include "host/settings/DialogSettings.h"
#include "host/settings/SettingsFolder.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

namespace host::desktop {

namespace {

const char suffix[] = ".json";

StoredChoice choiceOf(const QString& name, const QStringList& options, const StoredSettings& stored)
{
    StoredChoice choice{name, options, {}, {}};
    for (const ActionEntry& entry : stored.entries) {
        if (entry.action != initialview::actionName)
            throw UsageError("it holds another action, \"" + entry.action.toStdString() + "\"");
        if (!choice.lines.isEmpty())
            choice.lines += QString();
        choice.lines += settingsLines(entry.settings);
        choice.view.add(DialogSettings::viewOf(entry.settings));
    }
    return choice;
}

void addStored(const SettingsFolder& folder, Preset::Kind kind, const QString& option,
               std::vector<Preset>& presets)
{
    std::vector<std::string> files;
    try {
        files = folder.files();
    } catch (const UsageError&) { // no folder, so nothing is stored
    }
    for (const std::string& file : files) {
        Preset preset;
        preset.kind = kind;
        preset.file = QFile::decodeName(QByteArray::fromStdString(folder.pathOf(file)));
        preset.name = QString::fromStdString(folder.baseName(file));
        try {
            const StoredSettings stored = folder.describe(file);
            preset.name = QString::fromStdString(folder.nameOf(file, stored));
            preset.draft.setStored(choiceOf(preset.name, {option, preset.file}, stored));
        } catch (const UsageError& error) {
            preset.problem = QString::fromStdString(error.what());
        }
        presets.push_back(std::move(preset));
    }
}

} // namespace

QString PresetFolder::userFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/quintar/views";
}

std::vector<Preset> PresetFolder::presets() const
{
    std::vector<Preset> presets;
    const QDir folder(m_views);
    for (const QString& name : folder.entryList({QString("*") + suffix}, QDir::Files, QDir::Name)) {
        Preset preset;
        preset.file = folder.filePath(name);
        preset.name = QUrl::fromPercentEncoding(name.chopped(static_cast<int>(sizeof suffix) - 1).toUtf8());
        try {
            preset.draft.setView(viewjson::readFile(QFile::encodeName(preset.file).toStdString()));
        } catch (const UsageError& error) {
            preset.problem = QString::fromStdString(error.what());
        }
        presets.push_back(std::move(preset));
    }
    addStored(SettingsFolder::actionLists(), Preset::Kind::ActionList, "--list", presets);
    addStored(SettingsFolder::favorites(), Preset::Kind::Favorite, "--favorite", presets);
    return presets;
}

/// Names may hold slashes and dots, file names may not.
QString PresetFolder::fileOf(const QString& name) const
{
    return m_views + "/" + QString::fromLatin1(QUrl::toPercentEncoding(name, " ", ".")) + suffix;
}

bool PresetFolder::holds(const QString& name) const
{
    return QFile::exists(fileOf(name));
}

QString PresetFolder::save(const QString& name, const ViewChange& view) const
{
    if (!QDir().mkpath(m_views))
        return QCoreApplication::translate("PresetFolder", "The folder %1 cannot be made.").arg(m_views);
    QSaveFile file(fileOf(name));
    const QByteArray bytes = QJsonDocument(viewjson::write(view)).toJson();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return QCoreApplication::translate("PresetFolder", "The preset cannot be kept: %1")
        .arg(file.errorString());
}

QString PresetFolder::remove(const Preset& preset) const
{
    QFile file(preset.file);
    if (preset.kind == Preset::Kind::View && file.remove())
        return {};
    return QCoreApplication::translate("PresetFolder", "The preset cannot be removed: %1")
        .arg(file.errorString());
}

} // namespace host::desktop
