#include "VariantBytes.h"

#include <QBrush>
#include <QDateTime>
#include <QEasingCurve>
#include <QGuiApplication>
#include <QTimeZone>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>

namespace {

const int deepest = 64;
const quint32 nullLength = 0xffffffff;
const qint64 mostPictureBytes = qint64(256) << 20;
const qint64 mostPackedText = qint64(64) << 10; // packed texts of pictures grow a thousandfold
const qint64 largestDocument = qint64(4) << 20; // JSON and CBOR grow fortyfold
const qint64 mostRectangles = 1 << 14;          // Qt needs quadratic time for them
const int longestPattern = 1 << 12;
const qint64 mostRepetitions = 1 << 12;

/// Numbers of types as streams below QDataStream::Qt_5_0 hold them, where they differ from QMetaType's.
enum StreamType : quint32 {
    StreamSizePolicy = 75,
    StreamKeySequence = 76,
    StreamPen = 77,
    StreamTextLength = 78,
    StreamTextFormat = 79,
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

QByteArray serialized(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_0);
    stream << value;
    return bytes;
}

QByteArray word(quint32 value)
{
    QByteArray bytes(sizeof value, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// Whether a zone's name leads to no other file than a zone's.
bool isZoneName(const QString& name)
{
    return !name.startsWith('/') && !name.contains("..") &&
           std::all_of(name.begin(), name.end(), [](QChar each) {
               return each.unicode() < 0x80 &&
                      (each.isLetterOrNumber() || QString("+-_/:.,<>").contains(each));
           });
}

bool hasWindows()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
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

bool VariantBytes::drawing(quint32 type, int depth)
{
    quint32 count = 0;
    switch (type) {
    case QMetaType::QBitArray:
        return number(count) && skip((qint64(count) + 7) / 8);
    case QMetaType::QEasingCurve:
        return easing();
    case QMetaType::QFont:
        return text() && skip(17);
    case QMetaType::QImage:
        return picture();
    case QMetaType::QPolygon:
        return counted(8);
    case QMetaType::QRegion:
        return region();
    case QMetaType::QBrush:
        return brush();
    case QMetaType::QPalette:
        return palette();
    case StreamKeySequence:
        return number(count) && (count <= 4 || refuse("is damaged")) && skip(qint64(4) * count);
    case StreamPen:
        return pen();
    case StreamTextFormat:
        return skip(4) && each([this, depth] { return skip(4) && variant(depth + 1); });
    default:
        return false;
    }
}

/// Types that need a window system. Three of them are written as pictures are.
bool VariantBytes::windowed(quint32 type)
{
    switch (type) {
    case QMetaType::QPixmap:
    case QMetaType::QBitmap:
    case QMetaType::QIcon:
        if (!hasWindows())
            patch(m_at - 4, word(QMetaType::QImage));
        return picture();
    case QMetaType::QCursor:
        return cursor();
    default:
        return false;
    }
}

bool VariantBytes::date()
{
    quint32 type = 0;
    quint8 isNull = 0;
    quint8 spec = 0;
    if (!number(type) || !byte(isNull) || type != QMetaType::QDateTime)
        return refuse("is no date");
    if (!skip(12) || !byte(spec))
        return false;
    return spec == Qt::OffsetFromUTC ? skip(4) : spec != Qt::TimeZone || zone();
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

/// A curve is written with the address of its function, which means something in the process that wrote it
/// only.
bool VariantBytes::easing()
{
    quint8 type = 0;
    quint8 isConfigured = 0;
    const qint64 function = m_at + 1;
    if (!byte(type) || !skip(8) || !byte(isConfigured) || !skip(isConfigured != 0 ? 24 : 0))
        return false;
    if (type >= QEasingCurve::Custom)
        return refuse("holds an easing curve of another program");
    const QByteArray own = serialized(QEasingCurve(static_cast<QEasingCurve::Type>(type)));
    patch(function, own.mid(5, 8));
    return true;
}

/// Rectangles in the order in which QRegion keeps them; others would multiply when they are united.
bool VariantBytes::region()
{
    quint32 size = 0;
    quint32 kind = 0;
    quint32 count = 0;
    if (!number(size) || size == 0 || size == nullLength)
        return m_problem.isEmpty();
    if (!number(kind) || !number(count))
        return false;
    m_rectangles += count;
    if (kind != 10 || qint64(size) != 8 + 16 * qint64(count) || m_rectangles > mostRectangles)
        return refuse("holds a region that is damaged or has too many parts");
    std::array<qint32, 4> before{INT_MIN, INT_MIN, INT_MIN, INT_MIN};
    for (quint32 i = 0; i < count; ++i) {
        std::array<qint32, 4> rectangle{}; // left, top, right, bottom
        for (qint32& edge : rectangle) {
            quint32 value = 0;
            if (!number(value))
                return false;
            edge = static_cast<qint32>(value);
        }
        const auto [left, top, right, bottom] = rectangle;
        const bool sameBand = top == before[1] && bottom == before[3] && left > before[2];
        if (left > right || top > bottom || (i > 0 && !sameBand && top <= before[3]))
            return refuse("holds a region that is damaged");
        before = rectangle;
    }
    return true;
}

bool VariantBytes::brush()
{
    quint8 style = 0;
    if (!byte(style) || !skip(11))
        return false;
    if (style == Qt::TexturePattern)
        return (hasWindows() || refuse("holds a pixmap, which needs windows")) && picture();
    const bool isGradient = style >= Qt::LinearGradientPattern && style <= Qt::ConicalGradientPattern;
    return !isGradient || gradient();
}

bool VariantBytes::gradient()
{
    quint32 type = 0;
    if (!number(type) || !counted(19))
        return false;
    return skip(type == QGradient::LinearGradient ? 32 : type == QGradient::RadialGradient ? 40 : 24);
}

bool VariantBytes::pen()
{
    return skip(9) && brush() && skip(8) && counted(8);
}

bool VariantBytes::palette()
{
    const int brushes = 3 * 17;
    for (int i = 0; i < brushes; ++i) {
        if (!brush())
            return false;
    }
    return true;
}

bool VariantBytes::cursor()
{
    quint8 high = 0;
    quint8 shape = 0;
    quint8 isPixmap = 0;
    if (!hasWindows())
        return refuse("holds a cursor, which needs windows");
    if (!byte(high) || !byte(shape))
        return false;
    if (high != 0 || shape != Qt::BitmapCursor)
        return true;
    return byte(isPixmap) && picture() && (isPixmap != 0 || picture()) && skip(8);
}

/// A mark that there is a picture, and a PNG file of chunks.
bool VariantBytes::picture()
{
    quint32 mark = 0;
    if (!number(mark) || mark == 0)
        return m_problem.isEmpty();
    const qint64 head = 8;
    if (m_bytes.mid(static_cast<int>(m_at), head) != "\x89PNG\r\n\x1a\n" || !skip(head))
        return refuse("holds a damaged picture");
    for (bool isFirst = true;; isFirst = false) {
        quint32 length = 0;
        if (!number(length) || !skip(4))
            return false;
        const QByteArray kind = m_bytes.mid(static_cast<int>(m_at - 4), 4);
        if (isFirst && (kind != "IHDR" || !pictureHead(length)))
            return refuse("holds a damaged picture");
        if (kind == "zTXt" || kind == "iTXt" || kind == "iCCP")
            m_packedText += length;
        if (m_packedText > mostPackedText)
            return refuse("holds a picture with too much text");
        if (!skip(qint64(length) + 4))
            return false;
        if (kind == "IEND")
            return true;
    }
}

bool VariantBytes::pictureHead(qint64 length)
{
    if (length != 13 || left() < length)
        return false;
    const char* const head = m_bytes.constData() + m_at;
    const qint64 width = qFromBigEndian<quint32>(head);
    const qint64 height = qFromBigEndian<quint32>(head + 4);
    const qint64 pixelBytes = head[8] > 8 ? 8 : 4;
    if (width == 0 || height == 0 || width > INT_MAX || height > mostPictureBytes)
        return false;
    m_pictureBytes += width > mostPictureBytes / height ? mostPictureBytes + 1 : width * height * pixelBytes;
    return m_pictureBytes <= mostPictureBytes ||
           refuse(QString("holds a picture of %1 x %2 pixels, which is too large").arg(width).arg(height));
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
    QByteArray units;
    if (!bytes(value == nullptr ? nullptr : &units))
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

template <class Step>
bool VariantBytes::each(Step step)
{
    quint32 count = 0;
    if (!number(count))
        return false;
    if (count > left() / 4)
        return refuse("is cut off");
    for (quint32 i = 0; i < count; ++i) {
        if (!step())
            return false;
    }
    return true;
}
