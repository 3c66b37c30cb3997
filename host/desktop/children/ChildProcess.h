#pragma once

#include <QProcess>

#include <fcntl.h>

namespace host::desktop {

/// A process that also inherits a file of this one.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    using QProcess::QProcess;

    /// \param descriptor -1 for none; of a file that is closed in other children, and has to be open until it started.
    void hand(int descriptor) { m_handed = descriptor; }

protected:
    /// In the child, before it becomes the program.
    void setupChildProcess() override
    {
        if (m_handed >= 0)
            fcntl(m_handed, F_SETFD, 0);
    }

private:
    int m_handed = -1;
};

} // namespace host::desktop
