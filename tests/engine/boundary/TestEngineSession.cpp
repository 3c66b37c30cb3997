#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/documents/Rewritten.h"
#include "support/engine/LoadedLibrary.h"
#include "support/folders/Files.h"

#include "pdflibrary/ErrorCodes.h"
#include "pdflibrary/FileNameCodec.h"

#include <QtTest>

#include <sys/stat.h>

#include <atomic>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <thread>

using engine::ErrorCode;

namespace {

/// A document that its user may not modify.
std::string encrypted(int revision, const char* user)
{
    return rewritten(PdfBuilder::simple(),
                     [=](auto& writer) { encrypt(writer, revision, user, "owner", false); });
}

/// A host that was there before the library file, and so outlives all that is static in it.
struct OldHost
{
    ~OldHost()
    {
        if (library && library->PageCount() != 0)
            std::abort();
    }

    std::optional<LoadedLibrary> library;
} oldHost;

/// A catalog entry as MuPDF reads it, on one line.
QByteArray shown(const QString& path, const QString& entry)
{
    QProcess mutool;
    mutool.start("mutool", {"show", path, "trailer/Root/" + entry});
    return mutool.waitForFinished() ? mutool.readAllStandardOutput().simplified() : QByteArray("no mutool");
}

/// Object 10 lists 5000 nodes, which all list `kids`.
PdfBuilder withSharedKids(const std::string& kids, const std::string& catalogEntries = {})
{
    PdfBuilder builder;
    builder.catalog(catalogEntries).pages(1);
    std::string nodes;
    for (int node = 20; node < 5020; ++node) {
        builder.object(node, "<< /Count 1 /Limits [(a) (z)] /Kids " + kids + " >>");
        nodes += std::to_string(node) + " 0 R ";
    }
    return builder.object(10, "[" + nodes + "]").object(11, "<< /Kids 10 0 R >>");
}

/// Many nodes of a page tree that share their pages, 25 million in all.
std::string sharedPages()
{
    std::string pages;
    for (int page = 0; page < 5000; ++page)
        pages += "3 0 R ";
    return withSharedKids("12 0 R")
        .object(2, "<< /Type /Pages /Count 1 /Kids 10 0 R >>")
        .object(12, "[" + pages + "]")
        .bytes();
}

ErrorCode errorOf(LoadedLibrary& library)
{
    return ErrorCode(library.LastErrorCode());
}

std::wstring wide(const QString& text)
{
    return text.toStdWString();
}

} // namespace

class TestEngineSession : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString file(const QString& name, const std::string& contents)
    {
        const QString path = m_folder.filePath(name);
        return writeFile(path, QByteArray::fromStdString(contents)) ? path : QString();
    }

private slots:
    void keepsSeveralDocumentsApart()
    {
        LoadedLibrary library;
        QCOMPARE(library.SelectedDocument(), 0);
        QCOMPARE(library.PageCount(), 0);
        QCOMPARE(errorOf(library), ErrorCode::NoDocument);
        QCOMPARE(errorOf(library), ErrorCode::NoDocument);
        library.DocumentCount();
        QCOMPARE(errorOf(library), ErrorCode::None);
        for (int pages = 1; pages <= 3; ++pages)
            QCOMPARE(library.LoadFromString(PdfBuilder::simple("", pages), L""), 1);
        QCOMPARE(library.DocumentCount(), 3);
        const int first = library.GetDocumentID(1);
        const int third = library.GetDocumentID(3);
        QCOMPARE(library.SelectedDocument(), third);
        QCOMPARE(library.PageCount(), 3);
        QCOMPARE(library.SelectPage(2), 1);
        QCOMPARE(library.SelectDocument(first), 1);
        QCOMPARE(library.PageCount(), 1);
        QCOMPARE(library.SelectedPage(), 1);
        QCOMPARE(library.SelectDocument(third), 1);
        QCOMPARE(library.SelectedPage(), 2);

        QCOMPARE(library.RemoveDocument(first), 1);
        QCOMPARE(library.SelectedDocument(), third);
        QCOMPARE(library.RemoveDocument(third), 1);
        QCOMPARE(library.SelectedDocument(), 0);
        QCOMPARE(library.DocumentCount(), 1);
        for (const int unknown : {first, third, 0, -1, INT_MAX}) {
            QCOMPARE(library.SelectDocument(unknown), 0);
            QCOMPARE(errorOf(library), ErrorCode::UnknownDocument);
            QCOMPARE(library.RemoveDocument(unknown), 0);
        }
        QCOMPARE(library.GetDocumentID(0), 0);
        QCOMPARE(library.GetDocumentID(2), 0);
        QCOMPARE(errorOf(library), ErrorCode::UnknownDocument);
    }

    void refusesWhatIsNoDocument_data()
    {
        const Rows<QString, ErrorCode> row;
        const std::string sound = PdfBuilder::simple();
        row("missing", m_folder.filePath("missing.pdf"), ErrorCode::FileNotFound);
        row("name with a NUL", file("named.pdf", sound) + QChar(0) + ".pdf", ErrorCode::BadArgument);
        row("folder", m_folder.path(), ErrorCode::NotARegularFile);
        row("empty", file("empty.pdf", ""), ErrorCode::EmptyFile);
        row("text", file("text.pdf", "Dear reader,\n\nthis is no document.\n"), ErrorCode::NotAPdf);
        row("cut short", file("short.pdf", sound.substr(0, 60)), ErrorCode::Damaged);
        row("no pages", file("none.pdf", PdfBuilder::simple("", 0)), ErrorCode::NoPages);
        row("password", file("secret.pdf", encrypted(6, "user")), ErrorCode::WrongPassword);
        row("key of a person",
            file("person.pdf", PdfBuilder()
                                   .catalog("")
                                   .pages(1)
                                   .trailer("/Encrypt << /Filter /Adobe.PubSec /V 4 >> /ID [<01> <01>]")
                                   .bytes()),
            ErrorCode::UnsupportedEncryption);
        const QString pipe = m_folder.filePath("pipe.pdf");
        mkfifo(QFile::encodeName(pipe), 0600);
        row("pipe", pipe, ErrorCode::NotARegularFile);
    }

    void refusesWhatIsNoDocument()
    {
        const auto [path, code] = Rows<QString, ErrorCode>::current();
        LoadedLibrary library;
        QCOMPARE(library.LoadFromFile(wide(path), L"wrong"), 0);
        QCOMPARE(errorOf(library), code);
        QCOMPARE(library.DocumentCount(), 0);
        QCOMPARE(library.SelectedDocument(), 0);
    }

    void opensFilesOfAnyName()
    {
        for (const std::string name :
             {"plain.pdf", "h\xc3\xb4tel \xe6\x96\x87.pdf", "latin-1 h\xf4tel.pdf"}) {
            const std::string path = m_folder.path().toStdString() + "/" + name;
            std::ofstream(path, std::ios::binary) << PdfBuilder::simple();
            LoadedLibrary library;
            QCOMPARE(library.LoadFromFile(engine::wideFromFileName(path), L""), 1);
            QCOMPARE(engine::fileNameFromWide(library.GetDocumentFileName()), path);
            std::remove(path.c_str()); // Qt cannot name it
        }
    }

    void opensWithEitherPassword_data()
    {
        // status: -1 for refused
        const Rows<std::string, std::wstring, int> row;
        row("not encrypted", PdfBuilder::simple(), L"given", engine::NotEncrypted);
        row("none needed", encrypted(3, ""), L"", engine::OpenedWithUserPassword);
        row("none needed but one given", encrypted(3, ""), L"other", engine::OpenedWithUserPassword);
        for (const int revision : {2, 3, 4, 6}) {
            const char* const accented = revision == 6 ? "h\xc3\xb4tel" : "h\xf4tel";
            const std::string bytes = encrypted(revision, accented);
            const auto named = [&](const char* what) { return std::string(what) + std::to_string(revision); };
            row(named("user ").c_str(), bytes, L"h\u00f4tel", engine::OpenedWithUserPassword);
            row(named("owner ").c_str(), bytes, L"owner", engine::OpenedWithOwnerPassword);
            row(named("wrong ").c_str(), bytes, L"hotel", -1);
            row(named("missing ").c_str(), bytes, L"", -1);
        }
    }

    void opensWithEitherPassword()
    {
        const auto [bytes, password, status] = Rows<std::string, std::wstring, int>::current();
        LoadedLibrary library;
        QCOMPARE(library.LoadFromString(bytes, password), status < 0 ? 0 : 1);
        if (status < 0) {
            QCOMPARE(errorOf(library), ErrorCode::WrongPassword);
            return;
        }
        QCOMPARE(library.EncryptionStatus(), status);
        QCOMPARE(library.PageCount(), 3);
        QCOMPARE(library.SecurityInfo(engine::ModificationAllowed),
                 status == engine::OpenedWithUserPassword ? 0 : 1);
    }

    void tellsAboutADocument()
    {
        const std::string information =
            "<< /Title (A \\(title\\)) /Author <FEFF00C9006D0069006C0065> /Subject /Name "
            "/Producer <EFBBBFE69687> /ModDate (D:2024) >>";
        LoadedLibrary library;
        QCOMPARE(library.LoadFromString(PdfBuilder()
                                            .catalog("/Version /2.0")
                                            .pages(1)
                                            .object(9, information)
                                            .trailer("/Info 9 0 R")
                                            .bytes(),
                                        L""),
                 1);
        const std::wstring expected[] = {L"2.0", L"A (title)", L"\u00c9mile", L"",      L"",
                                         L"",    L"\u6587",    L"",           L"D:2024"};
        for (int key = 0; key <= 8; ++key)
            QCOMPARE(library.GetInformation(key), expected[key]);
        QCOMPARE(library.GetInformation(9), std::wstring());
        QCOMPARE(errorOf(library), ErrorCode::BadArgument);
        QCOMPARE(library.GetDocumentFileName(), std::wstring());
        QCOMPARE(library.GetDocumentRepaired(), 0);
        QCOMPARE(library.IsLinearized(), 0);
        QCOMPARE(library.LoadFromString(replaced(PdfBuilder::simple(), "startxref\n", "startxref\n9"), L""),
                 1);
        QCOMPARE(library.GetDocumentRepaired(), 1);
        QVERIFY(QString::fromStdWString(library.LibraryVersion()).startsWith("13.11"));
    }

    void countsSignatures_data()
    {
        const Rows<std::string, int> row;
        row("no form", "", 0);
        row("unsigned field", "/AcroForm << /Fields [10 0 R] >>", 0);
        row("signed field", "/AcroForm << /Fields [11 0 R] >>", 1);
        row("type inherited, in a circle", "/AcroForm << /Fields [12 0 R] >>", 1);
        row("signed text field", "/AcroForm << /Fields [16 0 R] >>", 1);
        row("certified", std::string("/AcroForm << /Fields [11 0 R] >> /Perms << /DocMDP 20 0 R >>"), 1);
        row("usage rights", "/Perms << /UR3 20 0 R >>", 1);
        row("two", "/AcroForm << /Fields [11 0 R 15 0 R 11 0 R null] >>", 2);
        row("nonsense", "/AcroForm [1] /Perms (x)", 0);
    }

    void countsSignatures()
    {
        const auto [catalog, count] = Rows<std::string, int>::current();
        LoadedLibrary library;
        library.LoadFromString(PdfBuilder()
                                   .catalog(catalog)
                                   .pages(1)
                                   .object(10, "<< /FT /Sig /T (empty) >>")
                                   .object(11, "<< /FT /Sig /V 20 0 R >>")
                                   .object(12, "<< /FT /Sig /Kids [13 0 R 12 0 R] >>")
                                   .object(13, "<< /V 20 0 R /Parent 12 0 R >>")
                                   .object(14, "<< /FT /Tx /V << /Type /Sig >> >>")
                                   .object(15, "<< /FT /Sig /V << /Type /Sig >> >>")
                                   .object(16, "<< /FT /Tx /V 20 0 R >>")
                                   .object(20, "<< /Type /Sig /ByteRange [0 1 2 3] >>")
                                   .bytes(),
                               L"");
        QCOMPARE(library.SecurityInfo(engine::SignatureCount), count);
        QCOMPARE(library.SecurityInfo(engine::Certification), int(catalog.find("/DocMDP") != catalog.npos));
        QCOMPARE(library.SecurityInfo(engine::ModificationAllowed), 1);
        QCOMPARE(library.SecurityInfo(100), 0);
        QCOMPARE(errorOf(library), ErrorCode::NotAvailable);
    }

    void givesUpWhereWorkOutgrowsTheDocument()
    {
        LoadedLibrary library;
        std::string trailers = "%PDF-1.4\n";
        for (int count = 0; count < 5000; ++count) // each is read to the end of the file
            trailers += "trailer [\n<< 1 >>\n";
        QCOMPARE(library.LoadFromString(trailers + "startxref\n9\n%%EOF\n", L""), 0);
        QCOMPARE(errorOf(library), ErrorCode::TooMuchWork);
        QCOMPARE(library.LoadFromString(sharedPages(), L""), 0);
        QCOMPARE(errorOf(library), ErrorCode::TooMuchWork);
    }

    void looksOnceAtWhatIsShared()
    {
        QElapsedTimer timer;
        timer.start();
        for (const char* entries :
             {"/OpenAction (x) /Names << /Dests 11 0 R >>", "/AcroForm << /Fields 10 0 R >>"}) {
            LoadedLibrary library;
            QCOMPARE(library.LoadFromString(withSharedKids("10 0 R", entries).bytes(), L""), 1);
            QCOMPARE(library.GetOpenActionDestination(), 0);
            QCOMPARE(library.SecurityInfo(engine::SignatureCount), 0);
        }
        QVERIFY(timer.elapsed() < 10'000);
    }

    void writesWhatOtherReadersRead()
    {
        LoadedLibrary library;
        const std::string turned = "<< /Type /Page /Parent 2 0 R /Rotate 90 >>";
        const std::string original = PdfBuilder().catalog("").pages(3).object(4, turned).bytes();
        library.LoadFromString(original, L"");
        library.SetPageMode(5);
        library.SetPageLayout(3);
        library.SetViewerPreferences(1, 1);
        library.SetViewerPreferences(6, 1);
        library.SetViewerPreferences(7, 2);
        library.SetOpenActionDestinationFull(2, 125, 1, 10, 700, 0, 0);
        const QString whole = m_folder.filePath("whole.pdf");
        const QString appended = m_folder.filePath("appended.pdf");
        QCOMPARE(library.SaveToFile(wide(whole)), 1);
        QCOMPARE(library.AppendToFile(wide(appended)), 1);
        QCOMPARE(QByteArray::fromStdString(original + library.AppendToString(engine::ForCopy)),
                 bytesOf(appended));
        QVERIFY(library.AppendToString(engine::ForInPlace).ends_with("%%EOF\n"));
        QCOMPARE(library.AppendToString(2), std::string());
        QCOMPARE(library.LastErrorCode(), int(ErrorCode::BadArgument));
        for (const QString& path : {whole, appended}) {
            QCOMPARE(shown(path, "PageMode"), QByteArray("/UseAttachments"));
            QCOMPARE(shown(path, "PageLayout"), QByteArray("/TwoColumnRight"));
            QCOMPARE(shown(path, "ViewerPreferences"),
                     QByteArray(
                         "<< /DisplayDocTitle true /HideToolbar true /NonFullScreenPageMode /UseThumbs >>"));
            QCOMPARE(shown(path, "OpenAction/1/Rotate"), QByteArray("90"));
            QVERIFY(shown(path, "OpenAction").endsWith(" 0 R /XYZ 10 0 1.25 ]"));
            LoadedLibrary again;
            QCOMPARE(again.LoadFromFile(wide(path), L""), 1);
            QCOMPARE(again.GetDestPage(again.GetOpenActionDestination()), 2);
        }
        LoadedLibrary third;
        QCOMPARE(third.LoadFromString(library.SaveToString(), L""), 1);
        QCOMPARE(third.GetPageMode(), 5);
    }

    void endsBeforeItsHost()
    {
        oldHost.library.emplace();
        oldHost.library->LoadFromString(PdfBuilder::simple(), L"");
        QCOMPARE(oldHost.library->PageCount(), 3); // and none at the end of the program
    }

    void servesThreadsWithAnInstanceEach()
    {
        std::atomic<int> wrong = 0;
        const auto work = [&](int mode, int pages) {
            LoadedLibrary library;
            const std::string bytes = PdfBuilder::simple("/PageLayout /OneColumn", pages);
            for (int round = 0; round < 100; ++round) {
                library.LoadFromString(bytes, L"");
                library.SetPageMode(mode);
                library.SetOpenActionDestinationFull(pages, 0, 2, 0, 0, 0, 0);
                wrong += library.GetPageMode() != mode || library.PageCount() != pages ||
                         library.GetDestPage(library.GetOpenActionDestination()) != pages ||
                         library.LastErrorCode() != 0;
                library.RemoveDocument(library.SelectedDocument());
            }
        };
        std::thread first(work, 1, 7);
        std::thread second(work, 5, 3);
        first.join();
        second.join();
        QCOMPARE(wrong.load(), 0);
    }

    void listsFonts()
    {
        LoadedLibrary library;
        QStringList names = QString::fromStdWString(library.GetInstalledFontsByCharset(2, 1)).split("\r\n");
        QProcess list;
        list.start("sh", {"-c", R"(fc-list : family | cut -d, -f1 | tr -d '\\' | LC_ALL=C sort -u)"});
        if (!list.waitForFinished() || list.exitCode() != 0)
            QSKIP("needs fc-list");
        names.sort();
        QCOMPARE(names.join('\n') + '\n', QString::fromUtf8(list.readAllStandardOutput()));
        for (const int charset : {-1, 0, 1, 3})
            QCOMPARE(library.GetInstalledFontsByCharset(charset, 1), std::wstring());
        QCOMPARE(errorOf(library), ErrorCode::BadArgument);
    }
};

QTEST_GUILESS_MAIN(TestEngineSession)
#include "TestEngineSession.moc"
