#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QString>
#include <QVariant>

#include <optional>

/// Reads a variant in the form in which QDataStream writes it.
///
/// QDataStream follows whatever nesting, counts and sizes the bytes claim until stack, memory or patience is
/// gone. So the bytes are gone through first, by what each type may hold: containers at most 64 deep, no
/// count beyond the bytes that are there, no picture above 256 MiB, no time zone that is a path elsewhere.
/// Decoding then costs memory and time in proportion to the bytes, apart from such a picture. One thread an
/// object; nothing is thrown but for want of memory.
class VariantBytes
{
public:
    /// Looks at nothing yet.
    /// \param bytes any; a copy is kept.
    /// \param version QDataStream::Qt_4_0, or Qt_5_6 for a variant that holds a QDateTime and nothing else.
    VariantBytes(const QByteArray& bytes, QDataStream::Version version);

    /// \returns none where the bytes are no such variant or have something left over; `problem()` then says
    ///     why. Without a QGuiApplication pixmaps, bitmaps and icons come as QImage.
    std::optional<QVariant> read();

    /// The reason in words that follow "it": "is cut off".
    const QString& problem() const { return m_problem; }

private:
    static constexpr quint32 nullLength = 0xffffffff;

    // Each steps over what its name says, and returns false, with the problem set, where it is not there.
    bool variant(int depth);
    bool payload(quint32 type, int depth);
    bool container(quint32 type, int depth);
    bool date();
    bool zone();
    bool userType();
    bool fixed(quint32 type);
    bool textual(quint32 type);
    bool drawing(quint32 type, int depth);
    bool windowed(quint32 type);
    bool jsonValue();
    bool document();
    bool pattern();
    bool easing();
    bool region();
    bool brush();
    bool gradient();
    bool pen();
    bool palette();
    bool cursor();
    bool picture();
    bool pictureHead(qint64 length);

    /// \returns false, for its callers to return.
    bool refuse(const QString& problem);
    bool skip(qint64 count);
    bool text(QString* value = nullptr);
    bool bytes(QByteArray* value = nullptr);
    bool counted(qint64 itemSize);
    bool number(quint32& value);
    bool byte(quint8& value);
    qint64 left() const { return m_bytes.size() - m_at; }
    /// Puts other bytes in the place of some that were gone over.
    void patch(qint64 at, const QByteArray& bytes);

    /// As many steps as a count says that stands here; each of them takes four bytes at least.
    template <class Step>
    bool each(Step step);

    QByteArray m_bytes;
    QDataStream::Version m_version;
    qint64 m_at = 0;
    qint64 m_pictureBytes = 0;
    qint64 m_packedText = 0;
    qint64 m_rectangles = 0;
    QString m_problem;
};

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
