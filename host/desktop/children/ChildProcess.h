#pragma once

#include <QProcess>

#include <array>

#include <fcntl.h>

namespace host::desktop {

/// A process that also inherits files of this one.
class ChildProcess : public QProcess
{
    Q_OBJECT

public:
    using QProcess::QProcess;

    /// \param descriptors -1 for none; of files that are closed in other children, and have to be open until it started.
    void hand(const std::array<int, 2>& descriptors) { m_handed = descriptors; }

protected:
    /// In the child, before it becomes the program.
    void setupChildProcess() override
    {
        for (const int each : m_handed)
            if (each >= 0)
                fcntl(each, F_SETFD, 0);
    }

private:
    std::array<int, 2> m_handed{-1, -1};
};

} // namespace host::desktop
