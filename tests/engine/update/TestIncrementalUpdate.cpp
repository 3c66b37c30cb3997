#include "engine/files/ByteSource.h"
#include "engine/update/IncrementalUpdate.h"
#include "engine/update/SourceInput.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/documents/Rewritten.h"
#include "support/engine/EngineErrors.h"

#include <QtTest>

#include <functional>

using namespace engine;

namespace {

const char* const password = "user";
const char* const text = "plain \\ (text) \x01\xff";

/// A document in memory as the library reads it.
struct Opened
{
    explicit Opened(const std::string& bytes) : source(ByteSource::fromBytes(bytes))
    {
        pdf.setSuppressWarnings(true);
        pdf.processInputSource(std::make_shared<SourceInput>(source, "document"), password);
    }

    QPDFObjectHandle catalog() { return pdf.getRoot(); }

    std::string update(const std::set<QPDFObjGen>& changed)
    {
        return IncrementalUpdate(pdf, CrossReference(pdf, source), *source, changed).bytes();
    }

    std::shared_ptr<ByteSource> source;
    QPDF pdf;
};

/// The update that gives the catalog another page mode and a string.
std::string updateOf(const std::string& bytes, const char* mode = "/UseOutlines")
{
    Opened document(bytes);
    document.catalog().replaceKey("/PageMode", QPDFObjectHandle::newName(mode));
    document.catalog().replaceKey("/Text", QPDFObjectHandle::newString(text));
    return document.update({document.catalog().getObjGen()});
}

std::string linearized()
{
    return rewritten(PdfBuilder::simple(), [](QPDFWriter& writer) { writer.setLinearization(true); });
}

std::string everywhere(const std::string& bytes, const char* old, const char* with)
{
    return QByteArray::fromStdString(bytes).replace(old, with).toStdString();
}

std::string tableEntry(std::size_t offset)
{
    return QString("%1 00000 n \n").arg(offset, 10, 10, QChar('0')).toStdString();
}

std::string hybrid()
{
    return hybrid(PdfBuilder().catalog("/ViewerPreferences 6 0 R").pages(1), 6, "<< /FitWindow true >>");
}

/// A second revision whose trailer has these entries; nothing in it but a catalog like the first's.
std::string withRevision(const std::string& first, const std::string& entries)
{
    const std::string object = "1 0 obj\n<< /Type /Catalog /Pages 2 0 R >>\nendobj\n";
    return first + object + "xref\n1 1\n" + tableEntry(first.size()) + "trailer\n<< /Root 1 0 R " + entries +
           " >>\nstartxref\n" + std::to_string(first.size() + object.size()) + "\n%%EOF\n";
}

/// What mutool shows of an object.
QByteArray asAnotherReaderSees(const std::string& bytes, const char* object)
{
    QTemporaryDir folder;
    QFile file(folder.filePath("document.pdf"));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(bytes.data(), qint64(bytes.size()));
    file.close();
    QProcess reader;
    reader.start("mutool", {"show", "-p", password, file.fileName(), object});
    reader.waitForFinished();
    return reader.readAll().trimmed();
}

std::string previous(const std::string& bytes)
{
    const std::size_t at = bytes.rfind("startxref\n") + 10;
    return "/Prev " + bytes.substr(at, bytes.find('\n', at) - at);
}

} // namespace

class TestIncrementalUpdate : public QObject
{
    Q_OBJECT

private slots:
    void appendsToAllKindsOfDocuments_data()
    {
        const Rows<std::string, bool, int> row;
        const std::string simple = PdfBuilder::simple();
        const std::string compressed = inObjectStreams(PdfBuilder::simple());
        const std::string junk = "HTTP/1.1 200 OK\r\n\r\n";
        row("table", simple, false, 6);
        row("carriage returns", everywhere(simple, "\n", "\r"), false, 6);
        row("entries of 19 bytes", everywhere(simple, " \n", "\n"), false, 6);
        row("object streams", compressed, true, 9);
        row("linearized", linearized(), false, 9);
        row("hybrid", hybrid(), false, 10);
        const std::string sameStream = hybrid().substr(hybrid().rfind("/XRefStm"));
        row("hybrid, one stream for two sections",
            withRevision(hybrid(), "/Size 10 " + previous(hybrid()) + " " +
                                       sameStream.substr(0, sameStream.find(" >>"))),
            false, 10);
        row("junk before the header", junk + simple, false, 6);
        row("no end-of-file marker", simple.substr(0, simple.size() - 6), false, 6);
        row("long tail", simple + std::string(20000, '\n'), false, 6);
        row("long tail of zeros, stream", compressed + std::string(5000, '\0'), true, 9);
        row("startxref a little early", replaced(simple, "\nxref", "\n\n\nxref"), false, 6);
        row("size too large", replaced(simple, "/Size 6", "/Size 600"), false, 600);
        const std::string revised = withRevision(simple, "/Size 2 " + previous(simple));
        row("older size larger", revised, false, 6);
        row("no further revision", withRevision(simple, "/Size 6 /Prev 0"), false, 6);
    }

    void appendsToAllKindsOfDocuments()
    {
        auto [bytes, stream, size] = Rows<std::string, bool, int>::current();
        // Twice, so that an update is also appended to an update.
        for (const char* mode : {"/UseOutlines", "/UseThumbs"}) {
            const std::string update = updateOf(bytes, mode);
            QCOMPARE(update.find("\nxref\n") == std::string::npos, stream);
            QVERIFY(update.find("/XRefStm") == std::string::npos);
            Opened before(bytes);
            const CrossReference old(before.pdf, before.source);
            bytes += update;
            Opened after(bytes);
            QCOMPARE(after.catalog().getKey("/PageMode").getName(), std::string(mode));
            QCOMPARE(after.catalog().getKey("/Text").getStringValue(), std::string(text));
            QCOMPARE(after.pdf.getAllPages().size(), before.pdf.getAllPages().size());
            QVERIFY(after.pdf.numWarnings() <= before.pdf.numWarnings());
            QCOMPARE(after.pdf.getTrailer().getKey("/Size").getIntValueAsInt(), size);
            QCOMPARE(after.pdf.getTrailer().getKey("/Prev").getUIntValue(), old.newestOffset());
            size += stream ? 1 : 0;
        }
    }

    void refusesWhatCannotBeBuiltUpon_data()
    {
        const Rows<std::string> row;
        const std::string simple = PdfBuilder::simple();
        const std::string revised = withRevision(simple, "/Size 6 " + previous(simple));
        row("no startxref", replaced(simple, "startxref", "startxxxx"));
        row("startxref at an object", replaced(simple, previous(simple).substr(6), "15"));
        row("startxref behind the end", replaced(simple, previous(simple).substr(6), "99999"));
        row("not a table", replaced(simple, "00000 n", "00000 x"));
        row("no size", replaced(simple, "/Size", "/Sixe"));
        row("impossible size", replaced(simple, "/Size 6", "/Size 99999999999"));
        row("direct catalog", replaced(simple, "/Root 1 0 R", "/Root << /Type /Catalog /Pages 2 0 R >>"));
        row("no catalog in the last trailer", replaced(revised, "/Root 1 0 R", "/Size 6"));
        row("loop", withRevision(simple, "/Size 6 " + previous(revised)));
        row("previous section is none", withRevision(simple, "/Size 6 /Prev 3"));
        row("hybrid without its stream", replaced(hybrid(), "/XRefStm ", "/XRefStm 1"));
    }

    void refusesWhatCannotBeBuiltUpon()
    {
        const auto [bytes] = Rows<std::string>::current();
        QVERIFY(!bytes.empty());
        Opened document(bytes);
        QPDFObjectHandle catalog = document.pdf.getTrailer().getKey("/Root");
        QCOMPARE(errorOf([&] { document.update({catalog.getObjGen()}); }), ErrorCode::CannotAppend);
    }

    void refusesObjectsThatItCannotWrite()
    {
        Opened document(PdfBuilder().catalog("").pages(1).bytes());
        QCOMPARE(errorOf([&] { document.update({}); }), ErrorCode::NothingChanged);
        QPDFObjectHandle deep = QPDFObjectHandle::newNull();
        for (int level = 0; level < 600; ++level)
            deep = QPDFObjectHandle::newArray({deep});
        document.catalog().replaceKey("/Deep", deep);
        QCOMPARE(errorOf([&] { document.update({QPDFObjGen(1, 0)}); }), ErrorCode::TooComplex);
    }

    void keepsTheGeneration()
    {
        std::string bytes = replaced(PdfBuilder::simple(), "/Root 1 0 R", "/Root 1 3 R");
        bytes.replace(bytes.find("1 0 obj"), 7, "1 3 obj");
        bytes.replace(bytes.find("00000 n"), 7, "00003 n");
        const std::string update = updateOf(bytes);
        QVERIFY(update.starts_with("1 3 obj\n"));
        QVERIFY(update.find(" 00003 n \n") != std::string::npos);
        QCOMPARE(Opened(bytes + update).catalog().getKey("/Text").getStringValue(), std::string(text));
    }

    void writesAnObjectOfAHybridFilePlainly()
    {
        const std::string bytes = hybrid();
        Opened document(bytes);
        QPDFObjectHandle preferences = document.catalog().getKey("/ViewerPreferences");
        QVERIFY(preferences.getKey("/FitWindow").getBoolValue());
        preferences.replaceKey("/FitWindow", QPDFObjectHandle::newBool(false));
        const std::string update = document.update({preferences.getObjGen()});
        QVERIFY(update.starts_with("6 0 obj\n<< /FitWindow false >>\nendobj\nxref\n6 1\n"));
        Opened after(bytes + update);
        QVERIFY(!after.catalog().getKey("/ViewerPreferences").getKey("/FitWindow").getBoolValue());
    }

    void keepsTheTrailersOwnEntriesOnly()
    {
        const std::string bytes = PdfBuilder()
                                      .catalog("")
                                      .pages(1)
                                      .object(9, "<< /Title (t) >>")
                                      .trailer("/Info 9 0 R /ID [<61> <62>] /Private [(kept) 1.50 null] "
                                               "/Type /XRef /W [1 2 1] /Index [0 1] /Filter /F /Length 5")
                                      .bytes();
        Opened document(bytes + updateOf(bytes));
        QPDFObjectHandle trailer = document.pdf.getTrailer();
        QCOMPARE(trailer.getKeys(),
                 (std::set<std::string>{"/ID", "/Info", "/Prev", "/Private", "/Root", "/Size"}));
        QCOMPARE(trailer.getKey("/Private").unparse(), std::string("[ (kept) 1.50 null ]"));
        QCOMPARE(trailer.getKey("/ID").getArrayItem(0).getStringValue(), std::string("a"));
        QCOMPARE(trailer.getKey("/ID").getArrayItem(1).getStringValue().size(), std::size_t(16));
        QCOMPARE(updateOf(bytes), updateOf(bytes));
    }

    void addsNewObjectsThatAreReferredTo()
    {
        for (const std::string& bytes : {PdfBuilder::simple(), inObjectStreams(PdfBuilder::simple())}) {
            Opened document(bytes);
            QPDFObjectHandle inner = document.pdf.makeIndirectObject(QPDFObjectHandle::parse("(inner)"));
            QPDFObjectHandle outer = document.pdf.makeIndirectObject(QPDFObjectHandle::newArray({inner}));
            document.pdf.makeIndirectObject(QPDFObjectHandle::parse("(lost)"));
            document.catalog().replaceKey("/Outer", outer);
            document.catalog().replaceKey("/Missing", document.pdf.getObject(900, 0));
            const std::string update = document.update({document.catalog().getObjGen()});
            Opened after(bytes + update);
            QCOMPARE(after.catalog().getKey("/Outer").getArrayItem(0).getStringValue(), std::string("inner"));
            QVERIFY(update.find("lost") == std::string::npos);
            QVERIFY(update.find("900 0 obj") == std::string::npos);
            QCOMPARE(after.pdf.numWarnings(), std::size_t(0));
        }
    }

    void writesEveryKindOfObjectFaithfully()
    {
        Opened document(PdfBuilder::simple());
        for (const std::string value : {"null",
                                        "true",
                                        "-0",
                                        "42",
                                        "99999999999",
                                        "0.0001",
                                        "-.5",
                                        "4.",
                                        "1.50",
                                        "/Name",
                                        "/",
                                        "/A#20B#23#2f#28",
                                        "/Other#23Key",
                                        "/a#2342",
                                        "/a#GG",
                                        "/a##34142",
                                        "()",
                                        "(a\\(b\\)\\\\ c)",
                                        "<00ff0d0a>",
                                        "(line\nbreak)",
                                        "[]",
                                        "[1 [2 [3 /A (b) 5 0 R] null]]",
                                        "<<>>",
                                        "<</a#2342 1/a#42 2/a#c3#a9#23 3>>",
                                        "<</A 1/B#20C<</D[<</E null/F 4 0 R>>]>>>>"}) {
            QPDFObjectHandle parsed = QPDFObjectHandle::parse(&document.pdf, value);
            const std::string written = ObjectSerializer().write(parsed);
            QPDFObjectHandle again = QPDFObjectHandle::parse(&document.pdf, written);
            QCOMPARE(again.unparse(), parsed.unparse());
            QVERIFY(!parsed.isName() || again.getName() == parsed.getName());
            QVERIFY(!parsed.isDictionary() || again.getKeys() == parsed.getKeys());
            if (parsed.isReal())
                QCOMPARE(written, value);
        }
    }

    void encryptsTheStringsOfChangedObjects_data()
    {
        const Rows<std::string> row;
        const std::tuple<const char*, int, bool> methods[] = {{"RC4 40", 2, false},     {"RC4 128", 3, false},
                                                              {"RC4 filter", 4, false}, {"AES 128", 4, true},
                                                              {"AES 256 old", 5, true}, {"AES 256", 6, true}};
        for (const auto& [name, revision, aes] : methods)
            for (const auto streams : {qpdf_o_disable, qpdf_o_generate})
                row(QString(name) + (streams == qpdf_o_generate ? ", streams" : ""),
                    rewritten(PdfBuilder::simple(), [&, number = revision, byAes = aes](QPDFWriter& writer) {
                        writer.setStaticID(true);
                        encrypt(writer, number, password, "o", true, byAes);
                        writer.setObjectStreamMode(streams);
                    }));
    }

    void encryptsTheStringsOfChangedObjects()
    {
        const auto [bytes] = Rows<std::string>::current();
        const std::string signature =
            "<< /Type /Sig /ByteRange [0 1 2 3] /Contents <736967> /Name (nested name) >>";
        Opened document(bytes);
        document.catalog().replaceKey("/Text", QPDFObjectHandle::newString(text));
        document.catalog().replaceKey("/Empty", QPDFObjectHandle::newString(""));
        document.catalog().replaceKey("/Sig", QPDFObjectHandle::parse(signature));
        const std::string update = document.update({document.catalog().getObjGen()});
        QVERIFY(update.find("plain") == std::string::npos);
        QVERIFY(update.find("nested") == std::string::npos);
        QVERIFY(update.find("/Contents <736967>") != std::string::npos);
        Opened after(bytes + update);
        QCOMPARE(after.catalog().getKey("/Text").getStringValue(), std::string(text));
        QCOMPARE(after.catalog().getKey("/Empty").getStringValue(), std::string());
        QCOMPARE(after.catalog().getKey("/Sig").getKey("/Name").getStringValue(), std::string("nested name"));
        QCOMPARE(after.pdf.getTrailer().getKey("/ID").unparse(),
                 document.pdf.getTrailer().getKey("/ID").unparse());
        QCOMPARE(after.pdf.numWarnings(), std::size_t(0));
        QCOMPARE(asAnotherReaderSees(bytes + update, "trailer/Root/Sig/Name"), QByteArray("(nested name)"));
    }

    void givesNoIdentifierToAnEncryptedDocument()
    {
        // The last revision of the standard security handler makes its key without the identifier.
        const std::string bytes = replaced(encryptedBy(6, PdfBuilder::simple(), password), "/ID [", "/IX [");
        const std::string update = updateOf(bytes);
        QVERIFY(update.find("/ID") == std::string::npos);
        const std::string odd =
            replaced(encryptedBy(4, PdfBuilder::simple(), password), "/StrF /StdCF", "/StrF /OddCF");
        QCOMPARE(errorOf([&] { updateOf(odd); }), ErrorCode::CannotAppend);
        QCOMPARE(Opened(bytes + update).catalog().getKey("/Text").getStringValue(), std::string(text));
    }

    void appendsBehindFourGigabytes()
    {
        const quint64 far = 5ULL << 30;
        const std::string simple = PdfBuilder::simple();
        const std::size_t table = simple.rfind("\nxref") + 1;
        const std::string end =
            replaced(simple.substr(table), previous(simple).substr(6), std::to_string(far));
        QTemporaryDir folder;
        QFile file(folder.filePath("large.pdf"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(simple.data(), qint64(table));
        if (!file.seek(qint64(far)) || file.write(end.data(), qint64(end.size())) < 0)
            QSKIP("no room for a sparse file");
        file.close();
        const auto source = ByteSource::openFile(file.fileName().toStdString());
        QPDF pdf;
        pdf.processInputSource(std::make_shared<SourceInput>(source, "large"));
        pdf.getRoot().replaceKey("/Text", QPDFObjectHandle::newString(text));
        const std::string update =
            IncrementalUpdate(pdf, CrossReference(pdf, source), *source, {QPDFObjGen(1, 0)}).bytes();
        QVERIFY(file.open(QIODevice::Append));
        file.write(update.data(), qint64(update.size()));
        file.close();
        QPDF after;
        after.processFile(file.fileName().toLocal8Bit().constData());
        QCOMPARE(after.getRoot().getKey("/Text").getStringValue(), std::string(text));
        QVERIFY(!after.anyWarnings());
    }
};

QTEST_GUILESS_MAIN(TestIncrementalUpdate)
#include "TestIncrementalUpdate.moc"
