#include "fuzz/accounts/ReadingAccount.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/documents/Rewritten.h"

#include <QDir>
#include <QtTest>

#include <functional>
#include <random>

using namespace engine;

namespace {

/// A document of 20,000 pages with a cross-reference stream that is not compressed, and where its entries of
/// seven bytes begin.
std::pair<std::string, std::size_t> withLongStream()
{
    const std::string plain = PdfBuilder::simple({}, 20000);
    const std::size_t table = plain.rfind("xref\n0 20003\n");
    std::string bytes =
        plain.substr(0, table) +
        "20003 0 obj\n<< /Type /XRef /W [1 4 2] /Size 20003 /Root 1 0 R /Length 140021 >>\nstream\n";
    const std::size_t entries = bytes.size();
    for (std::size_t entry = 0; entry < 20003; ++entry) {
        const unsigned long offset = std::stoul(plain.substr(table + 13 + entry * 20, 10));
        bytes += entry == 0 ? '\0' : '\1';
        for (const int shift : {24, 16, 8, 0})
            bytes += static_cast<char>(offset >> shift & 0xff);
        bytes += std::string(2, '\0');
    }
    return {bytes + "\nendstream\nendobj\nstartxref\n" + std::to_string(table) + "\n%%EOF\n", entries};
}

/// A document that touches every kind of thing that is read: a deep tree, names, preferences, a form.
std::string manifold()
{
    PdfBuilder builder;
    builder.catalog(
        "/PageMode 20 0 R /ViewerPreferences 21 0 R /OpenAction (chapter) /Names << /Dests 22 0 R >> "
        "/AcroForm << /Fields [25 0 R] >> /Lang (en)");
    builder.object(2, "<< /Type /Pages /Count 5 /Kids [3 0 R 6 0 R] /MediaBox 30 0 R /Rotate 90 >>");
    builder.object(3, "<< /Type /Pages /Parent 2 0 R /Count 2 /Kids [4 0 R 5 0 R] >>");
    builder.object(
        6, "<< /Type /Pages /Parent 2 0 R /Count 3 /Kids [7 0 R 8 0 R 9 0 R] /CropBox [10 10 200 300] >>");
    for (const int page : {4, 5, 7, 8, 9})
        builder.object(page, "<< /Type /Page /Parent " + std::to_string(page < 6 ? 3 : 6) + " 0 R >>");
    builder.object(20, "/UseThumbs")
        .object(21, "<< /HideToolbar true /FitWindow 29 0 R >>")
        .object(29, "true");
    builder.object(22, "<< /Kids [23 0 R] >>");
    builder.object(23, "<< /Limits [(a) (z)] /Names [(appendix) 24 0 R (chapter) << /D 24 0 R >>] >>");
    builder.object(24, "[8 0 R /XYZ 31 0 R 700 1.5]").object(31, "72");
    builder.object(25, "<< /FT /Sig /T (one) /V 26 0 R >>").object(26, "<< /Type /Sig /Filter /Any >>");
    builder.object(27, "<< /Title (A \\(fine\\) title) /Author <feff00e9> >>");
    builder.object(30, "[0 0 595 28 0 R]").object(28, "842.5");
    return builder.trailer("/Info 27 0 R /ID [<0123> <4567>]").bytes();
}

void compare(const std::string& bytes)
{
    ReadingAccount direct(bytes, Reading::Direct);
    ReadingAccount whole(bytes, Reading::Whole);
    QCOMPARE(direct.loaded(), whole.loaded());
    if (!direct.loaded())
        return;
    QCOMPARE(direct.view(), whole.view());
    const QByteArray appended = whole.update(2);
    // Reading all of it can show a fault far from what the change needs, and then nothing is appended.
    if (!appended.contains("code "))
        QCOMPARE(direct.update(2), appended);
}

} // namespace

class TestDirectReader : public QObject
{
    Q_OBJECT

private slots:
    void givesWhatTheWholeDocumentGives_data()
    {
        const Rows<std::string> row;
        row("simple", PdfBuilder::simple());
        row("many pages in one node", PdfBuilder().catalog("").pages(700).bytes());
        row("of everything", manifold());
        row("object streams", inObjectStreams(manifold()));
        std::string twice = manifold();
        row("page tree's number twice", twice.replace(twice.find("\n22 0 obj"), 3, "\n02"));
        row("direct pages",
            PdfBuilder()
                .catalog("")
                .object(2, "<< /Type /Pages /Count 2 /Kids [<< /Type /Page >> << /Type /Page >>] >>")
                .bytes());
    }

    void givesWhatTheWholeDocumentGives()
    {
        const auto [bytes] = Rows<std::string>::current();
        QVERIFY(accepted(bytes));
        compare(bytes);
    }

    void givesUpAtOddities_data()
    {
        const Rows<std::string> row;
        const std::string plain = PdfBuilder::simple();
        const auto with = [&](const std::string& what, const std::string& instead) {
            return replaced(plain, what, instead);
        };
        row("junk before the header", "junk\n" + plain);
        row("text behind the end", plain + "more");
        row("startxref beside the mark", with("startxref\n", "startxref\n1"));
        row("short entry", with(" 65535 f \n", " 65535 f\n"));
        row("comment in the catalog", with("/Type /Catalog", "/Type %x\n/Catalog"));
        row("stream behind the trailer", with("\nstartxref\n", "\nstream\nstartxref\n"));
        row("size too small", with("/Size 6", "/Size 5"));
        row("catalog elsewhere", with("/Root 1 0 R", "/Root 3 0 R"));
        row("encrypted", PdfBuilder().catalog("").pages(1).trailer("/Encrypt << >>").bytes());
        row("entry without a line end", with("65535 f \n", "65535 f  "));
        row("section without entries", plain + "xref\ntrailer\n<< /Size 6 /Root 1 0 R /Prev " +
                                           std::to_string(plain.find("xref\n0")) + " >>\nstartxref\n" +
                                           std::to_string(plain.size()) + "\n%%EOF\n");
        row("numbers of entries in two lines", with("xref\n0 6\n", "xref\n0\n6\n"));
        row("empty line before entries", with("xref\n0 6\n", "xref\n0 6\n\n"));
        row("NUL before the number of entries", with("xref\n0 6\n", std::string("xref\n0\0006\n", 9)));
        row("entries out of order", with("xref\n0 6\n", "xref\n5 1\n0000000000 00000 f \n0 6\n"));
        row("no version", with("%PDF-1.7", "%PDF-1.>"));
        row("two digits behind the version's point",
            PdfBuilder().version("1.73").catalog("").pages(3).bytes());
        const std::string packed = rewritten(manifold(), [](QPDFWriter& writer) {
            writer.setStaticID(true);
            writer.setObjectStreamMode(qpdf_o_generate);
            writer.setQDFMode(true);
        });
        const auto withByte = [&](const char* before, std::size_t skipped, char byte) {
            std::string changed = packed;
            const std::size_t found = changed.find("\nstream\n", changed.find(before)) + 8;
            changed[found + skipped] = byte;
            return changed;
        };
        std::string unended = packed;
        unended[unended.find("\nendobj", unended.find("/ObjStm"))] = '(';
        row("stream's object without an end", unended);
        row("object twice in a stream", withByte("/ObjStm", 4, '2')); // "2 0 3 ..." before
        row("entry of an unknown kind", withByte("/XRef", 0, 3));
        std::string renamed = packed;
        renamed[renamed.rfind(" 0 obj", renamed.find("/XRef")) - 1] = '1';
        row("section under another object's number", renamed);
        row("section of itself", with("/Root 1 0 R", "/Root 1 0 R /Prev 0"));
    }

    void givesUpAtOddities()
    {
        const auto [bytes] = Rows<std::string>::current();
        QVERIFY(!accepted(bytes));
        compare(bytes);
    }

    void agreesOnOddNodesAndPages_data()
    {
        const Rows<std::string, std::string> row;
        const std::string pages = "<< /Type /Pages /Count 3 /Kids [3 0 R 4 0 R 5 0 R] >>";
        const std::string page = "<< /Type /Page >>";
        const std::string kids = "/Kids [3 0 R 4 0 R 5 0 R]";
        row("kids twice", "<< /Kids [3 0 R] /Count 3 /Kids [3 0 R 4 0 R 5 0 R] >>", page);
        row("kids without spaces", "<</Kids[3 0 R 4 0 R 5 0 R]/Count 3>>", page);
        row("kids spread out", "<< /Kids\n[ 03 00\tR\r4 0 R  5 0 R\n]/Count 3 >>", page);
        row("kids in another entry first", "<< /X << /Kids [5 0 R] >> " + kids + " /Count 3 >>", page);
        row("kids in another entry", "<< /X << /Kids [5 0 R] >> /Count 3 >>", page);
        row("kids in a string", "<< /X (/Kids [5 0 R]) " + kids + " /Count 3 >>", page);
        row("kids of a longer name", "<< /KidsX [5 0 R] " + kids + " /Count 3 >>", page);
        row("number among kids", "<< /Count 3 /Kids [3 0 R 4 5 0 R] >>", page);
        row("R among kids", "<< /Count 3 /Kids [3 0 R R 4 0 R] >>", page);
        row("type twice", pages, "<< /Type /Pages /Type /Page >>");
        row("two values", pages, "<< /Type /Pages 5 >>");
        row("type elsewhere", pages, "<< /Type 6 0 R /X << /Type /Page >> >>");
        row("vertical tab", pages, "<< /Type\v/Pages >>");
        row("large number", pages, "<< /Type /Page /X 99999999999999999999 >>");
        row("R without numbers", pages, "<< /Type /Page /X [R R R R R R R R] >>");
    }

    void agreesOnOddNodesAndPages()
    {
        const auto [pages, page] = Rows<std::string, std::string>::current();
        const std::string bytes = PdfBuilder()
                                      .catalog("")
                                      .object(2, pages)
                                      .object(3, "<< /Type /Page >>")
                                      .object(4, page)
                                      .object(5, "<< /Type /Page >>")
                                      .object(6, "/Pages")
                                      .bytes();
        QVERIFY(accepted(bytes));
        compare(bytes);
    }

    void looksAtWhatIsAskedForInLongSections_data()
    {
        const Rows<std::string, std::size_t, std::size_t, char> row; // where entries begin, and a bad byte
        const std::string plain = PdfBuilder::simple({}, 20000);
        row("table", plain, plain.rfind("xref\n0 20003\n") + 13 + 17, 20, '?');
        const auto [stream, entries] = withLongStream();
        row("stream", stream, entries, 7, '\3');
    }

    void looksAtWhatIsAskedForInLongSections()
    {
        auto [bytes, entries, size, bad] = Rows<std::string, std::size_t, std::size_t, char>::current();
        compare(bytes);
        bytes[entries + 10000 * size] = bad;
        QVERIFY(accepted(bytes));
        auto reader = DirectReader::open(ByteSource::fromBytes(bytes));
        QVERIFY(reader->object(9999, 0) && reader->object(10001, 0));
        QVERIFY(!reader->object(10000, 0));
        bytes[entries + size] = bad; // of the catalog
        QVERIFY(!accepted(bytes));
    }

    void agreesOnDamagedDocuments()
    {
        std::mt19937 random(20261122);
        int taken = 0;
        for (const std::string& original : {manifold(), inObjectStreams(manifold())}) {
            for (int round = 0; round < 400; ++round) {
                std::string bytes = original;
                for (unsigned flips = 1 + random() % 2; flips > 0; --flips)
                    bytes[random() % bytes.size()] = "0123456789 /<>[]()R\n\xff"[random() % 21];
                taken += accepted(bytes) ? 1 : 0;
                compare(bytes);
                if (QTest::currentTestFailed()) {
                    QFile dump(QDir::temp().filePath("TestDirectReader.pdf"));
                    if (dump.open(QIODevice::WriteOnly))
                        dump.write(bytes.data(), static_cast<qint64>(bytes.size()));
                    QFAIL(qPrintable(QString("round %1, see %2").arg(round).arg(dump.fileName())));
                }
            }
        }
        QVERIFY(taken > 100);
    }

    void agreesOnTheCorpus()
    {
        const QString corpus = qEnvironmentVariable("QUINTAR_CORPUS");
        if (corpus.isEmpty())
            QSKIP("QUINTAR_CORPUS names no folder");
        int taken = 0;
        for (const QFileInfo& entry : QDir(corpus).entryInfoList({"*.pdf"}, QDir::Files)) {
            QFile file(entry.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const std::string bytes = file.readAll().toStdString();
            if (bytes.empty() || !accepted(bytes)) // nothing to compare, and some keep a reader busy for long
                continue;
            ++taken;
            compare(bytes);
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(entry.fileName()));
        }
        QVERIFY(taken > 0);
    }
};

QTEST_GUILESS_MAIN(TestDirectReader)
#include "TestDirectReader.moc"
