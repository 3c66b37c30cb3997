#pragma once

#include "ListOptions.h"
#include "PasswordOptions.h"
#include "host/plan/RunPlan.h"

#include <string>
#include <string_view>
#include <vector>

namespace host {

class OptionParser;

/// The options that say which documents a command works on, and the password that opens them.
class DocumentOptions
{
public:
    /// The object must outlive the parser.
    void take(OptionParser& parser);
    /// \param words the documents and folders that are named by themselves.
    /// \param isInputTaken whether something else is read from standard input. Throws UsageError.
    void check(const std::vector<std::string>& words, bool isInputTaken = false) const;
    /// Whether one of the documents comes from standard input.
    static bool haveStandardInput(const std::vector<std::string>& words);
    /// Reads password and list. Throws UsageError.
    void read(const std::vector<std::string>& words);

    /// Documents and folders: those that are named by themselves, and then those of the list.
    const std::vector<std::string>& inputs() const { return m_inputs; }
    /// Throws UsageError.
    void addTo(RunPlan& plan) const;
    /// The documents for a command that only reads them. Throws UsageError.
    RunPlan planForReading(RunPlan::Found found) const;
    /// Whether an option names it; documents may come from it as well.
    bool readsStandardInput() const { return m_password.file() == "-" || m_list.isStandardInput(); }
    /// The object keeps it.
    std::string_view password() const { return m_password.password(); }
    const std::vector<std::string>& filesRead() const { return m_filesRead; }

private:
    PasswordOptions m_password;
    ListOptions m_list;
    bool m_refusesFolders = false;
    std::vector<std::string> m_inputs;
    std::vector<std::string> m_filesRead;
};

} // namespace host
