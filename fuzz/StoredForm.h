#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QVariant>

namespace fuzz {

/// A value's type and bytes, by which two of any type can be compared.
inline QByteArray storedForm(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(value.userType() == QMetaType::QDateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0);
    stream << value;
    return bytes;
}

} // namespace fuzz
