#include "VariantBytes.h"

#include <QDateTime>
#include <QTimeZone>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

const int deepest = 64;
const qint64 largestDocument = qint64(4) << 20; // JSON and CBOR grow fortyfold
const int longestPattern = 1 << 12;
const qint64 mostRepetitions = 1 << 12;

/// Numbers of types as streams below QDataStream::Qt_5_0 hold them, where they differ from QMetaType's.
enum StreamType : quint32 {
    StreamSizePolicy = 75,
    StreamTextLength = 78,
    StreamMatrix = 80,
    StreamTransform = 81,
    StreamMatrix4x4 = 82,
    StreamVector2D = 83,
    StreamVector3D = 84,
    StreamVector4D = 85,
    StreamQuaternion = 86,
    StreamColorSpace = 87,
    StreamUserType = 127,
};

/// Of the core types that follow QMetaType::QUuid.
constexpr quint32 extended(QMetaType::Type type)
{
    return static_cast<quint32>(type) + 97;
}

struct FixedSize
{
    quint32 type;
    qint64 size;
};

const std::array fixedSizes{
    FixedSize{QMetaType::Bool, 1},
    FixedSize{QMetaType::Int, 4},
    FixedSize{QMetaType::UInt, 4},
    FixedSize{QMetaType::LongLong, 8},
    FixedSize{QMetaType::ULongLong, 8},
    FixedSize{QMetaType::Double, 8},
    FixedSize{QMetaType::QChar, 2},
    FixedSize{QMetaType::QDate, 4},
    FixedSize{QMetaType::QTime, 4},
    FixedSize{QMetaType::QDateTime, 9},
    FixedSize{QMetaType::QRect, 16},
    FixedSize{QMetaType::QRectF, 32},
    FixedSize{QMetaType::QSize, 8},
    FixedSize{QMetaType::QSizeF, 16},
    FixedSize{QMetaType::QLine, 16},
    FixedSize{QMetaType::QLineF, 32},
    FixedSize{QMetaType::QPoint, 8},
    FixedSize{QMetaType::QPointF, 16},
    FixedSize{QMetaType::QColor, 11},
    FixedSize{StreamSizePolicy, 4},
    FixedSize{StreamTextLength, 12},
    FixedSize{StreamMatrix, 48},
    FixedSize{StreamTransform, 72},
    FixedSize{StreamMatrix4x4, 64},
    FixedSize{StreamVector2D, 8},
    FixedSize{StreamVector3D, 12},
    FixedSize{StreamVector4D, 16},
    FixedSize{StreamQuaternion, 16},
    FixedSize{extended(QMetaType::Long), 8},
    FixedSize{extended(QMetaType::Short), 2},
    FixedSize{extended(QMetaType::Char), 1},
    FixedSize{extended(QMetaType::ULong), 8},
    FixedSize{extended(QMetaType::UShort), 2},
    FixedSize{extended(QMetaType::UChar), 1},
    FixedSize{extended(QMetaType::Float), 4},
    FixedSize{extended(QMetaType::SChar), 1},
    FixedSize{extended(QMetaType::Nullptr), 0},
    FixedSize{extended(QMetaType::QCborSimpleType), 1},
};

/// Whether a zone's name leads to no other file than a zone's.
bool isZoneName(const QString& name)
{
    return !name.startsWith('/') && !name.contains("..") &&
           std::all_of(name.begin(), name.end(), [](QChar each) {
               return each.unicode() < 0x80 &&
                      (each.isLetterOrNumber() || QString("+-_/:.,<>").contains(each));
           });
}

} // namespace

VariantBytes::VariantBytes(const QByteArray& bytes, QDataStream::Version version)
    : m_bytes(bytes), m_version(version)
{}

std::optional<QVariant> VariantBytes::read()
{
    const bool isWhole = (m_version == QDataStream::Qt_4_0 ? variant(0) : date()) &&
                         (left() == 0 || refuse("is followed by something else"));
    if (!isWhole)
        return std::nullopt;
    QDataStream stream(m_bytes);
    stream.setVersion(m_version);
    QVariant value;
    stream >> value;
    const QDateTime date = m_version == QDataStream::Qt_4_0 ? QDateTime() : value.toDateTime();
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        refuse("is damaged");
    else if (date.timeSpec() == Qt::TimeZone && !date.timeZone().isValid())
        refuse("names no time zone");
    return m_problem.isEmpty() ? std::optional(value) : std::nullopt;
}

bool VariantBytes::variant(int depth)
{
    quint32 type = 0;
    if (depth > deepest)
        return refuse("is nested too deep");
    return number(type) && payload(type, depth);
}

bool VariantBytes::payload(quint32 type, int depth)
{
    return fixed(type) || textual(type) || container(type, depth) || drawing(type, depth) || windowed(type) ||
           refuse(QString("holds a value of the unknown type %1").arg(type));
}

bool VariantBytes::container(quint32 type, int depth)
{
    switch (type) {
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return each([this, depth] {
            QString key;
            if (!text(&key))
                return false;
            if (variant(depth + 1))
                return true;
            if (depth == 0)
                m_problem = QString("holds a value, \"%1\", that %2").arg(key, m_problem);
            return false;
        });
    case QMetaType::QVariantList:
        return each([this, depth] { return variant(depth + 1); });
    case extended(QMetaType::QVariant):
        return variant(depth + 1);
    case QMetaType::QStringList:
        return each([this] { return text(); });
    case extended(QMetaType::QByteArrayList):
        return each([this] { return bytes(); });
    default:
        return false;
    }
}

bool VariantBytes::fixed(quint32 type)
{
    const auto found = std::find_if(fixedSizes.begin(), fixedSizes.end(),
                                    [type](const FixedSize& each) { return each.type == type; });
    return found != fixedSizes.end() && skip(found->size);
}

bool VariantBytes::textual(quint32 type)
{
    switch (type) {
    case QMetaType::UnknownType: // an empty text follows
    case QMetaType::QString:
    case QMetaType::QLocale:
        return text();
    case QMetaType::QByteArray:
    case QMetaType::QUrl:
    case StreamColorSpace:
        return bytes();
    case QMetaType::QRegExp:
        return pattern() && skip(3);
    case extended(QMetaType::QRegularExpression):
        return text() && skip(4);
    case extended(QMetaType::QJsonValue):
        return jsonValue();
    case extended(QMetaType::QJsonObject):
    case extended(QMetaType::QJsonArray):
    case extended(QMetaType::QJsonDocument):
    case extended(QMetaType::QCborValue):
    case extended(QMetaType::QCborArray):
    case extended(QMetaType::QCborMap):
        return document();
    case StreamUserType:
        return userType();
    default:
        return false;
    }
}

bool VariantBytes::date()
{
    quint32 type = 0;
    quint8 isNull = 0;
    quint8 timeSpec = 0;
    if (!number(type) || !byte(isNull) || type != QMetaType::QDateTime)
        return refuse("is no date");
    if (!skip(12) || !byte(timeSpec))
        return false;
    return timeSpec == Qt::OffsetFromUTC ? skip(4) : timeSpec != Qt::TimeZone || zone();
}

bool VariantBytes::zone()
{
    QString name;
    if (!text(&name))
        return false;
    const bool isOwn = name == "OffsetFromUtc";
    if (isOwn && !(text(&name) && skip(4) && text() && text() && skip(4) && text()))
        return false;
    return isZoneName(name) || refuse("names no time zone");
}

bool VariantBytes::userType()
{
    QByteArray name;
    if (!bytes(&name))
        return false;
    if (qstrcmp(name.constData(), "QUuid") == 0)
        return skip(16);
    if (qstrcmp(name.constData(), "QPolygonF") == 0)
        return counted(16);
    return refuse(QString("holds a value of the unknown type %1").arg(QString::fromLatin1(name.constData())));
}

bool VariantBytes::jsonValue()
{
    quint8 type = 0;
    if (!byte(type))
        return false;
    switch (type) {
    case 1: // bool
        return skip(1);
    case 2: // double
        return skip(8);
    case 3:
        return text();
    case 4: // array
    case 5: // object
        return document();
    default:
        return true;
    }
}

bool VariantBytes::document()
{
    const qint64 start = m_at;
    return bytes() && (m_at - start <= largestDocument || refuse("holds a JSON document that is too large"));
}

/// Qt compiles the pattern at once, and repetitions of repetitions multiply.
bool VariantBytes::pattern()
{
    QString value;
    if (!text(&value))
        return false;
    qint64 repetitions = 1;
    for (const QString& part : value.split('{').mid(1)) {
        const QStringList bounds = part.section('}', 0, 0).split(',');
        repetitions *= qBound(1, std::max(bounds.first().toInt(), bounds.last().toInt()), longestPattern);
        if (repetitions > mostRepetitions)
            break;
    }
    return (value.size() <= longestPattern && repetitions <= mostRepetitions) ||
           refuse("holds a pattern that is too large");
}

/// Keeps the first reason.
bool VariantBytes::refuse(const QString& problem)
{
    if (m_problem.isEmpty())
        m_problem = problem;
    return false;
}

bool VariantBytes::skip(qint64 count)
{
    if (count > left())
        return refuse("is cut off");
    m_at += count;
    return true;
}

bool VariantBytes::text(QString* value)
{
    if (value == nullptr)
        return bytes();
    QByteArray units;
    if (!bytes(&units))
        return false;
    for (int at = 0; at + 1 < units.size(); at += 2)
        *value += QChar(qFromBigEndian<quint16>(units.constData() + at));
    return true;
}

bool VariantBytes::bytes(QByteArray* value)
{
    quint32 length = 0;
    if (!number(length))
        return false;
    const qint64 start = m_at;
    if (length != nullLength && !skip(length))
        return false;
    if (value != nullptr)
        *value = m_bytes.mid(static_cast<int>(start), static_cast<int>(m_at - start));
    return true;
}

bool VariantBytes::counted(qint64 itemSize)
{
    quint32 count = 0;
    return number(count) && skip(count * itemSize);
}

bool VariantBytes::number(quint32& value)
{
    if (!skip(4))
        return false;
    value = qFromBigEndian<quint32>(m_bytes.constData() + m_at - 4);
    return true;
}

bool VariantBytes::byte(quint8& value)
{
    if (!skip(1))
        return false;
    value = static_cast<quint8>(m_bytes.at(static_cast<int>(m_at - 1)));
    return true;
}

void VariantBytes::patch(qint64 at, const QByteArray& bytes)
{
    std::memcpy(m_bytes.data() + at, bytes.constData(), static_cast<std::size_t>(bytes.size()));
}
