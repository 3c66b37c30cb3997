#include "RenderLoop.h"
#include "host/cell/OpenDescriptors.h"
#include "host/program/Surroundings.h"
#include "host/terminal/ExitStatus.h"
#include "host/terminal/StandardError.h"
#include "host/terminal/StandardOutput.h"

#include <QCoreApplication>

#include <csignal>

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN);
    try {
        host::surroundings::refuseForeignRights();
        host::surroundings::forgetPlacesOfCode();
        host::closeAllBut({}); // what else the window, or who started it, left open
        const QCoreApplication application(argc, argv);
        return host::RenderLoop().run();
    } catch (const host::OutputError&) { // nobody looks any more
        return host::exitstatus::someFailed;
    } catch (const std::exception& error) {
        host::complain(error.what());
        return host::exitstatus::usage;
    }
}
