#include "EarlierReport.h"

#include "Report.h"
#include "host/files/FileDescriptor.h"
#include "host/files/FileState.h"
#include "host/report/LineReader.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/UsageError.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <stdexcept>

namespace host {

namespace {

bool isDone(const QJsonObject& object, const RunPlan::Document& document)
{
    const QString status = object.value("status").toString();
    const std::string fileState = object.value("fileState").toString().toStdString();
    const std::string outputState = object.value("outputState").toString().toStdString();
    return (status == "changed" || status == "unchanged") && nameIn(object, "output") == document.target &&
           !fileState.empty() && fileState == stateOf(document.name) &&
           outputState == stateOf(document.target);
}

} // namespace

EarlierReport::EarlierReport(const std::string& path, const RunPlan& plan) : m_plan(plan)
{
    const auto refuse = [&](const std::string& why) {
        throw UsageError("the report of an earlier run, " + path + ", cannot be used: " + why);
    };
    for (std::size_t place = 0; place < plan.documents().size(); ++place)
        if (!plan.documents()[place].problem)
            m_places.emplace(plan.documents()[place].name, place);

    const FileDescriptor file = openRegularFile(path);
    if (!file.isOpen())
        refuse(systemError(errno));
    LineReader lines(file.get(), Report::longestLine);
    try {
        while (const auto line = lines.next())
            takeLine(*line);
    } catch (const std::invalid_argument& problem) {
        refuse("line " + std::to_string(lines.number()) + " " + problem.what());
    } catch (const std::runtime_error& problem) {
        refuse(problem.what());
    }
}

void EarlierReport::takeLine(std::string_view line)
{
    const QJsonDocument json =
        QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), static_cast<int>(line.size())));
    if (Report::isAboutRun(json.object()))
        return;
    if (!json.isObject() || !json.object().contains("file") || !json.object().contains("status"))
        throw std::invalid_argument("tells nothing of a document");
    const auto place = m_places.find(nameIn(json.object(), "file"));
    if (place == m_places.end())
        return;
    if (isDone(json.object(), m_plan.documents()[place->second]))
        m_done.insert_or_assign(place->second, std::string(line));
    else
        m_done.erase(place->second);
}

} // namespace host
