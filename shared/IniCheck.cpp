#include "IniCheck.h"

#include <QBuffer>
#include <QDataStream>
#include <QImageReader>
#include <QString>
#include <QVariant>

#include <climits>
#include <cstring>

namespace {

const int deepest = 64;
const int longestImageSide = 4096;
const quint32 nullLength = 0xffffffff;

/// Numbers of types as streams of QDataStream::Qt_4_0 hold them.
enum OldType : quint32 {
    OldFont = 64,
    OldColor = 67,
    OldImage = 70,
    OldLong = 129,
    OldFloat = 135,
};

/// Walks over a stored variant, containers here and the values in them with Qt's own operators.
class VariantWalk
{
public:
    VariantWalk(const QByteArray& bytes, QDataStream::Version version)
    {
        m_buffer.setData(bytes);
        m_buffer.open(QIODevice::ReadOnly);
        m_stream.setDevice(&m_buffer);
        m_stream.setVersion(version);
    }

    bool value(int depth)
    {
        const qint64 start = m_buffer.pos();
        const quint32 type = word();
        if (m_stream.version() >= QDataStream::Qt_4_2)
            m_buffer.skip(1); // whether it is null
        switch (type) {
        case QMetaType::QVariantMap:
        case QMetaType::QVariantHash:
            return depth < deepest && each([&] { return text() && value(depth + 1); });
        case QMetaType::QVariantList:
            return depth < deepest && each([&] { return value(depth + 1); });
        case QMetaType::QStringList:
            return each([&] { return text(); });
        case QMetaType::UnknownType:
        case QMetaType::QString:
            return text();
        case OldImage:
            return image() && leaf(start);
        default:
            return isLeaf(type) && leaf(start);
        }
    }

private:
    static bool isLeaf(quint32 type)
    {
        return type <= QMetaType::QPointF || type == QMetaType::QUuid || type == OldFont ||
               type == OldColor || (type >= OldLong && type <= OldFloat);
    }

    quint32 word()
    {
        quint32 value = 0;
        m_stream >> value;
        return value;
    }

    template <class Step>
    bool each(Step step)
    {
        const quint32 count = word();
        if (count > m_buffer.bytesAvailable() / qint64(sizeof count))
            return false;
        for (quint32 i = 0; i < count; ++i) {
            if (!step())
                return false;
        }
        return m_stream.status() == QDataStream::Ok;
    }

    bool text()
    {
        const quint32 length = word();
        return m_stream.status() == QDataStream::Ok &&
               (length == nullLength || m_buffer.skip(length) == qint64(length));
    }

    /// A null image is a mark alone.
    bool image()
    {
        if (word() == 0)
            return true;
        const QSize size = QImageReader(&m_buffer).size();
        return size.isValid() && size.boundedTo(QSize(longestImageSide, longestImageSide)) == size;
    }

    bool leaf(qint64 start)
    {
        m_buffer.seek(start);
        QVariant value;
        m_stream >> value;
        return m_stream.status() == QDataStream::Ok;
    }

    QBuffer m_buffer;
    QDataStream m_stream;
};

bool isHarmlessItem(const QString& item)
{
    static const QString anyVariant = QStringLiteral("@Variant(");
    static const QString dateVariant = QStringLiteral("@DateTime(");
    if (item.startsWith(anyVariant))
        return VariantWalk(item.mid(anyVariant.size()).toLatin1(), QDataStream::Qt_4_0).value(0);
    if (item.startsWith(dateVariant))
        return VariantWalk(item.mid(dateVariant.size()).toLatin1(), QDataStream::Qt_5_6).value(0);
    return true;
}

/// Reads one value in the form that QSettings gives it, one item or several with commas between. Other forms
/// mean something to QSettings as well, but not necessarily what they mean here.
class ItemWalk
{
public:
    ItemWalk(const char* begin, const char* end) : m_at(begin), m_end(end) {}

    bool run()
    {
        do {
            while (m_at != m_end && (*m_at == ' ' || *m_at == '\t'))
                ++m_at;
            m_item.clear();
            if (!(take('"') ? quoted() : plain()) || !isHarmlessItem(m_item))
                return false;
        } while (take(','));
        return m_at == m_end;
    }

private:
    bool take(char wanted)
    {
        const bool found = m_at != m_end && *m_at == wanted;
        m_at += found;
        return found;
    }

    bool quoted()
    {
        while (m_at != m_end && *m_at != '"') {
            if (!character())
                return false;
        }
        return take('"');
    }

    bool plain()
    {
        while (m_at != m_end && *m_at != ',') {
            if (*m_at == '"' || *m_at == ';' || !character())
                return false;
        }
        return true;
    }

    bool character()
    {
        if (!take('\\')) {
            m_item += QLatin1Char(*m_at++);
            return true;
        }
        if (take('x'))
            return number(16);
        static const char letters[] = "abfnrtv\"?'\\";
        static const char meanings[] = "\a\b\f\n\r\t\v\"?'\\";
        const char* const letter = m_at == m_end || *m_at == '\0' ? nullptr : std::strchr(letters, *m_at);
        if (letter == nullptr)
            return number(8);
        m_item += QLatin1Char(meanings[letter - letters]);
        ++m_at;
        return true;
    }

    bool number(int base)
    {
        const char* const first = m_at;
        int value = 0;
        for (int digit; m_at != m_end && (digit = digitOf(*m_at)) < base && value <= 0xffff; ++m_at)
            value = value * base + digit;
        m_item += QChar(value);
        return m_at != first && value <= 0xffff;
    }

    static int digitOf(char character)
    {
        static const char digits[] = "0123456789abcdef0123456789ABCDEF";
        const char* const digit = character == '\0' ? nullptr : std::strchr(digits, character);
        return digit == nullptr ? INT_MAX : int(digit - digits) % 16;
    }

    const char* m_at;
    const char* m_end;
    QString m_item;
};

bool isHarmlessLine(QByteArray line)
{
    while (line.startsWith(' ') || line.startsWith('\t'))
        line.remove(0, 1);
    const int equals = line.indexOf('=');
    const bool isSection = line.startsWith('[');
    const QByteArray name = isSection ? line : line.left(equals);
    if (line.isEmpty() || line.startsWith(';'))
        return true;
    if (name.contains('"') || name.contains('\\') || (!isSection && equals < 0))
        return false;
    return isSection || ItemWalk(line.constData() + equals + 1, line.constData() + line.size()).run();
}

} // namespace

bool isHarmlessIni(const QByteArray& ini)
{
    // A variant begins with an "@", written as such or as an escape.
    if (!ini.contains('@') && !ini.contains('\\'))
        return true;
    QByteArray lines = ini;
    lines.replace('\r', '\n');
    for (const QByteArray& line : lines.split('\n')) {
        if (!isHarmlessLine(line))
            return false;
    }
    return true;
}
