#pragma once

#include "IniText.h"

#include <QVariant>

#include <memory>
#include <optional>

class QLockFile;

/// A small INI file in QSettings' format, opened for one visit.
///
/// QSettings itself waits without end where something else lies in its lock file's place, opens whatever
/// stands at the path, and follows what stored values claim. This class reads and writes the same files,
/// shares QSettings' lock with it, and returns within seconds whatever it meets. A value is decoded when it
/// is asked for, so a file can be extended whatever else it holds. A change replaces the file by one rename:
/// others see the old file or the new one, nothing between. A visitor that never commits changes nothing.
///
/// What cannot be read counts as empty, and what cannot be written stays as it was: everything but an
/// ordinary file of at most 16 MiB.
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
    /// \param path as the file system has it.
    CIniFile(const QByteArray& path, Access access);
    ~CIniFile();
    CIniFile(CIniFile&&) noexcept;
    CIniFile(const CIniFile&) = delete;
    CIniFile& operator=(const CIniFile&) = delete;

    /// Why nothing was read, or nothing can be or was written; empty while all is well. No file counts as a
    /// reason for a reader only.
    const QString& problem() const { return m_problem; }

    /// All keys, "group/key", in the order of their characters.
    QStringList keys() const { return m_values.keys(); }
    bool contains(const QString& key) const;
    /// The value under the key, with the changes made so far, or `fallback` where there is none that can be
    /// decoded.
    QVariant value(const QString& key, const QVariant& fallback = QVariant()) const;
    /// \param[out] problem why there is no value, in words that follow "it": "is cut off".
    std::optional<QVariant> decoded(const QString& key, QString& problem) const;

    /// Changes nothing on disk before commit(), which fails where the value has no stored form.
    void setValue(const QString& key, const QVariant& value);
    /// Writes the changes and ends the visit: afterwards everything reads as empty.
    /// \returns whether the file now holds them; otherwise it is as it was, and problem() says why.
    bool commit();

private:
    void openForReading();
    void openForWriting(Access access);
    void readOld();
    QString write() const;

    QByteArray m_path; // what is written to, links resolved
    QString m_problem;
    initext::Values m_values;
    std::unique_ptr<QLockFile> m_lock;
    bool m_isOpen = false; // for writing
};
