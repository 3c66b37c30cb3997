#include "MainWindow.h"

#include "host/desktop/platform/DroppedNames.h"
#include "host/desktop/platform/Language.h"
#include "host/program/HostApplication.h"

#include <QCommandLineParser>
#include <QGuiApplication>

#include <clocale>
#include <csignal>

int main(int argc, char** argv)
{
    using namespace host;
    std::signal(SIGPIPE, SIG_IGN); // a child that ends while it is told something
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const std::unique_ptr<QCoreApplication> application = hostapplication::forWindows(argc, argv);
    desktop::language::choose();
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
}
