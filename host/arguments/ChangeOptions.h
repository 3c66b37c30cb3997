#pragma once

#include "StoredOptions.h"
#include "host/change/ViewChange.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class Cell;
class OptionParser;

/// The options that say how documents are to open: view options, or settings of the action from one source.
class ChangeOptions
{
public:
    /// The object must outlive the parser.
    void take(OptionParser& parser);
    /// Throws UsageError unless there is exactly one source.
    void check() const;
    /// Reads the source. Throws UsageError, also when it does not suit the documents.
    /// \param password opens the document that others are to open like.
    /// \param cell locks in who reads that one.
    /// \param haveStandardInput whether one of the documents has no name.
    void read(std::string_view password, Cell& cell, bool haveStandardInput);

    /// What has been read: the entries, unless there is a change.
    const std::vector<ActionEntry>& entries() const { return m_entries; }
    const ViewChange& change() const { return m_change; }
    const std::vector<std::string>& filesRead() const { return m_filesRead; }
    /// What may be a mistake about the settings.
    std::vector<std::string> notes() const;
    /// Of that what is to be in the report on each document; may be empty.
    std::string noteOnAll() const;
    bool readsStandardInput() const { return m_viewFile == "-"; }

private:
    void takeViewOptions(OptionParser& parser);
    bool changesView() const;
    /// What the view options ask for, in the order in which they count.
    void readChange(std::string_view password, Cell& cell);
    void readSettings();
    std::string noteOnLanguage() const;

    StoredOptions m_stored;
    std::vector<std::string> m_settingWords;
    std::optional<std::string> m_viewFile;
    std::optional<std::string> m_model;
    bool m_titleFromFileName = false;
    bool m_titleIfMissing = false;
    ViewChange m_named; ///< Of the options that each name an entry.
    std::vector<ActionEntry> m_entries;
    ViewChange m_change;
    std::vector<std::string> m_filesRead;
};

} // namespace host
