#include "ListsCommand.h"

#include "host/arguments/OptionParser.h"
#include "host/settings/SettingsFolder.h"
#include "host/settings/SettingsWords.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/TerminalText.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"

#include <QJsonArray>

namespace host {

namespace {

bool isOurs(const ActionEntry& entry)
{
    return entry.action == initialview::actionName;
}

std::string actionInWords(const ActionEntry& entry)
{
    const std::string name = entry.action.isEmpty() ? "another action" : entry.action.toStdString();
    return isOurs(entry) ? name : name + " (cannot be run here)";
}

/// The lines, moved in by four more columns.
std::string indented(const std::string& lines)
{
    std::string text;
    for (std::size_t begin = 0; begin < lines.size();) {
        const std::size_t end = lines.find('\n', begin) + 1;
        text += "    " + lines.substr(begin, end - begin);
        begin = end;
    }
    return text;
}

/// Prints the files of the user's folders, each as it is read.
class Listing
{
public:
    explicit Listing(bool json) : m_json(json) {}

    void print(const SettingsFolder& folder, const std::string& title)
    {
        try {
            const std::vector<std::string> files = folder.files();
            if (!m_json)
                printResult(title + " in " + forTerminal(folder.path()) +
                            (files.empty() ? ": none\n" : ":\n"));
            for (const std::string& file : files)
                printFile(folder, file);
        } catch (const UsageError& error) {
            cannotRead(error);
        }
    }

    bool failed() const { return m_failed; }

private:
    void printFile(const SettingsFolder& folder, const std::string& file)
    {
        try {
            const StoredSettings stored = folder.describe(file);
            printResult(m_json ? toJson(folder, file, stored) : inWords(folder, file, stored));
        } catch (const UsageError& error) {
            cannotRead(error);
        }
    }

    void cannotRead(const UsageError& error)
    {
        m_failed = true;
        complain(error.what());
    }

    static std::string inWords(const SettingsFolder& folder, const std::string& file,
                               const StoredSettings& stored)
    {
        std::string text = "\n" + forTerminal(folder.nameOf(file, stored)) + "\n";
        text += "  File: " + forTerminal(file) + "\n";
        if (!stored.category.isEmpty())
            text += "  Category: " + forTerminal(stored.category.toStdString()) + "\n";
        int place = 0;
        for (const ActionEntry& entry : stored.entries) {
            text += "  " + std::to_string(++place) + ". " + forTerminal(actionInWords(entry)) + "\n";
            if (isOurs(entry))
                text += indented(forTerminalLines(settingsInWords(entry.settings)));
        }
        return text;
    }

    static std::string toJson(const SettingsFolder& folder, const std::string& file,
                              const StoredSettings& stored)
    {
        QJsonArray actions;
        for (const ActionEntry& entry : stored.entries)
            actions.append(QJsonObject{
                {"action", entry.action},
                {"settings",
                 isOurs(entry) ? QJsonValue(QJsonObject::fromVariantMap(entry.settings)) : QJsonValue()}});
        QJsonObject object{{"kind", folder.kind()},
                           {"name", QString::fromStdString(folder.nameOf(file, stored))},
                           {"category", stored.category.isEmpty() ? QJsonValue() : stored.category},
                           {"actions", actions}};
        insertName(object, "file", folder.pathOf(file));
        return jsonLine(object);
    }

    bool m_json;
    bool m_failed = false;
};

} // namespace

void ListsCommand::takeOptions(OptionParser& parser)
{
    parser.takeFlag("json", m_json);
}

int ListsCommand::work(const std::vector<std::string>& words)
{
    if (!words.empty())
        throw UsageError("lists takes no names: " + words.front());
    Listing listing(m_json);
    listing.print(SettingsFolder::actionLists(), "Action lists");
    listing.print(SettingsFolder::favorites(), m_json ? "" : "\nFavourites");
    return listing.failed() ? exitstatus::someFailed : exitstatus::done;
}

} // namespace host
