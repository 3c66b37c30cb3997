#include "RunCommand.h"

#include "OptionParser.h"

#include "host/change/PresentView.h"
#include "host/change/ViewJson.h"
#include "host/change/ViewValues.h"
#include "host/files/FileDescriptor.h"
#include "host/files/SafeOutput.h"
#include "host/program/LoadedDocument.h"
#include "host/run/BatchRun.h"
#include "host/run/EarlierReport.h"
#include "host/run/Report.h"
#include "host/run/RunPlan.h"
#include "host/settings/SetOption.h"
#include "host/settings/SettingsFile.h"
#include "host/settings/SettingsFolder.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/Suggestion.h"
#include "host/terminal/UsageError.h"

#include "EditInitialView/InitialViewSettings.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <thread>

namespace host {

namespace {

const std::size_t largestPasswordFile = 64 << 10;
const int leastMemory = 32;
const int longestTimeout = 24 * 60 * 60;

std::string readLines(const std::string& path, std::size_t limit, const char* what)
{
    const FileDescriptor file(path == "-" ? dup(STDIN_FILENO) : ::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string bytes;
    if (!file.isOpen() || !readAll(file.get(), bytes, limit))
        throw UsageError(std::string(what) + " " + path + " cannot be read: " + systemError(errno));
    return bytes;
}

OptionParser::Take append(std::vector<std::string>& values)
{
    return [&values](const std::string& value) { values.push_back(value); };
}

OptionParser::Take setOnce(std::optional<std::string>& value, const char* name)
{
    return [&value, name](const std::string& given) {
        if (value)
            throw UsageError(std::string(name) + " is given twice");
        value = given;
    };
}

SignedDocuments signedDocuments(const std::string& value)
{
    if (value == "append")
        return SignedDocuments::Append;
    if (value == "append-certified")
        return SignedDocuments::AppendCertified;
    if (value != "refuse")
        throw UsageError("--signed takes refuse, append or append-certified, not \"" + value + "\"" +
                         suggestion::didYouMean(value, {"refuse", "append", "append-certified"}));
    return SignedDocuments::Refuse;
}

/// What is odd about the numbers: files may hold what no dialog offers; the action makes of it what it can.
std::vector<std::string> oddNumbers(const SettingsMap& settings)
{
    std::vector<std::string> found;
    for (const initialview::Key& key : initialview::keys) {
        const QVariant value = settings.value(key.name);
        bool whole = false;
        const int number = value.toString().toInt(&whole);
        const bool unset =
            !value.isValid() || (key.name == initialview::key::OpenToPage && number < key.lowest);
        if (key.type == initialview::ValueType::Number && !unset &&
            (!whole || number < key.lowest || number > key.highest))
            found.push_back(std::string(key.name) + " is " + value.toString().toStdString() +
                            ", not a number from " + std::to_string(key.lowest) + " to " +
                            std::to_string(key.highest));
    }
    return found;
}

/// How a document opens, for others to open so.
ViewChange viewOf(const std::string& file, const std::string& password)
{
    LoadedDocument document(file, password);
    try {
        return PresentView(document.library()).asChange();
    } catch (const std::runtime_error& error) {
        throw UsageError(file + ": " + error.what());
    }
}

} // namespace

int RunCommand::work(const std::vector<std::string>& words)
{
    m_inputs = words;
    m_options.flush = m_options.flush || m_options.inPlace;
    check();
    readPassword();
    if (changesView())
        readChange();
    else
        readSettings();
    if (m_fileList)
        readFileList();
    warnOfSettingsWithoutEffect();

    const RunPlan plan = this->plan();
    std::optional<Report> report;
    if (m_reportFile)
        report.emplace(*m_reportFile, continuesReport() ? Report::Start::Continue : Report::Start::New);
    BatchRun::Done done = doneBefore(plan);
    if (m_outputFolder && !m_options.dryRun)
        if (const std::string problem = SafeOutput::makeFolder(*m_outputFolder); !problem.empty())
            throw UsageError(problem);
    m_options.tellStates = m_reportFile.has_value();
    m_options.tellChanges = m_reportFile.has_value() || !m_quiet;
    if (report) // may lie in the output folder
        report->begin();
    return BatchRun(plan, m_options, report ? &*report : nullptr, m_quiet, std::move(done)).run(m_limits);
}

void RunCommand::takeOptions(OptionParser& parser)
{
    m_limits.workers = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
    parser.takeValue("list", append(m_lists));
    parser.takeValue("favorite", append(m_favorites));
    parser.takeValue("tool-settings", append(m_toolSettings));
    parser.takeValue("set", append(m_settingWords));
    takeViewOptions(parser);
    parser.takeValue("output", setOnce(m_outputFolder, "-o"));
    parser.takeValue("base", setOnce(m_base, "--base"));
    parser.takeFlag("in-place", m_options.inPlace);
    parser.takeValue("password", setOnce(m_password, "--password"));
    parser.takeValue("password-file", setOnce(m_passwordFile, "--password-file"));
    parser.takeValue("files-from", setOnce(m_fileList, "--files-from"));
    parser.takeFlag("null", m_nullSeparated);
    parser.takeValue("report", setOnce(m_reportFile, "--report"));
    parser.takeValue("resume", setOnce(m_resumedReport, "--resume"));
    parser.takeValue(
        "signed", [this](const std::string& value) { m_options.signedDocuments = signedDocuments(value); });
    parser.takeFlag("rewrite", m_options.rewrite);
    parser.takeFlag("dry-run", m_options.dryRun);
    parser.takeFlag("sync", m_options.flush);
    parser.takeValue("jobs", [this](const std::string& value) {
        m_limits.workers = numberOption("--jobs", value, 1, 1024);
    });
    parser.takeValue("timeout", [this](const std::string& value) {
        m_limits.timeoutSeconds = numberOption("--timeout", value, 1, longestTimeout);
    });
    parser.takeValue("memory", [this](const std::string& value) {
        m_limits.memoryMiB = numberOption("--memory", value, leastMemory, 1 << 20);
    });
    parser.takeFlag("quiet", m_quiet);
}

void RunCommand::takeViewOptions(OptionParser& parser)
{
    for (const viewentries::Description& each : viewentries::all())
        parser.takeValue(each.option, [this, entry = each.entry](const std::string& value) {
            m_change.set(entry, viewvalues::parse(entry, value));
        });
    parser.takeValue("view", setOnce(m_viewFile, "--view"));
    parser.takeValue("like", setOnce(m_model, "--like"));
    parser.takeFlag("title-from-file-name", m_titleFromFileName);
    parser.takeFlag("title-if-missing", m_titleIfMissing);
}

bool RunCommand::changesView() const
{
    return !m_change.isEmpty() || m_viewFile || m_model || m_titleFromFileName || m_titleIfMissing;
}

void RunCommand::check() const
{
    const std::size_t sources = m_lists.size() + m_favorites.size() + m_toolSettings.size() +
                                (m_settingWords.empty() ? 0 : 1) + (changesView() ? 1 : 0);
    if (sources != 1)
        throw UsageError(sources == 0
                             ? "which settings? Give view options (--page-mode, ...), --list, --favorite, "
                               "--tool-settings or --set"
                             : "settings come from one source: view options, --list, --favorite, "
                               "--tool-settings or --set");
    if (m_titleFromFileName && m_change[ViewEntry::Title])
        throw UsageError("--title and --title-from-file-name exclude each other");
    if (m_outputFolder.has_value() == m_options.inPlace)
        throw UsageError(m_options.inPlace ? "-o and --in-place exclude each other"
                                           : "where to? Give -o DIR or --in-place");
    if (m_options.rewrite && m_options.inPlace)
        throw UsageError("--rewrite goes with -o: in place, the document's own bytes would be gone");
    if (m_outputFolder && m_outputFolder->empty())
        throw UsageError("the name of the output folder is empty");
    struct stat status;
    if (m_outputFolder && stat(m_outputFolder->c_str(), &status) == 0 && !S_ISDIR(status.st_mode))
        throw UsageError(*m_outputFolder + " is not a folder");
    if (m_base && (m_base->empty() || !m_outputFolder))
        throw UsageError(m_base->empty() ? "the name of the base folder is empty" : "--base goes with -o");
    if (m_password && m_passwordFile)
        throw UsageError("--password and --password-file exclude each other");
    if (m_nullSeparated && !m_fileList)
        throw UsageError("--null goes with --files-from");
    if (m_inputs.empty() && !m_fileList)
        throw UsageError("which documents? Name documents or folders, or give --files-from");
}

void RunCommand::readChange()
{
    if (m_model)
        m_options.change.add(viewOf(*m_model, m_options.password));
    if (m_viewFile)
        m_options.change.add(viewjson::readFile(*m_viewFile));
    m_options.change.add(m_change);
    if (m_titleFromFileName)
        m_options.change.set(ViewEntry::Title, FileNameAsTitle());
    if (m_titleIfMissing)
        m_options.change.keepTitles();
    for (const auto& file : {m_model, m_viewFile})
        if (file)
            m_filesRead.push_back(*file);
    if (const std::string problem = m_options.change.contradiction(); !problem.empty())
        throw UsageError(problem);
}

void RunCommand::readSettings()
{
    if (!m_lists.empty()) {
        m_filesRead.push_back(SettingsFolder::actionLists().find(m_lists.front()));
        m_options.entries = settingsfile::readActionList(m_filesRead.back());
    } else if (!m_favorites.empty()) {
        m_filesRead.push_back(SettingsFolder::favorites().find(m_favorites.front()));
        m_options.entries = settingsfile::readFavorite(m_filesRead.back());
    } else if (!m_toolSettings.empty()) {
        m_filesRead.push_back(m_toolSettings.front());
        m_options.entries = settingsfile::readToolSettings(m_filesRead.back());
    } else {
        ActionEntry entry{initialview::actionName, {}};
        for (const std::string& word : m_settingWords)
            setoption::apply(word, entry.settings);
        m_options.entries = {entry};
    }
}

void RunCommand::readPassword()
{
    if (m_passwordFile) {
        m_filesRead.push_back(*m_passwordFile);
        const std::string lines = readLines(*m_passwordFile, largestPasswordFile, "the password file");
        m_password = lines.substr(0, lines.find_first_of("\r\n"));
    }
    m_options.password = m_password.value_or("");
}

void RunCommand::readFileList()
{
    const std::string bytes = readLines(*m_fileList, std::string::npos / 2, "the list of documents");
    m_filesRead.push_back(*m_fileList);
    if (!m_nullSeparated && bytes.find('\0') != std::string::npos)
        throw UsageError("the list of documents " + *m_fileList +
                         " holds NUL characters; --null says that they end the names");
    const char separator = m_nullSeparated ? '\0' : '\n';
    for (std::size_t begin = 0; begin < bytes.size();) {
        const std::size_t end = std::min(bytes.find(separator, begin), bytes.size());
        if (end > begin)
            m_inputs.push_back(bytes.substr(begin, end - begin));
        begin = end + 1;
    }
}

void RunCommand::warnOfSettingsWithoutEffect() const
{
    for (const ActionEntry& entry : m_options.entries) {
        for (const std::string& odd : oddNumbers(entry.settings))
            note(odd);
        const bool layout = entry.settings.value(initialview::key::LayoutAndMagn).toBool();
        const bool viewer = entry.settings.value(initialview::key::ViewerPrefs).toBool();
        if (!layout && !viewer)
            note("neither LayoutAndMagnCheckBox nor ViewerPrefsCheckBox is on, so nothing will be changed");
        else if (layout &&
                 entry.settings.value(initialview::key::OpenToPage).toInt() < initialview::firstPage)
            note("OpenToPageSpinBox is not set, so page and magnification stay as they are");
    }
}

void RunCommand::note(const std::string& text) const
{
    if (!m_quiet)
        host::note(text);
}

bool RunCommand::continuesReport() const
{
    if (!m_reportFile || !m_resumedReport)
        return false;
    struct stat report;
    struct stat resumed;
    if (stat(m_reportFile->c_str(), &report) != 0 || stat(m_resumedReport->c_str(), &resumed) != 0)
        return *m_reportFile == *m_resumedReport;
    return report.st_dev == resumed.st_dev && report.st_ino == resumed.st_ino;
}

BatchRun::Done RunCommand::doneBefore(const RunPlan& plan) const
{
    struct stat status;
    const bool firstRun =
        continuesReport() && stat(m_resumedReport->c_str(), &status) != 0 && errno == ENOENT;
    if (!m_resumedReport || firstRun)
        return {};
    BatchRun::Done done = EarlierReport(*m_resumedReport, plan).done();
    if (continuesReport()) // which has the lines
        for (auto& [place, line] : done)
            line.clear();
    return done;
}

RunPlan RunCommand::plan() const
{
    RunPlan plan(m_outputFolder.value_or(""), m_base.value_or(""));
    for (const std::string& input : m_inputs)
        plan.add(input);
    plan.checkTargets();
    if (m_reportFile) {
        std::vector<std::string> filesRead = m_filesRead;
        if (m_resumedReport && !continuesReport())
            filesRead.push_back(*m_resumedReport);
        plan.checkReport(*m_reportFile, filesRead);
    }
    for (const std::string& folder : plan.emptyFolders())
        note("no PDF documents in " + folder);
    if (plan.documents().empty() && plan.emptyFolders().empty())
        note("the list of documents is empty");
    return plan;
}

} // namespace host
