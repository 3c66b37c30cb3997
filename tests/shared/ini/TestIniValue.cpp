#include "shared/ini/CIniFile.h"
#include "shared/IniCheck.h"
#include "support/Rows.h"
#include "support/TemporaryHome.h"

#include <QColor>
#include <QDataStream>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

namespace {

const int deep = 30000;

QByteArray word(quint32 value)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << value;
    return bytes;
}

/// A stored variant whose every byte is an escape.
QByteArray variant(const QByteArray& bytes, const QByteArray& opening = "@Variant(")
{
    QByteArray text = opening;
    for (const char byte : bytes)
        text += "\\x" + QByteArray::number(uchar(byte), 16);
    return text + ")";
}

QByteArray nested(quint32 type, int levels)
{
    QByteArray bytes;
    for (int i = 0; i < levels; ++i) {
        bytes += word(type);
        if (type != QMetaType::QVariant)
            bytes += word(1);
        if (type == QMetaType::QVariantMap || type == QMetaType::QVariantHash)
            bytes += word(0); // an empty key
    }
    return bytes + word(QMetaType::Int) + word(7);
}

QByteArray picture(const QSize& size)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_4_0);
    stream << QVariant(image);
    return bytes;
}

} // namespace

class TestIniCheck : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

private slots:
    void acceptsWhatQSettingsWrites()
    {
        const QVariantList values{
            true,
            -7,
            2.5,
            1.5f,
            "plain",
            "@Variant(no)",
            "C:\\a \"b\", c; d=\n\t",
            QString::fromUtf8("\xe2\x82\xac"
                              "0 gr\xc3\xbc\xc3\x9f"),
            QString(),
            QStringList{"a", "b,c", "@d", ""},
            QByteArray("\0\1\xff@", 4),
            QVariant(),
            QDate(2020, 2, 29),
            QDateTime(QDate(2020, 2, 29), QTime(1, 2)),
            QUrl("file:///a b"),
            QSizeF(1, 2),
            QRect(1, 2, 3, 4),
            QColor(1, 2, 3),
            QFont("Courier", 9),
            QImage(),
            QImage(42, 42, QImage::Format_ARGB32),
        };
        QVariantMap map{{"list", values}, {QString(), QVariantHash{{"inner", QVariantMap{{"k", 1}}}}}};
        const QString path = m_folder.filePath("all.ini");
        {
            QSettings file(path, QSettings::IniFormat);
            for (int i = 0; i < values.size(); ++i) {
                file.setValue(QString("group %1/@ key=").arg(i), values.at(i));
                map.insert(QString::number(i), values.at(i));
            }
            file.setValue("list", values);
            file.setValue("map", map);
        }
        QVERIFY(isHarmlessIni(bytesOf(path)));
        QCOMPARE(CIniFile(path, CIniFile::Access::Read).value("map"),
                 QSettings(path, QSettings::IniFormat).value("map"));
    }

    void judgesFiles_data()
    {
        const Rows<QByteArray, bool> row;
        const QByteArray bomb = variant(nested(QMetaType::QVariantList, deep));
        row("nothing", {}, true);
        row("no variant possible", "a b\n[\"\nc=d\"e;f\n=\n\xff\xfe", true);
        row("few levels", "k=" + variant(nested(QMetaType::QVariantList, 60)), true);
        row("a comment", ";\"\nk=1\n;" + bomb, true);
        row("lists", "k=" + bomb, false);
        row("maps", "k=" + variant(nested(QMetaType::QVariantMap, deep)), false);
        row("hashes", "k=" + variant(nested(QMetaType::QVariantHash, deep)), false);
        row("variants", "k=" + variant(nested(QMetaType::QVariant, deep)), false);
        row("as a date", "k=" + variant(word(QMetaType::QVariant) + QByteArray(1, 0), "@DateTime("), false);
        row("quoted", "k=\"" + bomb + "\"", false);
        row("after a comma", "k=a, \"b\" , " + bomb, false);
        row("in a group, by CR LF", "\r\n[g]\r\n \t k = " + bomb + "\r\n", false);
        row("overwritten later", "k=" + bomb + "\nk=1\n", false);
        row("behind a number sign", "#k=" + bomb, false);
        row("a section that is none", "\f[k]=" + bomb, false);
        row("begun by an escape", "k=\\x40" + bomb.mid(1), false);
        row("begun in octal", "k=\\100" + bomb.mid(1), false);
        row("behind an unknown escape", "k=\\q" + bomb, false);
        row("split by quotes", "k=\"@Var\"\"iant(" + bomb.mid(9), false);
        row("over two lines", "k=\"\n\"," + bomb, false);
        row("more items than bytes", "k=" + variant(word(QMetaType::QVariantList) + word(0x7fffffff)), false);
        row("more texts than bytes", "k=" + variant(word(QMetaType::QStringList) + word(0x7fffffff)), false);
        row("a pixmap", "k=" + variant(word(65) + word(0)), false);
        row("a picture", "k=" + variant(picture(QSize(4096, 2))), true);
        row("a large picture", "k=" + variant(picture(QSize(4097, 2))), false);
    }

    void judgesFiles()
    {
        const auto [text, harmless] = Rows<QByteArray, bool>::current();
        QCOMPARE(isHarmlessIni(text), harmless);
        const QString path = m_folder.filePath("judged.ini");
        QVERIFY(writeFile(path, text));
        QCOMPARE(CIniFile(path, CIniFile::Access::Extend).commit(), harmless);
        QVERIFY(harmless || !CIniFile(path, CIniFile::Access::Read).contains("k"));
    }
};

QTEST_MAIN(TestIniCheck)
#include "TestIniCheck.moc"
