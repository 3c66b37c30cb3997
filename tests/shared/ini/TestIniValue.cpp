// Every type of value that QSettings can store, and what would make QSettings hang or lie.
#include "shared/ini/CIniFile.h"
#include "support/Rows.h"
#include "support/folders/TemporaryHome.h"

#include <QtGui>
#include <QtTest>
#include <QtWidgets/QSizePolicy>

namespace {

using Access = CIniFile::Access;

const int deep = 30000;
const quint32 stored = 0x7fffffff; // more than any file has

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

QByteArray serialized(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(value.userType() == QMetaType::QDateTime ? QDataStream::Qt_5_6 : QDataStream::Qt_4_0);
    stream << value;
    return bytes;
}

QByteArray nested(quint32 type, int levels)
{
    QByteArray bytes;
    for (int i = 0; i < levels; ++i) {
        bytes += word(type);
        if (type != QMetaType::QVariant + 97)
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
    return serialized(image);
}

/// One that claims another size than it has.
QByteArray liar(quint32 side)
{
    QByteArray bytes = picture(QSize(2, 2));
    return bytes.replace(bytes.indexOf("IHDR") + 4, 8, word(side) + word(side));
}

QVariantList valuesOfCoreTypes()
{
    const QDate date(2020, 2, 29);
    QVariantList values; // by streaming, which takes several a line
    values << true << 1 << 2U << qint64(3) << quint64(4) << 5.5 << 1.5f << QChar('c') << QVariant();
    for (const int type : {QMetaType::Long, QMetaType::Short, QMetaType::Char, QMetaType::ULong,
                           QMetaType::UShort, QMetaType::UChar, QMetaType::SChar}) {
        QVariant one(1);
        one.convert(type);
        values << one;
    }
    values << QVariantMap{{"k", QPoint(1, 2)}} << QVariantHash{{"k", 1}} << QVariant(QVariantList())
           << QVariant(QVariantList{1, "@x", QSize(1, 2)}) << QVariant(QVariantList{QSize(1, 2)});
    values << "text"
           << "@Variant(no)"
           << ""
           << QString::fromLatin1("\0"
                                  "1",
                                  2)
           << QStringList()
           << QString::fromUtf8(" C:\\\xc3\xbc\xe2\x82\xac"
                                "a1 \"b\", c; d=\n\t")
           << QStringList{"a", "b,c", "@d", ""} << QByteArray("\0\1\xff@", 4) << QBitArray(9, true)
           << QVariant::fromValue(QByteArrayList{"a", "b"}) << QUrl("file:///a b") << QLocale("de");
    values << date << QTime(1, 2) << QDateTime(date, QTime(1, 2)) << QDateTime(date, QTime(1, 2), Qt::UTC)
           << QDateTime(date, QTime(1, 2), Qt::OffsetFromUTC, 3600)
           << QDateTime(date, QTime(1, 2), QTimeZone(7200));
    values << QRect(1, 2, 3, 4) << QRectF(1, 2, 3, 4) << QSize(1, 2) << QSizeF(1, 2) << QLine(1, 2, 3, 4)
           << QLineF(1, 2, 3, 4) << QPoint(1, 2) << QPointF(1, 2) << QPolygon({QPoint(1, 2)})
           << QPolygonF({QPointF(1, 2)}) << QRegion() << QRegion(0, 0, 9, 9) + QRegion(20, 5, 5, 5);
    values << QRegExp("a{2,30}b") << QRegularExpression("a(b)") << QEasingCurve(QEasingCurve::OutBounce)
           << QEasingCurve(QEasingCurve::OutQuad) << QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11)
           << QVariant::fromValue(nullptr) << QVariant(QMetaType::QVariant, nullptr);
    values << QVariant::fromValue(QJsonValue("a")) << QJsonObject{{"a", QJsonArray{1, "b"}}} << QJsonArray{1}
           << QVariant::fromValue(QJsonDocument(QJsonArray{1})) << QVariant::fromValue(QCborSimpleType::Null)
           << QVariant::fromValue(QCborValue(1)) << QVariant::fromValue(QCborArray{1})
           << QVariant::fromValue(QCborMap{{1, "a"}});
    return values;
}

QVariantList valuesOfGuiTypes()
{
    QPixmap pixmap(3, 2);
    pixmap.fill(Qt::red);
    QBitmap bitmap(8, 2); // whole bytes
    bitmap.clear();
    QPen dashed(Qt::red, 2);
    dashed.setDashPattern({1, 2, 3, 4});
    QTextFormat format(QTextFormat::CharFormat);
    format.setProperty(QTextFormat::ForegroundBrush, QBrush(QLinearGradient(0, 0, 1, 1)));
    QVariantList values;
    values << QFont("Courier", 9) << pixmap << bitmap << pixmap.toImage() << QImage() << QIcon(pixmap)
           << QImage(5000, 3, QImage::Format_Mono) << QCursor(Qt::CrossCursor) << QCursor(pixmap);
    values << QBrush(Qt::red) << QBrush(pixmap) << QBrush(QRadialGradient(0, 0, 1))
           << QBrush(QConicalGradient(0, 0, 1)) << QColor(1, 2, 3) << QPalette() << dashed << QPen(Qt::red)
           << QVariant::fromValue(QColorSpace(QColorSpace::SRgb)) << QKeySequence("Ctrl+S, Ctrl+T")
           << QVariant::fromValue(QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding));
    values << QTextLength(QTextLength::FixedLength, 3) << format << QMatrix(1, 2, 3, 4, 5, 6)
           << QTransform(1, 2, 3, 4, 5, 6) << QMatrix4x4() << QVector2D(1, 2) << QVector3D(1, 2, 3)
           << QVector4D(1, 2, 3, 4) << QQuaternion(1, 2, 3, 4);
    return values;
}

QVariantMap valuesOfAllTypes()
{
    const QVariantList values = valuesOfCoreTypes() + valuesOfGuiTypes();
    QVariantMap named{{"each in a map", QVariantMap()}};
    for (int i = 0; i < values.size(); ++i)
        named[QString("%1 %2").arg(i, 3, 10, QChar('0')).arg(values[i].typeName())] = values[i];
    return named;
}

} // namespace

class TestIniValue : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString path(const char* name) const { return m_folder.filePath(name); }

private slots:
    void sharesEveryTypeWithQSettings_data()
    {
        const Rows<QVariant> row;
        const QVariantMap values = valuesOfAllTypes();
        QSet<int> types;
        for (auto it = values.begin(); it != values.end(); ++it) {
            row(it.key().toUtf8().constData(), QVariant(QMetaType::QVariant, &it.value()));
            types.insert(it->userType());
        }
        QVERIFY2(types.size() >= 65, qPrintable(QString::number(types.size())));
    }

    void sharesEveryTypeWithQSettings()
    {
        const QVariant value = std::get<0>(Rows<QVariant>::current()).value<QVariant>();
        const QVariantMap values{{"k", value}, {"map", QVariantMap{{"k", value}}}};
        {
            QFile::remove(path("theirs.ini"));
            QSettings theirs(path("theirs.ini"), QSettings::IniFormat);
            CIniFile ours(path("ours.ini"), Access::Replace);
            for (const QString key : {"map", "g1/g2/k", "1/path", "General/k", "a b%\xc3\xbc"}) {
                theirs.setValue(key, values.value(key, value));
                ours.setValue(key, values.value(key, value));
            }
            QVERIFY(ours.commit());
        }
        QCOMPARE(bytesOf(path("ours.ini")), bytesOf(path("theirs.ini")));
        // Under another name: QSettings would remember the values themselves.
        const QString copy = path(QTest::currentDataTag());
        QVERIFY(QFile::copy(path("theirs.ini"), copy));
        const QSettings theirs(copy, QSettings::IniFormat);
        const CIniFile ours(copy, Access::Read);
        QCOMPARE(ours.keys(), theirs.allKeys());
        for (const QString& key : ours.keys()) {
            QString problem;
            QVERIFY2(ours.decoded(key, problem), qPrintable(problem));
            QCOMPARE(ours.value(key).userType(), theirs.value(key).userType());
            QCOMPARE(serialized(ours.value(key)), serialized(theirs.value(key)));
        }
    }

    void readsTextsAsQSettingsDoes_data()
    {
        const Rows<QByteArray> row;
        row("CR LF", "[General]\r\nk=1\r\nl = 2 \r\n[g]\r\nk=3\r\n");
        row("CR", "k=1\rl=2");
        row("comments", "; k=0\nk=1 ; no\n;[g]\n#l=2\n");
        row("names of sections", "[general]\nk=1\n[%GENERAL]\nk=2\n[ g ]\nk=3\n[a\\b]\nk=4\n[open\nk=5\n");
        row("case", "k=1\nK=2\n[G]\nk=3\n[g]\nk=4\n");
        row("twice", "k=1\n[g]\nk=2\n[General]\nk=3\nl\\m=4\n[l]\nm=5\n");
        row("escaped keys", "%41%U20AC%%4x%U12=1\na\\b\\c=2\n");
        row("escapes", "k=\\x41g\\101\\n\\q\\x\\\"z\nl=\\\\ \\x20AC\n");
        row("quotes", "k=\"a, b\" c\nl=a \"b;\" , \" c \"\nm=\"open");
        row("over lines", "k=\"a\nb\"\nl=a\\\nb\\\r\nc\n");
        row("spaces", "k=  a b \t\nl=\\x20 a\\x20 \n m \t=1\n");
        row("lists", "k=a, b,,\nl=@Size(1 2), @@x, c\nm=@@a, @@b\nn=,\n");
        row("forms",
            "k=@Rect(1 2 3 4)\nl=@Rect(1 2)\nm=@ByteArray(\\xff)\nn=@Point(1 2\no=@Invalid()\np=@\n");
        row("Latin-1", "k=\xe9\n\xe9=1\n");
        row("no settings", "a b\n=\n%PDF-1.7\n");
    }

    void readsTextsAsQSettingsDoes()
    {
        const auto [text] = Rows<QByteArray>::current();
        QVERIFY(writeFile(path("text.ini"), text));
        const QSettings theirs(path("text.ini"), QSettings::IniFormat);
        const CIniFile ours(path("text.ini"), Access::Read);
        QCOMPARE(ours.keys(), theirs.allKeys());
        for (const QString& key : theirs.allKeys())
            QVERIFY2(ours.value(key) == theirs.value(key), qPrintable(key));
    }

    void saysWhyItRefuses_data()
    {
        const Rows<QByteArray, QString> row;
        const quint32 extended = 97;
        const QByteArray bomb = variant(nested(QMetaType::QVariantList, deep));
        row("few levels", variant(nested(QMetaType::QVariantList, 60)), "");
        row("lists", bomb, "is nested too deep");
        row("maps", variant(nested(QMetaType::QVariantMap, deep)), "is nested too deep");
        row("hashes", variant(nested(QMetaType::QVariantHash, deep)), "is nested too deep");
        row("variants", variant(nested(QMetaType::QVariant + extended, deep)), "is nested too deep");
        row("as a date", variant(word(QMetaType::QVariant) + QByteArray(1, 0), "@DateTime("), "is no date");
        row("quoted", "\"" + bomb + "\"", "is nested too deep");
        row("after a comma", "a, \"b\" , " + bomb, "is nested too deep");
        row("begun by an escape", "\\x40" + bomb.mid(1), "is nested too deep");
        row("split by quotes", "\"@Var\"\"iant(" + bomb.mid(9) + "\"", "is nested too deep");
        row("behind an unknown escape", "\\q" + variant(serialized(1.5f)), "is damaged");
        for (const quint32 type :
             {quint32(QMetaType::QVariantList), quint32(QMetaType::QStringList), quint32(QMetaType::QString),
              quint32(QMetaType::QByteArray), quint32(QMetaType::QBitArray), quint32(QMetaType::QPolygon),
              QMetaType::QByteArrayList + extended, QMetaType::QJsonObject + extended})
            row(("lies: " + QByteArray::number(type)).constData(), variant(word(type) + word(stored)),
                "is cut off");
        row("a large CBOR claim",
            variant(word(QMetaType::QCborArray + extended) + word(5) + QByteArray("\x9a\x7f\xff\xff\xff", 5)),
            "is damaged");
        row("a pointer", variant(word(QMetaType::VoidStar + extended) + word(0)),
            "holds a value of the unknown type 128");
        row("a type by name", variant(word(127) + word(9) + QByteArray("QWidget*\0", 9)),
            "holds a value of the unknown type QWidget*");
        row("something left over", variant(serialized(1.5f) + "x"), "is followed by something else");
        row("a wide picture", variant(picture(QSize(70000, 2))), "");
        row("a large picture", variant(liar(100000)),
            "holds a picture of 100000 x 100000 pixels, which is too large");
        row("many parts", variant(word(QMetaType::QRegion) + word(8 + 16 * 20000) + word(10) + word(20000)),
            "holds a region that is damaged or has too many parts");
        row("a zone of nobody",
            variant(word(QMetaType::QDateTime) + QByteArray(13, 0) + "\3" + word(4) + QByteArray("\0Q\0x", 4),
                    "@DateTime("),
            "names no time zone");
        row("a zone elsewhere",
            variant(word(QMetaType::QDateTime) + QByteArray(13, 0) + "\3" + word(8) +
                        QByteArray("\0.\0.\0/\0x", 8),
                    "@DateTime("),
            "names no time zone");
        QByteArray pattern = serialized(QRegExp("((a{99}){01})"));
        row("a pattern that multiplies",
            variant(pattern.replace(QByteArray("0\0001", 3), QByteArray("9\0009", 3))),
            "holds a pattern that is too large");
        row("a damaged picture", variant(picture(QSize(2, 2)).chopped(9)), "is cut off");
    }

    void saysWhyItRefuses()
    {
        const auto [text, reason] = Rows<QByteArray, QString>::current();
        QVERIFY(writeFile(path("judged.ini"), "l=1\nk=" + text));
        QString problem;
        CIniFile file(path("judged.ini"), Access::Extend);
        QCOMPARE(file.decoded("k", problem).has_value(), reason.isEmpty());
        QVERIFY2(reason.isEmpty() ? problem.isEmpty() : problem.endsWith(reason), qPrintable(problem));
        // Nobody loses it all the same.
        file.setValue("n", 2);
        QVERIFY(file.commit());
        const CIniFile again(path("judged.ini"), Access::Read);
        QCOMPARE(again.keys(), (QStringList{"k", "l", "n"}));
        QVERIFY(reason == "is damaged" || again.decoded("k", problem).has_value() == reason.isEmpty());
    }

    void leavesTheFileWhereAValueCannotBeStored_data()
    {
        const Rows<QVariant> row;
        QVariant tower = 1;
        for (int i = 0; i < 70; ++i)
            tower = QVariantList{tower};
        row("a pointer", QVariant::fromValue(static_cast<QObject*>(this)));
        row("in a map", QVariantMap{{"p", QVariant::fromValue(static_cast<void*>(this))}});
        row("too deep", QVariant(QVariantMap{{"t", tower}}));
    }

    void leavesTheFileWhereAValueCannotBeStored()
    {
        const auto [value] = Rows<QVariant>::current();
        QVERIFY(writeFile(path("kept.ini"), "k=1"));
        CIniFile file(path("kept.ini"), Access::Replace);
        file.setValue("k", value);
        QVERIFY(!file.commit());
        QCOMPARE(file.problem(), QString("the value \"k\" holds something that cannot be stored"));
        QCOMPARE(bytesOf(path("kept.ini")), QByteArray("k=1"));
    }
};

QTEST_MAIN(TestIniValue)
#include "TestIniValue.moc"
