#pragma once

#include "host/desktop/MainWindow.h"
#include "support/program/FakeQuintar.h"

#include <QTemporaryDir>

#include <memory>

/// The main window on the screen, with a stand-in for the program and with all that it stores in a
/// folder of the test.
inline std::unique_ptr<host::desktop::MainWindow> openedWindow(const QTemporaryDir& folder)
{
    auto window = std::make_unique<host::desktop::MainWindow>(
        host::desktop::MainWindow::Places{FakeQuintar::program(),
                                          folder.filePath("runs"),
                                          folder.filePath("sessions"),
                                          folder.filePath("window.ini"),
                                          folder.filePath("views"),
                                          {}});
    window->show();
    return window;
}
