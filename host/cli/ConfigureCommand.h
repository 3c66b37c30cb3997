#pragma once

#include "Command.h"

#include "host/arguments/PasswordOptions.h"
#include "host/arguments/StoredOptions.h"
#include "host/cell/Cell.h"
#include "host/settings/DialogSettings.h"
#include "host/settings/SettingsFile.h"
#include "host/settings/SettingsOutput.h"

#include <optional>
#include <string>
#include <vector>

namespace host {

/// "quintar configure": lets the user set up the action in its dialog.
class ConfigureCommand : public Command
{
public:
    options::CommandId id() const override { return options::CommandId::Configure; }
    bool showsWindows() const override { return true; }

protected:
    void takeOptions(OptionParser& parser) override;
    int work(const std::vector<std::string>& words) override;

private:
    void check() const;
    void readSettings();
    void chooseEntry(const StoredSettings& list);
    void readDocument();
    bool showDialog();
    int deliverOrTell();
    int deliver();
    void leaveOutUnchosen();
    int printSettings() const;
    int printChange() const;
    int write() const;
    int writeView() const;
    static int tell(const SettingsOutput::Outcome& outcome);

    std::vector<std::string> m_documents;
    StoredOptions m_stored;
    PasswordOptions m_password;
    int m_entry = 0; // 0 is none in particular
    bool m_all = false;
    Sandbox m_sandbox = Sandbox::Default;
    std::optional<SettingsOutput> m_output;
    SettingsOutput::Edit m_source;
    std::optional<DialogSettings> m_document;
    SettingsMap m_settings;
    QImage m_icon;
};

} // namespace host
