#include "UndoPlan.h"

#include "host/files/FileState.h"
#include "host/files/Links.h"
#include "host/report/LineReader.h"
#include "host/report/Report.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/UsageError.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <sys/file.h>

#include <algorithm>
#include <cerrno>
#include <numeric>
#include <set>
#include <stdexcept>
#include <utility>

namespace host {

namespace {

const std::size_t checksumLength = 64;

bool isChecksum(const std::string& text)
{
    return text.size() == checksumLength && text.find_first_not_of("0123456789abcdef") == std::string::npos;
}

/// Whether the report could have been written so.
bool isUpdate(const AppendedUpdate& update)
{
    const auto before = FileState::fromText(update.before);
    const auto after = FileState::fromText(update.after);
    const bool isKnown = update.after.empty() ? update.begun && isChecksum(update.unfinished)
                                              : after && before && after->size > before->size;
    return before && before->size > 0 && isKnown && isChecksum(update.checksum);
}

bool isFileName(const std::string& name)
{
    return name.starts_with('/') && name.find('\0') == std::string::npos;
}

std::string textIn(const QJsonObject& object, const char* key)
{
    return object.value(key).toString().toStdString();
}

QJsonDocument jsonOf(std::string_view line)
{
    return QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), static_cast<int>(line.size())));
}

bool isWhole(std::string_view line)
{
    return jsonOf(line).isObject();
}

} // namespace

UndoPlan::UndoPlan(const std::string& report) : m_file(openRegularFile(report))
{
    const auto refuse = [&](const std::string& why) {
        throw UsageError("the report " + report + " cannot be used: " + why);
    };
    if (!m_file.isOpen())
        refuse(systemError(errno));
    lock(report);
    try {
        readLines();
    } catch (const std::runtime_error& problem) {
        refuse(problem.what());
    }
    if (m_lines == 0 && m_unreadable > 0)
        refuse("it is no report of a run");
    sumUp(report);
}

void UndoPlan::lock(const std::string& report) const
{
    if (flock(m_file.get(), LOCK_EX | LOCK_NB) == 0)
        return;
    const int problem = errno;
    if (problem == EWOULDBLOCK)
        throw UsageError("the report " + report + " is in use by a run");
    note("the report " + report + " cannot be locked (" + systemError(problem) +
         "); no run may write it meanwhile");
}

void UndoPlan::readLines()
{
    LineReader lines(m_file.get(), Report::longestLine);
    while (const auto line = lines.next())
        takeLine(*line, lines.number());
    // A copy of a report may lack the last line feed; half a line is what a killed run leaves.
    if (isWhole(lines.rest()))
        takeLine(lines.rest(), lines.number() + 1);
}

void UndoPlan::takeLine(std::string_view line, std::size_t number)
{
    const QJsonDocument json = jsonOf(line);
    if (json.isObject() && json.object().contains("file") && json.object().contains("status")) {
        ++m_lines;
        takeResult(json.object(), number);
    } else if (Report::isAboutRun(json.object())) {
        ++m_lines;
    } else if (m_unreadable++ == 0) {
        m_firstUnreadable = number;
    }
}

void UndoPlan::takeResult(const QJsonObject& object, std::size_t number)
{
    const std::string status = textIn(object, "status");
    const std::string path = nameIn(object, "output");
    const std::string saved = textIn(object, "saved");
    if (status == "failed")
        return takeFailure(path);
    const QJsonObject undo = object.value("undo").toObject();
    const AppendedUpdate update{textIn(undo, "fileState"), textIn(object, "outputState"),
                                textIn(undo, "sha256"), status == "begun", textIn(undo, "unfinished")};
    if ((status != "changed" && status != "begun" && saved != "copied") || saved.empty())
        return;
    if (!object.contains("undo") && update.after != textIn(object, "fileState")) {
        ++m_results;
        m_leftAlone.push_back(
            {path, {ReasonCode::NotInPlace, "it is a result of -o, and its document is as it was"}});
    } else if (!object.contains("undo")) {
        m_leftAlone.push_back(
            {path, {ReasonCode::NoUndoRecord, "the report does not tell what stood there before"}});
    } else if (!isUpdate(update) || !isFileName(path)) {
        m_leftAlone.push_back({path.empty() ? "a document without a name" : path,
                               {ReasonCode::BadReport, "line " + std::to_string(number) +
                                                           " of the report says what no run can have done"}});
    } else {
        takeUpdate(path, update);
        m_newestLine[m_places.at(path)] = number;
    }
}

void UndoPlan::takeFailure(const std::string& path)
{
    if (const auto place = m_places.find(path); place != m_places.end()) {
        AppendedUpdate& newest = m_documents[place->second].updates.back();
        newest.failed = newest.begun;
    }
}

void UndoPlan::takeUpdate(const std::string& path, AppendedUpdate update)
{
    const auto [place, isNew] = m_places.try_emplace(path, m_documents.size());
    if (isNew) {
        m_documents.push_back({path, {}});
        m_newestLine.push_back(0);
    }
    std::vector<AppendedUpdate>& updates = m_documents[place->second].updates;
    const auto settles = [&update](const AppendedUpdate& other) {
        return other.begun && other.before == update.before &&
               (other.after == update.after || other.after.empty());
    };
    if (!updates.empty() && settles(updates.back()))
        updates.back() = std::move(update);
    else
        updates.push_back(std::move(update));
}

void UndoPlan::restrictTo(const std::vector<std::string>& names)
{
    std::map<std::string, const std::string*> wanted;
    for (const std::string& name : names)
        wanted.emplace(resolved(behindLink(name)), &name);
    std::set<std::string> found;
    const auto isUnwanted = [&](const std::string& path) {
        const bool isWanted = wanted.count(path) > 0;
        if (isWanted)
            found.insert(path);
        return !isWanted;
    };
    std::erase_if(m_documents, [&](const Document& each) { return isUnwanted(each.path); });
    std::erase_if(m_leftAlone, [&](const LeftAlone& each) { return isUnwanted(each.name); });
    for (const auto& [path, name] : wanted)
        if (found.count(path) == 0)
            m_leftAlone.push_back({*name, {ReasonCode::NotInReport, "the report tells of no change of it"}});
}

/// Puts the documents with the newest updates first. Throws UsageError where the report has nothing to undo.
void UndoPlan::sumUp(const std::string& report)
{
    if (m_documents.empty() && m_results > 0 && m_results == m_leftAlone.size())
        throw UsageError("the report " + report +
                         " is of a run with -o, which needs no undo: the documents are as they were, and "
                         "the results can be deleted");
    std::vector<std::size_t> order(m_documents.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [this](std::size_t one, std::size_t other) { return m_newestLine[one] > m_newestLine[other]; });
    std::vector<Document> sorted;
    sorted.reserve(order.size());
    for (const std::size_t place : order) {
        sorted.push_back(std::move(m_documents[place]));
        std::reverse(sorted.back().updates.begin(), sorted.back().updates.end());
    }
    m_documents = std::move(sorted);
    m_places.clear();
    if (m_unreadable > 0)
        m_leftAlone.push_back(
            {report,
             {ReasonCode::BadReport,
              "line " + std::to_string(m_firstUnreadable) +
                  (m_unreadable > 1 ? " and " + std::to_string(m_unreadable - 1) + " more tell"
                                    : std::string(" tells")) +
                  " nothing of a document"}});
}

} // namespace host
