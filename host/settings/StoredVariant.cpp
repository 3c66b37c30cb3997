#include "StoredVariant.h"

#include <QDataStream>

#include <algorithm>

namespace host {

namespace {

const QLatin1String opening("@Variant(");
const quint32 nullText = 0xffffffff;

/// QDataStream keeps reading zeroes behind the end, so each step asks for the stream's status.
bool readText(QDataStream& stream, QString& text)
{
    quint32 size = 0;
    stream >> size;
    if (stream.status() != QDataStream::Ok || size == nullText)
        return stream.status() == QDataStream::Ok;
    if (size % 2 != 0 || stream.device()->bytesAvailable() < size)
        return false;
    text.resize(static_cast<int>(size / 2));
    for (QChar& character : text) {
        quint16 unit = 0;
        stream >> unit;
        character = QChar(unit);
    }
    return stream.status() == QDataStream::Ok;
}

template <class Value>
QVariant readAs(QDataStream& stream)
{
    Value value{};
    stream >> value;
    return QVariant::fromValue(value);
}

bool readValue(QDataStream& stream, QVariant& value)
{
    quint32 type = 0;
    stream >> type;
    QString text;
    switch (type) {
    case QMetaType::UnknownType: // followed by an empty text
        return readText(stream, text);
    case QMetaType::QString:
        if (!readText(stream, text))
            return false;
        value = text;
        break;
    case QMetaType::Bool:
        value = readAs<bool>(stream);
        break;
    case QMetaType::Int:
        value = readAs<qint32>(stream);
        break;
    case QMetaType::UInt:
        value = readAs<quint32>(stream);
        break;
    case QMetaType::LongLong:
        value = readAs<qint64>(stream);
        break;
    case QMetaType::ULongLong:
        value = readAs<quint64>(stream);
        break;
    case QMetaType::Double:
        value = readAs<double>(stream);
        break;
    default:
        return false;
    }
    return stream.status() == QDataStream::Ok;
}

std::optional<SettingsMap> readMap(QDataStream& stream, QString& problem)
{
    quint32 type = 0;
    quint32 count = 0;
    stream >> type >> count;
    if (stream.status() != QDataStream::Ok || type != QMetaType::QVariantMap) {
        problem = "it is not a settings map";
        return std::nullopt;
    }
    SettingsMap map;
    for (; count > 0; --count) {
        QString key;
        QVariant value;
        if (!readText(stream, key) || !readValue(stream, value)) {
            problem = key.isEmpty() ? QString("it is damaged or cut off")
                                    : QString("its value \"%1\" is damaged, cut off, or of a kind that no "
                                              "setting has")
                                          .arg(key);
            return std::nullopt;
        }
        map.insert(key, value);
    }
    return map;
}

} // namespace

std::optional<SettingsMap> StoredVariant::decodeMap(const QString& text, QString& problem)
{
    const bool bytesOnly =
        std::all_of(text.begin(), text.end(), [](QChar each) { return each < QChar(0x100); });
    if (!text.startsWith(opening) || !text.endsWith(')') || !bytesOnly) {
        problem = "it is not a settings map";
        return std::nullopt;
    }
    const QByteArray bytes = text.mid(opening.size()).chopped(1).toLatin1();
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_4_0); // what QSettings uses for this form
    std::optional<SettingsMap> map = readMap(stream, problem);
    if (map && !stream.atEnd()) {
        problem = "something follows the settings map";
        return std::nullopt;
    }
    return map;
}

QString unmarkedText(const QString& text)
{
    return text.startsWith("@@") ? text.mid(1) : text;
}

} // namespace host
