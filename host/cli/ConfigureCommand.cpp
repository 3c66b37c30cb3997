#include "ConfigureCommand.h"

#include "host/arguments/LimitOptions.h"
#include "host/arguments/OptionParser.h"
#include "host/change/ViewValues.h"
#include "host/document/PresentView.h"
#include "host/model/ModelView.h"
#include "host/program/HostApplication.h"
#include "host/program/InstallLayout.h"
#include "host/program/PluginHost.h"
#include "host/settings/SetOption.h"
#include "host/settings/SettingsFolder.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"
#include "shared/CActionInterface.h"
#include "shared/ini/StoreReport.h"
#include "shared/ini/StoredKeys.h"

#include <QApplication>

#include <unistd.h>

#include <algorithm>
#include <new>

namespace host {

namespace {

using namespace storedkeys;

const int mostEntries = 1 << 20;
const int iconSide = 42;

/// Said before the window opens: its save buttons say nothing when they fail.
void noteMissingFolders()
{
    for (const SettingsFolder& folder : {SettingsFolder::actionLists(), SettingsFolder::favorites()})
        if (const std::string problem = folder.make(); !problem.empty())
            note(std::string("no ") + folder.kind() + " can be stored: " + problem);
}

/// The action's image for the selected state, as its dialog stores it with favourites.
QImage iconOf(CActionInterface& action)
{
    const QImage image(":/Quintar/Resources/Tools/" + action.GetDefaultIcon().section('#', 1, 1));
    return image.scaled(iconSide, iconSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

int ConfigureCommand::work(const std::vector<std::string>& words)
{
    m_documents = words;
    check();
    readSettings();
    readDocument();
    if (showDialog())
        return deliverOrTell();
    complain("the window was closed without OK: no settings were " +
             std::string(m_output ? "written" : "printed"));
    return exitstatus::someFailed;
}

void ConfigureCommand::takeOptions(OptionParser& parser)
{
    m_stored.take(parser);
    parser.takeValue("entry", [this](const std::string& value) {
        m_entry = numberOption("--entry", value, 1, mostEntries);
    });
    parser.takeValue("output", [this](const std::string& value) {
        if (m_output)
            throw UsageError("-o is given twice");
        m_output.emplace(value);
    });
    parser.takeFlag("all", m_all);
    takeSandbox(parser, m_sandbox);
    m_password.take(parser);
}

void ConfigureCommand::check() const
{
    if (m_documents.size() > 1)
        throw UsageError("configure takes one document, not " + std::to_string(m_documents.size()));
    if (m_stored.count() > 1)
        throw UsageError("settings come from one file: --list, --favorite or --tool-settings");
    if (m_entry != 0 && !m_stored.namesList())
        throw UsageError("--entry goes with --list");
    m_password.check();
}

void ConfigureCommand::readSettings()
{
    if (m_stored.count() == 0)
        return;
    m_source.file = m_stored.find();
    if (m_stored.namesList())
        chooseEntry(settingsfile::describeActionList(m_source.file));
    else
        m_settings = m_stored.read(m_source.file).front().settings;
}

void ConfigureCommand::chooseEntry(const StoredSettings& list)
{
    const auto ours = [](const ActionEntry& entry) { return entry.action == initialview::actionName; };
    const auto& entries = list.entries;
    const auto first = std::find_if(entries.begin(), entries.end(), ours);
    auto chosen = first;
    if (m_entry != 0)
        chosen = entries.begin() + std::min<std::ptrdiff_t>(m_entry - 1, std::ssize(entries));
    else if (std::count_if(entries.begin(), entries.end(), ours) > 1)
        throw UsageError(m_source.file + " holds several entries; say which with --entry");
    if (chosen == entries.end() || !ours(*chosen))
        throw UsageError(m_source.file + (m_entry != 0 ? " has no entry of \"" : " holds no \"") +
                         initialview::actionName + "\"" +
                         (m_entry != 0 ? " in place " + std::to_string(m_entry) : ""));
    m_source.entry = chosen->number;
    m_settings = chosen->settings;
}

/// A settings file counts before the document, which is to be readable all the same.
void ConfigureCommand::readDocument()
{
    if (m_documents.empty())
        return;
    const std::string& file = m_documents.front();
    m_password.read();
    Cell cell(m_sandbox);
    noteMissing(cell, m_sandbox);
    const ViewChange present = modelview::read(file, m_password.password(), cell,
                                               [](const PresentView& view) { return view.entries(); });
    if (!m_source.file.empty())
        return;
    m_document.emplace(present);
    const bool makesSettings = m_output ? !m_output->isView() : m_all;
    using Unshown = DialogSettings::Unshown;
    for (const std::string& each : m_document->notes(makesSettings ? Unshown::Replaced : Unshown::Stays))
        note(std::string(file).append(": ").append(each));
    m_settings = m_document->map();
}

bool ConfigureCommand::showDialog()
{
    char program[] = "quintar";
    char* arguments[] = {program, nullptr};
    int count = 1;
    std::unique_ptr<QCoreApplication> application;
    if (QCoreApplication::instance() == nullptr)
        application = hostapplication::forWindows(count, arguments);
    const PluginHost plugin(installlayout::pluginFile());
    noteMissingFolders();

    DialogLoadStruct load{};
    load.pSettings = &m_settings;
    load.bSkipDocumentRead = true; // readDocument() has, and tells what the action passes over in silence
    m_icon = iconOf(plugin.action());
    storereport::begin();
    const bool isAccepted = plugin.action().ShowDialogProc(nullptr, &load) == 1;
    for (const QString& report : storereport::take())
        complain(report.toStdString());
    return isAccepted;
}

/// Not left to main, which would say that nothing was begun.
int ConfigureCommand::deliverOrTell()
try {
    return deliver();
} catch (const std::bad_alloc&) {
    complain("it is out of memory; the settings may have been written or not");
    return exitstatus::someFailed;
}

int ConfigureCommand::deliver()
{
    for (const char* request :
         {request::actionListName, request::actionListCategory, request::actionListOverwrite})
        m_settings.remove(request);
    if (m_output && m_output->isView())
        return writeView();
    if (!m_output && m_document && !m_all)
        return printChange();
    leaveOutUnchosen();
    return m_output ? write() : printSettings();
}

void ConfigureCommand::leaveOutUnchosen()
{
    std::vector<std::string> leftOut;
    setoption::wordsOf(m_settings, leftOut);
    for (const std::string& key : leftOut) {
        note(key + " is left out: no value is chosen");
        m_settings.remove(QString::fromStdString(key));
    }
}

int ConfigureCommand::printSettings() const
{
    std::vector<std::string> leftOut;
    std::string line;
    for (const std::string& word : setoption::wordsOf(m_settings, leftOut))
        line += (line.empty() ? "--set " : " --set ") + word;
    printResult(line + "\n");
    return exitstatus::done;
}

int ConfigureCommand::printChange() const
{
    std::string line;
    for (const std::string& word : viewvalues::optionsOf(m_document->changeTo(m_settings)))
        line += (line.empty() ? "" : " ") + word;
    if (line.empty())
        note("nothing was changed in the window, so there is nothing to run");
    else
        printResult(line + "\n");
    return exitstatus::done;
}

int ConfigureCommand::writeView() const
{
    const bool isChange = m_document && !m_all;
    const ViewChange view = isChange     ? m_document->changeTo(m_settings)
                            : m_document ? m_document->viewShown(m_settings)
                                         : DialogSettings::viewOf(m_settings);
    if (view.isEmpty()) {
        complain(isChange ? "nothing was changed in the window: no view was written; --all takes everything "
                            "that it shows"
                          : "both groups of the window are off: no view was written");
        return exitstatus::someFailed;
    }
    return tell(m_output->write(view));
}

int ConfigureCommand::write() const
{
    return tell(m_output->write(m_settings, m_source, m_icon));
}

int ConfigureCommand::tell(const SettingsOutput::Outcome& outcome)
{
    complain(outcome.words);
    return outcome.isWritten ? exitstatus::done : exitstatus::someFailed;
}

} // namespace host
