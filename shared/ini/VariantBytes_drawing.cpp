#include "VariantBytes.h"

#include <QBrush>
#include <QEasingCurve>
#include <QGuiApplication>
#include <QtEndian>

#include <array>
#include <climits>

// What is drawn and what is drawn with: pictures, brushes, regions.

namespace {

const qint64 mostPictureBytes = qint64(256) << 20;
const qint64 mostPackedText = qint64(64) << 10; // packed texts of pictures grow a thousandfold
const qint64 mostRectangles = 1 << 14;          // Qt needs quadratic time for them

/// The numbers of further types in streams below QDataStream::Qt_5_0.
enum StreamType : quint32 {
    StreamKeySequence = 76,
    StreamPen = 77,
    StreamTextFormat = 79,
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

bool hasWindows()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

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
