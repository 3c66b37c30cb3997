#pragma once

#include <QByteArray>
#include <QTemporaryFile>
#include <QVector>

#include <memory>

namespace host::desktop {

/// A private file that hands names to a child process; gone with the object.
class NameList
{
public:
    /// The options that name the list of documents.
    static NameList of(const QVector<QByteArray>& names);

    /// Empty when the file could not be written.
    QString path() const { return m_file ? m_file->fileName() : QString(); }

private:
    std::unique_ptr<QTemporaryFile> m_file;
};

} // namespace host::desktop
