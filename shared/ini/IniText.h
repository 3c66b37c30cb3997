#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

/// The text form of INI files as QSettings of Qt 5.15 reads and writes it on Unix: names of keys are case
/// sensitive, "group/key" stands for a key in a section, and characters beyond ASCII are escapes.
namespace initext {

/// What stands behind one key, with all escapes resolved.
struct Value
{
    /// One text, or the texts between the commas.
    QStringList texts;
    /// Whether there was a comma; without one there is exactly one text.
    bool isList = false;
    /// Whether QSettings would have to guess: an unknown escape, a number above 0xffff, an open quote.
    bool isDamaged = false;
};

using Values = QMap<QString, Value>;

/// Takes any bytes. Lines that mean nothing are passed over, and of a key that comes twice the last counts.
/// Needs time and memory in proportion to the bytes.
Values parse(const QByteArray& bytes);

/// The bytes that QSettings would write.
QByteArray format(const Values& values);

/// A key as QSettings takes it: slashes at its ends and doubled ones do not count.
QString normalizedKey(const QString& key);

} // namespace initext
