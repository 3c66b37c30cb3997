#pragma once

#include <QByteArray>
#include <QFile>
#include <QSettings>

inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// The value of a key in an ini file.
inline QVariant storedValue(const QString& path, const QString& key)
{
    return QSettings(path, QSettings::IniFormat).value(key);
}

inline QStringList storedKeys(const QString& path)
{
    return QSettings(path, QSettings::IniFormat).allKeys();
}
