#include "host/terminal/JsonLine.h"
#include "host/terminal/TerminalText.h"
#include "support/Rows.h"

#include <QJsonDocument>

using namespace host;

class TestTerminalText : public QObject
{
    Q_OBJECT

private slots:
    void escapesForTerminals_data()
    {
        const Rows<QByteArray, QByteArray> add;
        const auto row = [&add](const QByteArray& bytes, const char* printed) {
            add(printed, bytes, QByteArray(printed));
        };
        row("plain \xc3\xb4 \xe2\x82\xac \xf0\x9f\x98\x80.pdf",
            "plain \xc3\xb4 \xe2\x82\xac \xf0\x9f\x98\x80.pdf");
        row("a\nb\tc\rd", "a\\nb\\tc\\x0dd");
        row("\x1b[31m\x7f", "\\x1b[31m\\x7f");
        row("back\\slash", "back\\\\slash");
        row("\xff\xc3", "\\xff\\xc3");
        row("\xc2\x9b", "\\u009b");
        row("\xe2\x80\xae"
            "fdp.exe",
            "\\u202efdp.exe");
        row("\xc2\xad\xe2\x81\xa0\xe1\xa0\x8e\xef\xbb\xbf", "\\u00ad\\u2060\\u180e\\ufeff");
        row("\xe2\x80\xa8\xee\x80\x80\xef\xbf\xbf", "\\u2028\\ue000\\uffff");
        row("\xf3\xa0\x81\x81", "\\U000e0041");
        row(QByteArray("nul\0", 4), "nul\\x00");
    }

    void escapesForTerminals()
    {
        const auto [bytes, printed] = Rows<QByteArray, QByteArray>::current();
        QCOMPARE(QByteArray::fromStdString(forTerminal(bytes.toStdString())), printed);
        // What is safe stays as it is, and what somebody has let through is escaped after all.
        QCOMPARE(QByteArray::fromStdString(surelyForTerminal("\n" + printed.toStdString())), "\n" + printed);
        if (!bytes.contains('\\') && !bytes.contains('\n'))
            QCOMPARE(QByteArray::fromStdString(surelyForTerminal(bytes.toStdString())), printed);
    }

    // Names come back from JSON as the bytes that they are, and nothing in a line misleads a terminal.
    void keepsNamesInJson_data()
    {
        const Rows<QByteArray> row;
        for (const char* name :
             {"plain \xc3\xb4 \xf0\x9f\x98\x80.pdf", "\xff\xc3.pdf", "\xef\xbb\xbf\x61.pdf",
              "\x7f\xc2\x85\xc2\xad\xe2\x81\xa0\xe1\xa0\x8e", "\xf3\xa0\x81\x81", "\xef\xbf\xbd",
              "\xef\xbf\xbe\xef\xbf\xbf", "\x1b[31m\n\t\"\\%41"})
            row(QByteArray(name).toPercentEncoding(), QByteArray(name));
    }

    void keepsNamesInJson()
    {
        const auto [name] = Rows<QByteArray>::current();
        QJsonObject object;
        insertName(object, "file", name.toStdString());
        const QByteArray line = QByteArray::fromStdString(jsonLine(object));
        const QJsonObject read = QJsonDocument::fromJson(line).object();
        QCOMPARE(QByteArray::fromStdString(nameIn(read, "file")), name);
        for (const uint character : QString::fromUtf8(line.chopped(1)).toUcs4())
            QVERIFY2(!misleads(character), line);
        QCOMPARE(read.contains("fileBytes"), name.startsWith('\xff'));
    }
};

QTEST_GUILESS_MAIN(TestTerminalText)
#include "TestTerminalText.moc"
