#include "MainWindow.h"

#include "host/desktop/platform/DroppedNames.h"
#include "host/desktop/platform/Language.h"
#include "host/program/HostApplication.h"
#include "host/program/Surroundings.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/UsageError.h"

#include <QCommandLineParser>
#include <QGuiApplication>

#include <clocale>
#include <csignal>

int main(int argc, char** argv)
try {
    using namespace host;
    surroundings::refuseForeignRights();
    surroundings::forgetPlacesOfCode();
    std::signal(SIGPIPE, SIG_IGN); // a child that ends while it is told something
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const std::unique_ptr<QCoreApplication> application = hostapplication::forWindows(argc, argv);
    desktop::language::choose();
    QGuiApplication::setFallbackSessionManagementEnabled(false); // which would close windows to ask them
    QGuiApplication::setDesktopFileName("quintar-window");
    QCommandLineParser parser;
    parser.addVersionOption();
    parser.addHelpOption();
    parser.addPositionalArgument("documents", {}, "[DOCUMENT|FOLDER ...]");
    parser.process(*application); // ends for these options, and for those that it does not know
    desktop::MainWindow window(desktop::MainWindow::Places::ofUser());
    QVector<QByteArray> paths;
    bool areOptionsOver = false;
    for (int place = 1; place < argc; ++place) {
        const QByteArray word = argv[place];
        if (areOptionsOver || !word.startsWith('-'))
            paths.append(desktop::droppednames::absolute(word));
        areOptionsOver = areOptionsOver || word == "--";
    }
    window.show();
    window.begin(paths);
    return QCoreApplication::exec();
} catch (const host::UsageError& error) {
    host::complain(error.what());
    return host::exitstatus::usage;
}
