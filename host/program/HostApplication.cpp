#include "HostApplication.h"

#include "host/files/FileDescriptor.h"
#include "host/terminal/FileNames.h"

#include "host/terminal/ExitStatus.h"
#include "shared/CUtils.h"

#include <QApplication>
#include <QIcon>

#include <unistd.h>

#include <array>
#include <clocale>

namespace host::hostapplication {

namespace {

/// Images that the style sheets name without meaning them, colours that this Qt finds incomplete, and slots
/// that the dialogs do without.
constexpr std::array frameComplaints{"Could not create pixmap from", "QCssParser::parseColorValue",
                                     "QObject::connect: No such slot CQuintarDialog::"};

QString firstProblem;

void print(const std::string& text)
{
    const std::string line = "quintar: " + host::forTerminal(text) + "\n";
    writeAll(STDERR_FILENO, line.data(), line.size());
}

[[noreturn]] void endWithoutDisplay(const QString& problem)
{
    const QString reason = (firstProblem.isEmpty() ? problem : firstProblem).section('\n', 0, 0).trimmed();
    print("a window cannot be shown here: " + reason.toStdString());
    print("run this command in a graphical session, or set DISPLAY to one");
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
    print(message.toStdString());
}

void settleIn()
{
    QCoreApplication::setApplicationName("quintar");
    QCoreApplication::setApplicationVersion(QUINTAR_VERSION);
    std::setlocale(LC_NUMERIC, "C");
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
