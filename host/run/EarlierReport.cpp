#include "EarlierReport.h"

#include "FileState.h"
#include "host/files/FileDescriptor.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/UsageError.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

#include <cerrno>
#include <stdexcept>

namespace host {

namespace {

const std::size_t longestLine = 1 << 20;
const std::size_t readAtOnce = 64 << 10;

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
        if (plan.documents()[place].problem.empty())
            m_places.emplace(plan.documents()[place].name, place);

    const FileDescriptor file = openRegularFile(path);
    if (!file.isOpen())
        refuse(systemError(errno));
    std::string waiting;
    std::size_t number = 1;
    for (;;) {
        const std::size_t before = waiting.size();
        waiting.resize(before + readAtOnce);
        const ssize_t count = ::read(file.get(), waiting.data() + before, readAtOnce);
        waiting.resize(before + static_cast<std::size_t>(count > 0 ? count : 0));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            refuse(systemError(errno));
        if (count == 0)
            break;
        std::size_t begin = 0;
        for (std::size_t end = 0; (end = waiting.find('\n', begin)) != std::string::npos; begin = end + 1)
            try {
                takeLine(std::string_view(waiting).substr(begin, end + 1 - begin));
                ++number;
            } catch (const std::invalid_argument& problem) {
                refuse("line " + std::to_string(number) + " " + problem.what());
            }
        waiting.erase(0, begin);
        if (waiting.size() > longestLine)
            refuse("line " + std::to_string(number) + " is too long");
    }
}

void EarlierReport::takeLine(std::string_view line)
{
    const QJsonDocument json =
        QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), static_cast<int>(line.size())));
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
