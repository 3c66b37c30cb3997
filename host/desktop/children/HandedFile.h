#pragma once

#include "host/files/FileDescriptor.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace host::desktop {

/// What a child process is to read and others are not: a file that lies in memory, has no name, and is gone with the
/// object, also when this process is killed.
class HandedFile
{
public:
    /// Nothing.
    HandedFile() = default;
    /// As `--files-from` reads it with `--null`.
    static HandedFile ofNames(const QVector<QByteArray>& names);
    /// As `--password-file` reads it. The password is copied to the file alone.
    static HandedFile ofPassword(const QByteArray& password);

    /// What the child has to open to read it; it leads nowhere when the file could not be written.
    QString pathForChild() const;
    /// What the child has to inherit; -1 for none.
    int descriptor() const { return m_file.get(); }

private:
    explicit HandedFile(const char* what);
    void write(const QByteArray& bytes);

    FileDescriptor m_file;
};

} // namespace host::desktop
