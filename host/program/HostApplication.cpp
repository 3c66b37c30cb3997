#include "HostApplication.h"

#include "host/files/HomeFolder.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"

#include "shared/CUtils.h"

#include <QApplication>
#include <QIcon>

#include <unistd.h>

#include <array>
#include <clocale>

namespace host::hostapplication {

namespace {

/// Harmless Qt warnings from the dialogs' style sheets and missing slots; not shown.
constexpr std::array frameComplaints{"Could not create pixmap from", "QCssParser::parseColorValue",
                                     "QObject::connect: No such slot CQuintarDialog::"};

QString firstProblem;

[[noreturn]] void endWithoutDisplay(const QString& problem)
{
    const QString reason = (firstProblem.isEmpty() ? problem : firstProblem).section('\n', 0, 0).trimmed();
    complain("a window cannot be shown here: " + reason.toStdString());
    complain("run this command in a graphical session, or set DISPLAY to one");
    _exit(exitstatus::usage);
}

void duringStart(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtFatalMsg)
        endWithoutDisplay(message);
    if (type != QtDebugMsg && type != QtInfoMsg && firstProblem.isEmpty())
        firstProblem = message;
}

void onceStarted(QtMsgType, const QMessageLogContext&, const QString& message)
{
    for (const char* complaint : frameComplaints)
        if (message.startsWith(complaint))
            return;
    complain(message.toStdString());
}

void settleIn()
{
    QCoreApplication::setApplicationName("quintar");
    QCoreApplication::setApplicationVersion(QUINTAR_VERSION);
    std::setlocale(LC_NUMERIC, "C");
    if (homefolder::problem().empty())
        CUtils::SetupFolders();
}

} // namespace

std::unique_ptr<QCoreApplication> forTerminal(int& argc, char** argv)
{
    auto application = std::make_unique<QCoreApplication>(argc, argv);
    settleIn();
    return application;
}

std::unique_ptr<QCoreApplication> forWindows(int& argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    qInstallMessageHandler(duringStart);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(onceStarted);
    settleIn();
    QApplication::setWindowIcon(QIcon(":/Quintar/Resources/Icons/App_icon_256x256.png"));
    return application;
}

} // namespace host::hostapplication
