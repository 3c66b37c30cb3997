#include "engine/document/Document.h"
#include "engine/files/ByteSource.h"
#include "engine/files/OutputFile.h"
#include "engine/writing/DocumentWriter.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/documents/Rewritten.h"
#include "support/engine/EngineErrors.h"
#include "support/folders/WorkFolder.h"

#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <optional>

using namespace engine;
namespace fs = std::filesystem;

namespace {

using Settings = std::function<void(QPDFWriter&)>;

int openProblem = 0; // what opening any file meets, an errno

std::unique_ptr<Document> opened(const std::string& path)
{
    return std::make_unique<Document>(ByteSource::openFile(path), path, "user");
}

void change(Document& document)
{
    document.catalog().replaceKey("/PageMode", QPDFObjectHandle::newName("/UseThumbs"));
    document.catalog().replaceKey("/Left", QPDFObjectHandle::newReal(72.0, 2));
    document.markCatalogChanged();
}

QByteArray pageMode(const std::string& path)
{
    return QByteArray::fromStdString(opened(path)->catalog().getKey("/PageMode").unparse());
}

/// Nothing is where the last startxref says.
std::string movedTail(const std::string& bytes)
{
    return replaced(bytes, "startxref\n", "startxref\n7");
}

/// A document to which nothing can be appended, since its catalog stands in the trailer.
std::string directCatalog(const std::string& bytes)
{
    return replaced(bytes, "/Root 1 0 R", "/Root << /Type /Catalog /Pages 2 0 R >>");
}

std::string withSettings(const Settings& set)
{
    const std::string bytes = PdfBuilder()
                                  .catalog("")
                                  .pages(2)
                                  .object(9, "<< /Title (A title) >>")
                                  .stream(10, "", std::string(5000, 'x'))
                                  .trailer("/Info 9 0 R /Kept 10 0 R /ID [<6131> <6232>]")
                                  .bytes();
    return rewritten(bytes, [&set](QPDFWriter& writer) {
        writer.setCompressStreams(false);
        set(writer);
    });
}

} // namespace

extern "C" {
int __real_open(const char* path, int flags, mode_t mode);
int __wrap_open(const char* path, int flags, mode_t mode)
{
    errno = openProblem;
    return openProblem != 0 ? -1 : __real_open(path, flags, mode);
}
}

class TestDocumentWriter : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        put(m_source, PdfBuilder::simple());
    }

    void appendsBehindTheOriginalBytes()
    {
        for (const std::string& target : {m_target, m_source}) {
            const std::string original = contentOf(m_source);
            const auto document = opened(m_source);
            change(*document);
            appendUpdate(*document, target);
            QVERIFY(contentOf(target).starts_with(original));
            QCOMPARE(pageMode(target), QByteArray("/UseThumbs"));
            QVERIFY(contentOf(target).size() < original.size() + 300);
        }
        QCOMPARE(files().size(), 2);
    }

    void marksNothingThatHasNoNumber()
    {
        const auto document = opened(m_source);
        QVERIFY_EXCEPTION_THROWN(document->markChanged(QPDFObjectHandle::newDictionary()), std::logic_error);
        QVERIFY(!document->isChanged());
    }

    void appendsNothingWhenItWouldNotBeRight()
    {
        const auto document = opened(m_source);
        const auto append = [&](Document& each) { return errorOf([&] { appendUpdate(each, m_target); }); };
        QCOMPARE(append(*document), ErrorCode::NothingChanged);
        change(*document);
        fs::resize_file(m_source, 100);
        QCOMPARE(append(*document), ErrorCode::SourceChanged);
        QCOMPARE(files(), QStringList("source.pdf"));
    }

    void appendsToDamagedDocumentsThatAreBeyondDoubt_data()
    {
        const Rows<std::string> row;
        const std::string simple = PdfBuilder::simple();
        row("startxref moved", movedTail(simple));
        row("no startxref", replaced(simple, "startxref", "startxxxx"));
        row("no size", replaced(simple, "/Size", "/Sixe"));
        row("object elsewhere", replaced(simple, "0000000015", "0000000016"));
        row("junk before the header", "HTTP/1.1 200 OK\r\n\r\n" + movedTail(simple));
        row("object behind the end", simple + "8 0 obj\nnull\nendobj\n%" + std::string(5000, '\n'));
        row("script", movedTail(PdfBuilder::simple("/Script (var obj = 1; obj.trailer = 2)")));
        row("encrypted", movedTail(withSettings([](auto& writer) { encrypt(writer, 6, "user", "o"); })));
    }

    void appendsToDamagedDocumentsThatAreBeyondDoubt()
    {
        auto [bytes] = Rows<std::string>::current();
        for (int update = 0; update < 2; ++update) {
            put(m_source, bytes);
            const auto before = opened(m_source);
            change(*before);
            appendUpdate(*before, m_target);
            QVERIFY(contentOf(m_target).starts_with(bytes));
            QCOMPARE(contentOf(m_target).find("/Prev", bytes.size()) == std::string::npos, update == 0);
            const auto after = opened(m_target);
            QCOMPARE(pageMode(m_target), QByteArray("/UseThumbs"));
            before->readWhole();
            after->readWhole();
            QCOMPARE(after->pdf().getAllPages().size(), before->pdf().getAllPages().size());
            QVERIFY(!after->anyWarnings());
            bytes = contentOf(m_target);
        }
    }

    void changesNothingThatIsInDoubt_data()
    {
        const Rows<std::string, ErrorCode> row;
        const std::string simple = PdfBuilder::simple();
        const std::string page = "3 0 obj\n<< /Type /Page /Parent 2 0 R >>\nendobj\n";
        const std::string newer = page + "xref\n0 0\ntrailer\n<< /Root 1 0 R /Size 6 ";
        const std::string far(5000, '\n');
        row("newer trailer", simple + newer + ">>\nstartxref\n9\n%%EOF\n",
            ErrorCode::NewestRevisionUncertain);
        row("newer trailer that is cut off", simple + far + newer, ErrorCode::NewestRevisionUncertain);
        row("newer end", simple + far + "startxref\n9\n%%EOF\n", ErrorCode::NewestRevisionUncertain);
        row("encryption elsewhere", movedTail(PdfBuilder::simple("/Text (/Encrypt 5 0 R)")),
            ErrorCode::EncryptionUncertain);
        row("object streams",
            movedTail(PdfBuilder().catalog("").pages(1).stream(9, "/Type /ObjStm /N 0 /First 0", "").bytes()),
            ErrorCode::ObjectStreamsUnread);
        row("stream of a hybrid file",
            movedTail(PdfBuilder().catalog("").pages(1).trailer("/XRefStm 9").bytes()),
            ErrorCode::ObjectStreamsUnread);
        row("stream cut off", simple + far + "9 0 obj\n<< /Length 9 >>\nstream\nabc",
            ErrorCode::ObjectsDamaged);
        row("object at the end", simple + far + "9 0 obj\nnull\nendobj\n", ErrorCode::ObjectsDamaged);
        row("object missing", movedTail(PdfBuilder::simple("/Other 77 0 R")), ErrorCode::ObjectsDamaged);
        row("bad catalog", PdfBuilder::simple("/A#00B 1"), ErrorCode::ObjectsDamaged);
        row("bad trailer", PdfBuilder().catalog("").pages(1).trailer("/A#00B 1").bytes(),
            ErrorCode::ObjectsDamaged);
        row("two versions", movedTail(page + simple), ErrorCode::ObjectsUncertain);
        row("odd object", movedTail(PdfBuilder::simple("/Text (x 9 0 obj )")), ErrorCode::ObjectsUncertain);
        row("damaged object header", movedTail(simple + "9 x 0 obj null endobj\n"),
            ErrorCode::ObjectsUncertain);
    }

    void changesNothingThatIsInDoubt()
    {
        const auto [bytes, code] = Rows<std::string, ErrorCode>::current();
        put(m_source, bytes);
        for (const auto& save : {appendUpdate, writeWhole}) {
            const auto document = opened(m_source);
            change(*document);
            QCOMPARE(errorOf([&] { save(*document, m_target); }), code);
            QVERIFY(cannotAppend(code));
        }
        QCOMPARE(files(), QStringList("source.pdf"));
    }

    void writesNothingAnewThatWouldLose_data()
    {
        const Rows<std::string, ErrorCode, ErrorCode> row;
        const std::string range = "/Sig << /ByteRange [0 1 2 3] >>";
        const std::string escaped = PdfBuilder::simple("/Sig << /Byte#52ange [0 1 2 3] >>");
        const ErrorCode refused = ErrorCode::CannotAppend;
        row("nothing", directCatalog(PdfBuilder::simple()), refused, ErrorCode::None);
        const std::string stream = PdfBuilder().catalog("").pages(1).stream(9, "/Key 1", "content").bytes();
        row("length of a stream", movedTail(replaced(stream, "/Length 7", "/Length 2")),
            ErrorCode::StreamLengthsWrong, ErrorCode::None);
        row("byte range", directCatalog(PdfBuilder::simple(range)), refused, ErrorCode::ByteRangesPresent);
        row("escaped", directCatalog(escaped), refused, ErrorCode::ByteRangesPresent);
        row("name that libqpdf cannot write",
            directCatalog(PdfBuilder().catalog("").pages(1, 3, "/Other#23Key 1").bytes()), refused,
            ErrorCode::RewritingLoses);
    }

    void writesNothingAnewThatWouldLose()
    {
        const auto [bytes, appending, code] = Rows<std::string, ErrorCode, ErrorCode>::current();
        put(m_source, bytes);
        const auto document = opened(m_source);
        change(*document);
        QCOMPARE(errorOf([&] { appendUpdate(*document, m_target); }), appending);
        QCOMPARE(errorOf([&] { writeWhole(*document, m_target); }), code);
        QCOMPARE(fs::exists(m_target), code == ErrorCode::None);
        if (code == ErrorCode::None)
            QCOMPARE(pageMode(m_target), QByteArray("/UseThumbs"));
    }

    void tellsWhyItCannotBeWritten()
    {
        rlimit before;
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit little{1000, before.rlim_max};
        signal(SIGXFSZ, SIG_IGN);
        for (const auto save : {appendUpdate, writeWhole}) {
            put(m_source, PdfBuilder()
                              .catalog("/Kept 9 0 R")
                              .pages(2)
                              .stream(9, "", std::string(1 << 20, 'x'))
                              .bytes());
            const auto document = opened(m_source);
            change(*document);
            setrlimit(RLIMIT_FSIZE, &little);
            const auto error = errorOf([&] { save(*document, m_target); });
            setrlimit(RLIMIT_FSIZE, &before);
            QCOMPARE(error, ErrorCode::FileTooLarge);
            QCOMPARE(files(), QStringList("source.pdf"));
        }
    }

    void keepsWhatTheDocumentIs_data()
    {
        const Rows<std::string> row;
        row("plain", withSettings([](auto&) {}));
        row("object streams", withSettings([](auto& writer) {
                writer.setObjectStreamMode(qpdf_o_generate);
                writer.setCompressStreams(true);
            }));
        row("linearized", withSettings([](auto& writer) { writer.setLinearization(true); }));
        row("version", withSettings([](auto& writer) { writer.forcePDFVersion("1.3"); }));
        row("RC4", withSettings([](auto& writer) { encrypt(writer, 3, "user", "o", false); }));
        row("AES", withSettings([](auto& writer) { encrypt(writer, 6, "user", "o", false); }));
    }

    void keepsWhatTheDocumentIs()
    {
        const auto [bytes] = Rows<std::string>::current();
        put(m_source, bytes);
        const auto before = opened(m_source);
        change(*before);
        writeWhole(*before, m_target);
        const auto after = opened(m_target);
        before->readWhole();
        after->readWhole();
        QPDF& pdf = after->pdf();
        QPDFObjectHandle trailer = pdf.getTrailer();
        QCOMPARE(pageMode(m_target), QByteArray("/UseThumbs"));
        QVERIFY(!after->anyWarnings());
        QCOMPARE(pdf.getAllPages().size(), std::size_t(2));
        QCOMPARE(pdf.getPDFVersion(), before->pdf().getPDFVersion());
        QCOMPARE(trailer.getKey("/Info").getKey("/Title").getStringValue(), std::string("A title"));
        QCOMPARE(trailer.getKey("/ID").getArrayItem(0).getStringValue(), std::string("a1"));
        const auto kept = trailer.getKey("/Kept").getStreamData();
        QCOMPARE(std::string(reinterpret_cast<char*>(kept->getBuffer()), kept->getSize()),
                 std::string(5000, 'x'));
        QCOMPARE(pdf.isEncrypted(), before->pdf().isEncrypted());
        QCOMPARE(pdf.allowModifyForm(), before->pdf().allowModifyForm());
        QCOMPARE(contentOf(m_target).find("/ObjStm") == std::string::npos,
                 bytes.find("/ObjStm") == std::string::npos);
        QVERIFY(contentOf(m_target).size() < bytes.size() + 1000); // the stream took 5000
    }

    void completesTheTrailer_data()
    {
        const Rows<std::string> row;
        const std::string plain = PdfBuilder::simple();
        const std::string encrypted = withSettings([](auto& writer) { encrypt(writer, 3, "user", "o"); });
        const std::string catalog = "/Root << /Type /Catalog /Pages 2 0 R >>";
        row("no size", replaced(plain, "/Size", "/Sixe"));
        row("direct catalog", replaced(plain, "/Root 1 0 R", catalog));
        row("no key length", replaced(encrypted, "/Length 128", "/Wength 128"));
    }

    void completesTheTrailer()
    {
        const auto [bytes] = Rows<std::string>::current();
        put(m_source, bytes);
        const auto before = opened(m_source);
        writeWhole(*before, m_target);
        const auto after = opened(m_target);
        after->readWhole();
        QVERIFY(!after->anyWarnings());
        QVERIFY(after->pdf().getTrailer().getKey("/Size").getIntValue() > 5);
        QPDFObjectHandle kept = after->pdf().getTrailer().getKey("/Kept");
        QVERIFY(!after->pdf().isEncrypted() || kept.getStreamData()->getBuffer()[0] == 'x');
    }

    void writesIntoMemoryWhatItWritesIntoAFile()
    {
        const auto document = opened(m_source);
        change(*document);
        const std::string bytes = wholeToString(*document);
        writeWhole(*document, m_source);
        QCOMPARE(bytes.size(), contentOf(m_source).size());
        Document again(ByteSource::fromBytes(bytes), {}, {});
        QCOMPARE(again.catalog().getKey("/PageMode").getName(), std::string("/UseThumbs"));
    }

    void replacesInOneStepOrNotAtAll()
    {
        put(m_target, "old");
        fs::permissions(m_target, fs::perms(0600));
        const std::string link = "link.pdf";
        fs::create_symlink(m_target, link);
        {
            OutputFile abandoned(link);
            abandoned.write("new");
            QCOMPARE(QDir().entryList({".quintar-*"}, QDir::Files | QDir::Hidden).size(), 1);
        }
        QCOMPARE(contentOf(m_target), std::string("old"));
        OutputFile file(link);
        file.write("new");
        file.commit();
        QCOMPARE(contentOf(m_target), std::string("new"));
        QVERIFY(fs::is_symlink(link));
        QCOMPARE(int(fs::status(m_target).permissions()), 0600);
        QCOMPARE(QDir().entryList({".quintar-*"}, QDir::Files | QDir::Hidden).size(), 0);
    }

    void saysWhyAFileCannotBeWritten()
    {
        const auto errorAt = [](const std::string& path) {
            return errorOf([&] { OutputFile(path).commit(); });
        };
        QCOMPARE(errorAt("none/file.pdf"), ErrorCode::FileNotFound);
        QCOMPARE(errorAt(m_source + "/file.pdf"), ErrorCode::FileNotFound);
        QCOMPARE(errorAt("."), ErrorCode::NotARegularFile);
        QCOMPARE(errorAt("/dev/null"), ErrorCode::NotARegularFile);
        openProblem = EROFS;
        QCOMPARE(errorAt(m_target), ErrorCode::ReadOnlyFileSystem);
        openProblem = 0;
        if (::geteuid() != 0) {
            fs::permissions(".", fs::perms(0500));
            QCOMPARE(errorAt(m_target), ErrorCode::AccessDenied);
            fs::permissions(".", fs::perms(0700));
        }
    }

    void copiesHolesAsHoles()
    {
        QFile file(QString::fromStdString(m_source));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.seek(64 << 20) && file.write("middle") == 6 && file.resize(128 << 20));
        file.close();
        const auto source = ByteSource::openFile(m_source);
        OutputFile output(m_target);
        output.copy(*source);
        output.write("end");
        output.commit();
        const auto copied = ByteSource::openFile(m_target);
        QCOMPARE(copied->size(), source->size() + 3);
        QCOMPARE(copied->text(0, 500), source->text(0, 500));
        QCOMPARE(copied->text((64 << 20) - 2, 10), std::string("\0\0middle\0\0", 10));
        QCOMPARE(copied->text((128 << 20) - 1, 10), std::string("\0end", 4));
        struct stat status = {};
        QCOMPARE(::stat(m_target.c_str(), &status), 0);
        QVERIFY(status.st_blocks < 2000);
    }

private:
    static std::string put(const std::string& name, const std::string& bytes)
    {
        return WorkFolder::put(name, bytes);
    }
    static QStringList files() { return QDir().entryList(QDir::Files | QDir::Hidden); }
    static std::string contentOf(const std::string& name) { return WorkFolder::contentOf(name); }

    std::optional<WorkFolder> m_folder;
    const std::string m_source = "source.pdf";
    const std::string m_target = "target.pdf";
};

QTEST_GUILESS_MAIN(TestDocumentWriter)
#include "TestDocumentWriter.moc"
