#pragma once

#include <QString>
#include <QVariant>

#include <memory>

class QLockFile;
class QSettings;
class QTemporaryDir;

/// A small INI file in QSettings' format, opened for one visit.
///
/// QSettings itself waits without end where something else lies in its lock file's place, and opens whatever
/// stands at the path. This class reads and writes the same files, shares QSettings' lock with it, and
/// returns within seconds whatever it meets. A change is made in a copy, which replaces the file by an atomic
/// rename: others see the old file or the new one, nothing between. A visitor that never commits changes
/// nothing.
///
/// What cannot be read counts as empty, and what cannot be written stays as it was. That holds for everything
/// but an ordinary file of at most 16 MiB whose variants isHarmlessIni() accepts.
class CIniFile
{
public:
    enum class Access {
        Read,    ///< takes no lock and leaves no trace
        Extend,  ///< other keys survive; a link stays one, and its target is replaced
        Replace, ///< starts empty; whatever stands at the path, except a folder, gives way
    };

    /// For writing, takes the lock until destruction (or goes without, after two seconds) and makes the
    /// folder that the file is to lie in.
    CIniFile(const QString& path, Access access);
    ~CIniFile();
    CIniFile(const CIniFile&) = delete;
    CIniFile& operator=(const CIniFile&) = delete;

    bool contains(const QString& key) const;
    /// The value under the key, with the changes made so far, or `fallback` where there is none.
    QVariant value(const QString& key, const QVariant& fallback = QVariant()) const;
    /// Changes nothing on disk before commit().
    void setValue(const QString& key, const QVariant& value);

    /// Writes the changes and ends the visit: afterwards everything reads as empty.
    /// \returns whether the file now holds them.
    bool commit();

private:
    void openForReading(const QString& path);
    void openForWriting(const QString& path, Access access);
    bool copyTarget(const QString& copy) const;

    // In the order in which they are made: the lock goes last.
    QString m_target;
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
};
