#include "RenderLoop.h"

#include "Confinement.h"
#include "PdfPages.h"
#include "host/files/FileDescriptor.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/JsonLine.h"
#include "host/terminal/StandardOutput.h"
#include "host/terminal/UsageError.h"

#include <QFile>
#include <QJsonArray>

#include <poll.h>
#include <unistd.h>

#include <cerrno>

namespace host {

namespace {

const int formVersion = 1;

void tell(const char* event, QJsonObject object)
{
    object.insert("event", event);
    printResult(jsonLine(object));
}

QJsonObject reasonOf(const Failure& failure)
{
    return {{"reasonCode", nameOf(failure.code)}, {"reason", QString::fromStdString(failure.text)}};
}

/// The document is opened before this process gives up what it takes to open anything.
std::unique_ptr<QFile> openedAndLockedIn(const DocumentRequest& request)
{
    FileDescriptor descriptor = openRegularFile(request.file);
    if (!descriptor.isOpen())
        throw DocumentError(Failure::ofSystem(errno, ReasonCode::ReadFailed));
    auto file = std::make_unique<QFile>();
    if (!file->open(descriptor.release(), QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        throw DocumentError({ReasonCode::ReadFailed, file->errorString().toStdString()});
    confinement::enter();
    return file;
}

} // namespace

RenderLoop::RenderLoop() : m_lines(STDIN_FILENO, longestLine) {}

RenderLoop::~RenderLoop() = default;

int RenderLoop::run()
{
    std::optional<std::string> line;
    while (!(line = m_lines.next()))
        if (!waitForLine())
            return exitstatus::done;
    const auto request = DocumentRequest::fromJson(*line);
    if (!request)
        throw UsageError("the first line names no document");
    try {
        const std::unique_ptr<QFile> file = openedAndLockedIn(*request);
        confinement::startWork();
        m_pages = std::make_unique<PdfPages>(*file, request->password);
        confinement::rest();
        tell("document", {{"version", formVersion}, {"pages", m_pages->count()}});
        const int status = serve();
        m_pages.reset(); // before its file
        return status;
    } catch (const DocumentError& error) {
        tell("failed", reasonOf(error.failure()));
        return exitstatus::someFailed;
    }
}

int RenderLoop::serve()
{
    for (takeRequests(); !m_waiting.isEmpty() || waitForLine(); takeRequests())
        if (const auto request = m_waiting.takeNext())
            answer(*request);
    return exitstatus::done;
}

/// \returns false when none will come.
bool RenderLoop::waitForLine() const
{
    pollfd waiting{m_lines.descriptor(), POLLIN, 0};
    return !m_lines.isAtEnd() && poll(&waiting, 1, idleSeconds * 1000) > 0;
}

void RenderLoop::takeRequests()
{
    while (const auto line = m_lines.next()) {
        const auto request = PageRequest::fromJson(*line);
        if (!request)
            throw UsageError("a line asks for no picture that can be drawn");
        m_waiting.add(*request);
    }
}

void RenderLoop::answer(const PageRequest& request) const
{
    const QJsonObject about{{"id", request.id}, {"page", request.page}};
    const auto refuse = [&](const Failure& failure) {
        QJsonObject object = reasonOf(failure);
        object.insert("id", request.id);
        object.insert("page", request.page);
        tell("noPage", object);
    };
    if (request.page > m_pages->count())
        return refuse({ReasonCode::PageBeyondEnd, "it has no page with this number"});
    try {
        confinement::startWork();
        const QImage picture = m_pages->picture(request.page, request.room);
        const QSizeF points = m_pages->sizeOf(request.page);
        confinement::rest();
        QJsonObject object = about;
        object.insert("width", picture.width());
        object.insert("height", picture.height());
        object.insert("bytes", static_cast<qint64>(picture.sizeInBytes()));
        object.insert("points", QJsonArray{points.width(), points.height()});
        tell("page", object);
        printResult({reinterpret_cast<const char*>(picture.constBits()),
                     static_cast<std::size_t>(picture.sizeInBytes())});
    } catch (const DocumentError& error) {
        confinement::rest();
        refuse(error.failure());
    }
}

} // namespace host
