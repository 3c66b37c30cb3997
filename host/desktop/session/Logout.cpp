#include "Logout.h"

#include "host/desktop/dialogs/StopQuestion.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

namespace host::desktop {

namespace {

/// Desktops wait for programs for not much longer. Documents that take longer are finished by the program that
/// works on them, or taken back by undoing.
const int longestWait = 10000;

} // namespace

Logout::Logout(Workbench& workbench, QWidget* window)
    : QObject(window), m_workbench(workbench), m_window(window)
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Logout::prepare, Qt::DirectConnection);
}

void Logout::prepare(QSessionManager& manager)
{
    emit toBeKept();
    if (!m_workbench.machine().isWriting())
        return;
    if (manager.allowsInteraction()) {
        if (!mayStop())
            return manager.cancel();
        manager.release();
    }
    stopAndWait();
    emit toBeKept();
}

bool Logout::mayStop() const
{
    return stopquestion::askNow(m_window, m_workbench, tr("&Stop and Log Out"));
}

void Logout::stopAndWait()
{
    if (!m_workbench.machine().isWriting()) // it has ended during the question
        return;
    QEventLoop loop;
    connect(&m_workbench, &Workbench::runEnded, &loop, &QEventLoop::quit);
    QTimer::singleShot(longestWait, &loop, &QEventLoop::quit);
    m_workbench.stop();
    if (m_workbench.machine().isWriting())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace host::desktop
