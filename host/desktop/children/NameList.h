#pragma once

#include "host/files/FileDescriptor.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace host::desktop {

/// Hands names to a child process: a file that lies in memory, has no name, and is gone with the object, also when this
/// process is killed.
class NameList
{
public:
    /// Holds none.
    NameList() = default;
    explicit NameList(const QVector<QByteArray>& names);

    /// What the child has to open to read it; it leads nowhere when the file could not be written.
    QString pathForChild() const;
    /// What the child has to inherit; -1 for none.
    int descriptor() const { return m_file.get(); }

private:
    FileDescriptor m_file;
};

} // namespace host::desktop
