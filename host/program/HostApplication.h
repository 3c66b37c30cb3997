#pragma once

#include <QCoreApplication>

#include <memory>

/// The application object that Qt wants, with the program's name and version. Making it also makes
/// what is missing of the user's folders, where they have a place (HomeFolder.h), and sets the C
/// locale for numbers: a decimal comma is none of PDF's.
namespace host::hostapplication {

/// For commands that need no display. The arguments must outlive the object.
std::unique_ptr<QCoreApplication> forTerminal(int& argc, char** argv);

/// For commands that show windows. Without a display, says so and ends the process with the usage status: Qt
/// gives its caller no other chance. Qt's complaints about the dialogs' style sheets do not reach the user.
std::unique_ptr<QCoreApplication> forWindows(int& argc, char** argv);

} // namespace host::hostapplication
