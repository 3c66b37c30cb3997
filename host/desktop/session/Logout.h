#pragma once

#include "host/desktop/workbench/Workbench.h"

#include <QSessionManager>
#include <QWidget>

namespace host::desktop {

/// The end of the desktop's session: what is prepared is kept at once, and a run is stopped before, so that
/// no document is left half-way. Where somebody can be asked, the run goes on if that is wanted more.
class Logout : public QObject
{
    Q_OBJECT

public:
    /// \param window over which the question stands.
    Logout(Workbench& workbench, QWidget* window);

signals:
    /// Now or never.
    void toBeKept();

private:
    void prepare(QSessionManager& manager);
    bool mayStop() const;
    void stopAndWait();

    Workbench& m_workbench;
    QWidget* m_window;
};

} // namespace host::desktop
