#include "ChangeOptions.h"

#include "OptionParser.h"
#include "host/change/LanguageTag.h"
#include "host/change/ViewJson.h"
#include "host/change/ViewValues.h"
#include "host/document/PresentView.h"
#include "host/model/ModelView.h"
#include "host/settings/SetOption.h"
#include "host/settings/SettingsNotes.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"

namespace host {

namespace {

const std::size_t longestLanguage = 3;

/// The change that makes other documents open as this one does.
ViewChange asChange(const PresentView& present)
{
    return present.asChange();
}

} // namespace

void ChangeOptions::take(OptionParser& parser)
{
    m_stored.take(parser);
    parser.takeValue("set", appendTo(m_settingWords));
    takeViewOptions(parser);
}

void ChangeOptions::takeViewOptions(OptionParser& parser)
{
    for (const viewentries::Description& each : viewentries::all())
        parser.takeValue(each.option, [this, entry = each.entry](const std::string& value) {
            m_named.set(entry, viewvalues::parse(entry, value));
        });
    parser.takeValue("view", setOnce(m_viewFile, "--view"));
    parser.takeValue("like", setOnce(m_model, "--like"));
    parser.takeFlag("title-from-file-name", m_titleFromFileName);
    parser.takeFlag("title-if-missing", m_titleIfMissing);
}

void ChangeOptions::check() const
{
    const std::size_t sources = m_stored.count() + (m_settingWords.empty() ? 0 : 1) + (changesView() ? 1 : 0);
    if (sources != 1)
        throw UsageError(sources == 0
                             ? "which settings? Give view options (--page-mode, ...), --list, --favorite, "
                               "--tool-settings or --set"
                             : "settings come from one source: view options, --list, --favorite, "
                               "--tool-settings or --set");
    if (m_titleFromFileName && m_named[ViewEntry::Title])
        throw UsageError("--title and --title-from-file-name exclude each other");
}

bool ChangeOptions::changesView() const
{
    return !m_named.isEmpty() || m_viewFile || m_model || m_titleFromFileName || m_titleIfMissing;
}

void ChangeOptions::read(std::string_view password, Cell& cell, bool haveStandardInput)
{
    if (changesView())
        readChange(password, cell);
    else
        readSettings();
    if (haveStandardInput && m_change[ViewEntry::Title] == ViewValue(FileNameAsTitle()))
        throw UsageError(
            (m_titleFromFileName ? "--title-from-file-name" : "the view " + m_viewFile.value_or("")) +
            ": a document from standard input has no name");
}

void ChangeOptions::readChange(std::string_view password, Cell& cell)
{
    if (const std::string problem = m_named.contradiction(); !problem.empty())
        throw UsageError(problem);
    if (m_model)
        m_change.add(modelview::read(*m_model, password, cell, asChange));
    if (m_viewFile)
        m_change.add(viewjson::readFile(*m_viewFile));
    m_change.add(m_named);
    if (m_titleFromFileName)
        m_change.set(ViewEntry::Title, FileNameAsTitle());
    if (m_titleIfMissing)
        m_change.keepTitles();
    if (m_viewFile && !m_titleIfMissing && m_change.keepsTitles() && !m_change[ViewEntry::Title])
        throw UsageError("the view " + *m_viewFile + ": titleIfMissing goes with title or titleFromFileName");
    if (const std::string problem = m_change.contradiction(); !problem.empty())
        throw UsageError(problem);
    for (const auto& file : {m_model, m_viewFile})
        if (file)
            m_filesRead.push_back(*file);
}

void ChangeOptions::readSettings()
{
    if (m_stored.count() != 0) {
        m_filesRead.push_back(m_stored.find());
        m_entries = m_stored.read(m_filesRead.back());
    } else {
        ActionEntry entry{initialview::actionName, {}};
        for (const std::string& word : m_settingWords)
            setoption::apply(word, entry.settings);
        m_entries = {entry};
    }
}

std::vector<std::string> ChangeOptions::notes() const
{
    std::vector<std::string> notes;
    for (const ActionEntry& entry : m_entries)
        for (std::string& note : settingsnotes::about(entry.settings))
            notes.push_back(std::move(note));
    if (std::string note = noteOnAll(); !note.empty())
        notes.push_back(std::move(note));
    if (changesView() && m_change.isEmpty())
        notes.emplace_back("the view names nothing, so nothing is asked of the documents");
    if (std::string note = noteOnLanguage(); !note.empty())
        notes.push_back(std::move(note));
    return notes;
}

std::string ChangeOptions::noteOnLanguage() const
{
    const auto& language = m_change[ViewEntry::Lang];
    const auto* tag = language ? std::get_if<std::string>(&*language) : nullptr;
    if (tag == nullptr)
        return {};
    if (!isLanguageTag(*tag))
        return "the view's lang, \"" + *tag + "\", has not the form of a language tag";
    if (std::min(tag->find('-'), tag->size()) > longestLanguage)
        return "no language has the code \"" + tag->substr(0, tag->find('-')) +
               "\" so far: codes have two or three letters, as \"en\" for English";
    return {};
}

std::string ChangeOptions::noteOnAll() const
{
    return settingsnotes::aboutRowsLeftOut(m_entries);
}

} // namespace host
