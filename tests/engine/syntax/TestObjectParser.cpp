#include "engine/syntax/ObjectParser.h"
#include "fuzz/accounts/ObjectAccount.h"
#include "support/Rows.h"

using namespace engine;

class TestObjectParser : public QObject
{
    Q_OBJECT

private slots:
    void agreesWithLibqpdf_data()
    {
        const Rows<QStringList> row;
        row("numbers", {"0", "007", "-0", "-12", "+5", "999999999999999999", "1.5", "-1.50", ".5", "5.",
                        "-.5", "0.0000000000000000000001"});
        row("words", {"true", "false", "null", "R"});
        row("names", {"/Name", "/A#20b", "/#", "/\xff\v", "/1.5", "/"});
        row("literal strings", {"()", "(a(b)c)", "(a\\)b\\012)", "(a\rb\r\nc)", "(\xfe\xff)", "(<</A 1>>)"});
        row("hexadecimal strings", {"<>", "<00fF>", "<0>", "<0 1\n2>"});
        row("arrays", {"[]", "[1 2.0/A(b)<63>[true]null]", "[ 1 0 R 2 0 R]", "[0 0 R 1 65535 R]",
                       "[1 0 2 0 R R]", "[2147483648 0 R]", "[-1 0 R]", "[1\t0\nR/A]"});
        row("dictionaries",
            {"<<>>", "<</A 1/B<</C[1 0 R]>>>>", "<</A null/B 1 0 R>>", "<</A 1/A 2>>", "<</A>>", "<</A 1 2>>",
             "<<1 2>>", "<</A#42 1>>", "<</ 1>>", "<</Type/Sig/ByteRange[0 1]/Contents<00>>>"});
        row("deep",
            {QString(100, '[') + QString(100, ']'), QString("<</A").repeated(99) + " 1" + QString(198, '>')});
    }

    void agreesWithLibqpdf()
    {
        const auto [texts] = Rows<QStringList>::current();
        for (const QString& each : texts) {
            const std::string text = each.toLatin1().toStdString();
            const std::string ours = objectAccount([&](QPDF& pdf) { return parseObject(pdf, text); });
            const std::string theirs =
                objectAccount([&](QPDF& pdf) { return QPDFObjectHandle::parse(&pdf, text); });
            QCOMPARE(QByteArray::fromStdString(ours), QByteArray::fromStdString(theirs));
        }
    }
};

QTEST_GUILESS_MAIN(TestObjectParser)
#include "TestObjectParser.moc"
