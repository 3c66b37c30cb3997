// What the program tells of documents that it only reads, as a user sees it.
#include "host/reading/OrderedOutput.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/WorkFolder.h"
#include "support/program/ProgramRun.h"

#include <QtTest>

#include <fcntl.h>

namespace {

const std::string everything =
    "/PageMode /UseOC /PageLayout /TwoPageRight /OpenAction [ 4 0 R /XYZ 0 792 1.5 ] /Lang (de-CH) "
    "/ViewerPreferences << /HideToolbar true /NonFullScreenPageMode /UseThumbs /Direction /R2L /Duplex "
    "/DuplexFlipLongEdge /NumCopies 3 /PrintScaling /None /PickTrayByPDFSize true >>";

std::string titled(const std::string& catalog, const std::string& title)
{
    return PdfBuilder()
        .catalog(catalog)
        .pages(3)
        .object(9, "<< /Title (" + title + ") >>")
        .trailer("/Info 9 0 R")
        .bytes();
}

const std::string script = "/OpenAction << /S /JavaScript /JS (app.alert\\(1\\)) >>";

} // namespace

class TestCheck : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(); // which leaves its folder
        m_folder = std::make_unique<WorkFolder>();
        WorkFolder::put("d/all.pdf", titled(everything, "Everything"));
        WorkFolder::put("d/plain.pdf", PdfBuilder::simple());
        WorkFolder::put("d/sub/script.pdf", PdfBuilder::simple(script));
    }

    void showsEveryEntry()
    {
        const ProgramRun words = quintar({"show", "d/all.pdf", "d/sub/script.pdf"});
        for (const char* line :
             {"d/all.pdf\n  Pages                          3\n",
              "  Navigation tab                 Conten Group Panel and Page\n",
              "  Page layout                    Two pages, odd-numbered pages on the right\n",
              "  Magnification                  150%\n  Open to page                   2\n",
              "  Hide tool bars                 yes\n  Hide menu bar                  no\n",
              "  After full screen              Pages Panel and Page\n",
              "  Page layout                    No preference set in document\n",
              "  Reading direction              r2l\n", "  Print scaling                  none\n",
              "  Two-sided printing             duplex-flip-long-edge\n",
              "  Paper tray by page size        yes\n", "  Copies                         3\n",
              "  Title                          Everything\n", "  Language                       de-CH\n",
              "  Copies                         not set in document\n",
              "  Open action                    JavaScript, no page of the document\n"})
            QVERIFY2(words.out.contains(line), words.out);
        const QJsonObject action{{"action", "JavaScript"}};
        QCOMPARE(shown("d/sub/script.pdf").value("openAction").toObject(), action);
    }

    void showsTheTitleOfTheMetadata()
    {
        const std::string packet =
            "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
            "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description rdf:about=\"\" "
            "xmlns:dc=\"http://purl.org/dc/elements/1.1/\"><dc:title><rdf:Alt><rdf:li "
            "xml:lang=\"x-default\">In "
            "XMP</rdf:li></rdf:Alt></dc:title></rdf:Description></rdf:RDF></x:xmpmeta>";
        WorkFolder::put("xmp.pdf", PdfBuilder()
                                       .catalog("/Metadata 9 0 R")
                                       .pages(1)
                                       .stream(9, "/Type /Metadata /Subtype /XML", packet)
                                       .bytes());
        QCOMPARE(shown("xmp.pdf").value("title"), QJsonValue("In XMP"));
        const QByteArray note = "its title is to be shown, and it has none";
        QVERIFY(!quintar({"check", "--display-doc-title", "yes", "xmp.pdf"}).err.contains(note));
        QVERIFY(quintar({"check", "--display-doc-title", "yes", "d/plain.pdf"}).err.contains(note));
        QCOMPARE(quintar({"run", "--title", "New", "-n", "--in-place", "xmp.pdf"}).out.split('\n').first(),
                 QByteArray("would change  xmp.pdf: title: In XMP -> New"));
        QCOMPARE(quintar({"check", "--view", "-", "xmp.pdf"}, quintar({"show", "--json", "xmp.pdf"}).out).out,
                 QByteArray("1 as asked, 0 not, 0 failed\n"));
        WorkFolder::put("both.pdf", PdfBuilder()
                                        .catalog("/Metadata 9 0 R")
                                        .pages(1)
                                        .stream(9, "/Type /Metadata /Subtype /XML", packet)
                                        .object(10, "<< /Title (New) >>")
                                        .trailer("/Info 10 0 R")
                                        .bytes());
        QCOMPARE(quintar({"run", "--title", "New", "-n", "--in-place", "both.pdf"}).out.split('\n').first(),
                 QByteArray("would change  both.pdf: title: In XMP -> New"));
        const QJsonObject differs =
            ProgramRun::jsonLines(quintar({"check", "--json", "--title", "New", "both.pdf"}).out).value(0);
        QCOMPARE(differs.value("before").toObject(), (QJsonObject{{"title", "In XMP"}}));
        QCOMPARE(differs.value("after").toObject(), (QJsonObject{{"title", "New"}}));
    }

    void showsBookmarks()
    {
        const auto bookmark = [](const std::string& entries) { return "<< /Title " + entries + " >>"; };
        PdfBuilder builder;
        builder.catalog("/Outlines 10 0 R").pages(2).object(10, "<< /First 11 0 R >>");
        builder.object(11, bookmark("(Safety) /First 12 0 R /Next 13 0 R /Count 1 /Dest [ 4 0 R /Fit ]"));
        builder.object(12, bookmark("<feff0047001b> /Next 12 0 R"));
        builder.object(13, bookmark("(Setup)"));
        WorkFolder::put("d/marked.pdf", builder.bytes());
        QCOMPARE(shown("d/marked.pdf").value("bookmarks"), QJsonValue(3));
        const ProgramRun words = quintar({"show", "--outline", "all", "d/marked.pdf"});
        QVERIFY2(words.out.endsWith("\n    Safety (page 2)\n      G\\x1b\n    Setup\n"), words.out);
        QVERIFY2(words.err.contains("lead in a circle"), words.err);
        const ProgramRun two = quintar({"show", "--json", "--outline", "2", "d/marked.pdf"});
        const QJsonObject object = ProgramRun::jsonLines(two.out).value(0);
        QCOMPARE(
            object.value("outline").toArray(),
            (QJsonArray{
                QJsonObject{{"level", 1}, {"title", "Safety"}, {"page", 2}, {"open", true}},
                QJsonObject{{"level", 2}, {"title", "G\x1b"}, {"page", QJsonValue()}, {"open", false}}}));
        QVERIFY(object.value("outlineNote").toString().startsWith("only the first 2 bookmarks"));
        WorkFolder::put("view.json", two.out.toStdString());
        QCOMPARE(quintar({"check", "--view", "view.json", "d/marked.pdf"}).status, 0);
    }

    void shownJsonIsAView()
    {
        WorkFolder::put("view.json", quintar({"show", "--json", "d/all.pdf"}).out.toStdString());
        QCOMPARE(quintar({"check", "--view", "view.json", "d/all.pdf"}).status, 0);
        QCOMPARE(quintar({"run", "--view", "view.json", "--in-place", "d/plain.pdf"}).status, 0);
        QJsonObject all = shown("d/all.pdf");
        QJsonObject changed = shown("d/plain.pdf");
        all.remove("file");
        changed.remove("file");
        QCOMPARE(changed, all);
    }

    // The rest of such a view is given, and whoever asks hears what is not.
    void otherActionsStayWhereTheyAre()
    {
        const QByteArray view = quintar({"show", "--json", "d/sub/script.pdf"}).out;
        const QByteArray reason = "it does not open with an action (JavaScript), which cannot be given to it";
        for (const QStringList& asked :
             {QStringList{"--view", "-"}, QStringList{"--like", "d/sub/script.pdf"}}) {
            const ProgramRun check =
                quintar(QStringList{"check", "d/plain.pdf", "d/sub/script.pdf"} + asked, view);
            QCOMPARE(check.out, "d/plain.pdf: " + reason + "\n1 as asked, 1 not, 0 failed\n");
            const ProgramRun run = quintar(QStringList{"run", "d/all.pdf", "-n", "--in-place"} + asked, view);
            QCOMPARE(run.status, 0);
            QVERIFY2(run.out.contains("page mode: use-oc -> unset;") && !run.out.contains("open page"),
                     run.out);
            QCOMPARE(run.err, "note: d/all.pdf: " + reason + "\n");
            const ProgramRun named = quintar(
                QStringList{"run", "d/all.pdf", "-n", "--in-place", "--open-page", "1"} + asked, view);
            QVERIFY2(named.out.contains("open page: 2 -> 1") && named.err.isEmpty(), named.out + named.err);
        }
    }

    void readsStandardInput()
    {
        const QByteArray document = QByteArray::fromStdString(WorkFolder::contentOf("d/all.pdf"));
        const ProgramRun words = quintar({"show", "-", "d/plain.pdf"}, document);
        QVERIFY2(words.out.startsWith("standard input\n") && words.out.contains("d/plain.pdf\n"), words.out);
        const QList<QJsonObject> json = ProgramRun::jsonLines(quintar({"show", "--json", "-"}, document).out);
        QCOMPARE(json.value(0).value("file"), QJsonValue("-"));
        QCOMPARE(json.value(0).value("lang"), QJsonValue("de-CH"));
        QCOMPARE(quintar({"check", "--page-mode", "layers", "-"}, document).status, 0);
        const ProgramRun check = quintar({"check", "--page-mode", "none", "-"}, document);
        QVERIFY2(check.out.startsWith("standard input: page mode: use-oc -> use-none\n"), check.out);
        const ProgramRun broken = quintar({"show", "-"}, "no document");
        QCOMPARE(broken.err, QByteArray("quintar: standard input: not a PDF document\n"));
        for (const QStringList& twice :
             {QStringList{"show", "-", "-"}, QStringList{"check", "--view", "-", "-"}})
            QVERIFY(quintar(twice, document).err.contains("standard input is named more than once"));
    }

    void tablesFitTheTerminal()
    {
        const QByteArray wide = quintar({"show", "--table", "d"}).out;
        QCOMPARE(wide,
                 QByteArray("PANEL       LAYOUT           PAGE  ZOOM           TITLE   FILE\n"
                            "layers      two-page-right   2     150%           -       d/all.pdf\n"
                            "-           -                -     -              -       d/plain.pdf\n"
                            "-           -                -     JavaScript     -       d/sub/script.pdf\n"));
        const std::pair<int, QByteArray> widths[] = {{80, ""},
                                                     {75, "TITLE"},
                                                     {60, "LAYOUT, TITLE"},
                                                     {50, "LAYOUT, ZOOM, TITLE"},
                                                     {34, "LAYOUT, PAGE, ZOOM, TITLE"},
                                                     {9, "PANEL, LAYOUT, PAGE, ZOOM, TITLE"},
                                                     {1, "PANEL, LAYOUT, PAGE, ZOOM, TITLE"}};
        for (const auto& [columns, leftOut] : widths) {
            const QString shell =
                QString("COLUMNS=%1 LC_ALL=C.UTF-8 exec \"$0\" show --table d").arg(columns);
            const ProgramRun run("sh", {"-c", shell, PROGRAM_FILE}, m_folder->path());
            for (const QString& line : QString::fromUtf8(run.out).split('\n'))
                QVERIFY2(line.size() <= columns, qPrintable(line));
            QVERIFY2(columns < 20 || run.out.contains("d/sub/script.pdf\n"), run.out);
            QCOMPARE(run.err, leftOut.isEmpty()
                                  ? QByteArray()
                                  : "quintar: note: the terminal is too narrow for all columns; "
                                    "left out: " +
                                        leftOut + "\n");
        }
    }

    void readsManyInTheirOrder()
    {
        QByteArray names;
        for (int number = 0; number < 60; ++number) {
            const QByteArray name = "m" + QByteArray::number(number) + ".pdf";
            // Those in front take longest.
            WorkFolder::put(name.toStdString(), PdfBuilder::simple("", number < 4 ? 3000 : 1));
            names += name + '\0';
        }
        names += "missing.pdf";
        for (const char* jobs : {"1", "7"}) {
            const ProgramRun run =
                quintar({"show", "--json", "--files-from", "-", "--null", "-j", jobs}, names);
            QCOMPARE(run.status, 1);
            QCOMPARE(run.err, QByteArray("quintar: missing.pdf: no such file or directory\n"));
            QByteArray shown;
            for (const QJsonObject& object : ProgramRun::jsonLines(run.out))
                shown += object.value("file").toString().toUtf8() + '\0';
            QCOMPARE(shown + "missing.pdf", names);
        }
    }

    void aCostlyDocumentCostsItself()
    {
        WorkFolder::put("d/long.pdf", titled("", std::string(600000, 'x')));
        const ProgramRun run = quintar({"show", "-j", "1", "d"});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.startsWith("quintar: d/long.pdf: what there is to tell") && run.err.count('\n') == 1,
                 run.err);
        QVERIFY(run.out.contains("d/plain.pdf\n") && run.out.contains("d/sub/script.pdf\n"));
    }

    void tellsHowDocumentsDiffer_data()
    {
        const Rows<QStringList, QByteArray> row;
        row("page mode", {"--page-mode", "bookmarks"},
            "d/all.pdf: page mode: use-oc -> use-outlines\n"
            "d/plain.pdf: page mode: unset -> use-outlines\n"
            "d/sub/script.pdf: page mode: unset -> use-outlines\n0 as asked, 3 not, 0 failed\n");
        row("a default is as good as nothing", {"--hide-menubar", "no"}, "3 as asked, 0 not, 0 failed\n");
        row("an action", {"--open-page", "1", "--zoom", "150%"},
            "d/all.pdf: open page: 2 -> 1\nd/plain.pdf: open page: unset -> 1; zoom: unset -> 150%\n"
            "d/sub/script.pdf: open page: JavaScript -> 1; zoom: unset -> 150%\n"
            "0 as asked, 3 not, 0 failed\n");
        row("no such page", {"--open-page", "4", "--page-mode", "layers", "-q"},
            "d/all.pdf: it has 3 pages, so it cannot open at page 4\n"
            "d/plain.pdf: it has 3 pages, so it cannot open at page 4; page mode: unset -> use-oc\n"
            "d/sub/script.pdf: it has 3 pages, so it cannot open at page 4; page mode: unset -> use-oc\n");
        row("the title", {"--title", "Everything", "--title-if-missing"},
            "d/plain.pdf: title: unset -> Everything\n"
            "d/sub/script.pdf: title: unset -> Everything\n1 as asked, 2 not, 0 failed\n");
        row("another one's view", {"--like", "d/plain.pdf", "-q"},
            "d/all.pdf: page mode: use-oc -> unset; page layout: two-page-right -> unset; open page: 2 -> "
            "unset; zoom: 150% -> unset; hide toolbar: yes -> unset; non full "
            "screen page mode: use-thumbs -> unset; direction: r2l -> unset; print scaling: none -> unset; "
            "duplex: duplex-flip-long-edge -> unset; pick tray by pdf size: yes -> unset; num copies: 3 -> "
            "unset\nd/sub/script.pdf: open page: JavaScript -> unset\n");
        row("settings", {"--set", "ViewerPrefsCheckBox=1", "--set", "HideToobarsCheckBox=1", "-q"},
            "d/plain.pdf: hide toolbar: unset -> yes\nd/sub/script.pdf: hide toolbar: unset -> yes\n");
    }

    void tellsHowDocumentsDiffer()
    {
        const auto [asked, told] = Rows<QStringList, QByteArray>::current();
        const QByteArray before = contents();
        const ProgramRun run = quintar(QStringList{"check"} + asked + QStringList{"d"});
        QCOMPARE(run.out, told);
        QCOMPARE(run.status, told.contains("->") || told.contains("cannot") ? 1 : 0);
        QCOMPARE(contents(), before);

        // What a run has changed is as asked, wherever it can be.
        if (told.contains("cannot"))
            return;
        QCOMPARE(quintar(QStringList{"run", "--in-place"} + asked + QStringList{"d"}).status, 0);
        QCOMPARE(quintar(QStringList{"check"} + asked + QStringList{"d"}).status, 0);
    }

    // Whatever a link leads to: as the user named it.
    void titlesComeFromTheNamesOfLinks()
    {
        std::filesystem::create_symlink("d/plain.pdf", "My Manual.pdf");
        for (const QStringList& words :
             {QStringList{"check"}, {"run", "-n", "--in-place"}, {"run", "-o", "x"}}) {
            const ProgramRun run = quintar(words + QStringList{"--title-from-file-name", "My Manual.pdf"});
            QVERIFY2(run.out.contains("My Manual.pdf: title: unset -> My Manual\n"), run.out + run.err);
        }
    }

    void tellsInJson()
    {
        WorkFolder::put("d/bad.pdf", "no document");
        const ProgramRun run = quintar({"check", "--json", "--page-mode", "layers", "d"});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.startsWith("quintar: d/bad.pdf: "), run.err);
        const QList<QJsonObject> lines = ProgramRun::jsonLines(run.out);
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[0].value("status"), QJsonValue("as asked"));
        QCOMPARE(lines[1].value("status"), QJsonValue("failed"));
        QVERIFY(!lines[1].value("reason").toString().isEmpty());
        QCOMPARE(lines[2].value("status"), QJsonValue("differs"));
        QCOMPARE(lines[2].value("before").toObject(), (QJsonObject{{"pageMode", QJsonValue()}}));
        QCOMPARE(lines[2].value("after").toObject(), (QJsonObject{{"pageMode", "UseOC"}}));
    }

    void notesAreToldOnce()
    {
        const ProgramRun json = quintar({"check", "--json", "--display-doc-title", "yes", "d/plain.pdf"});
        QVERIFY(ProgramRun::jsonLines(json.out).value(0).value("note").toString().contains("it has none"));
        QCOMPARE(json.err, QByteArray());
        const ProgramRun nothing = quintar({"check", "--view", "-", "d/plain.pdf"}, "{}");
        QCOMPARE(nothing.status, 0);
        QCOMPARE(nothing.err, QByteArray("quintar: note: the view names nothing, so nothing is asked of the "
                                         "documents\n"));
        for (const char* tag : {"english", "english language"}) {
            const QByteArray view = QByteArray(R"({"lang":")") + tag + "\"}";
            QCOMPARE(quintar({"check", "--view", "-", "d/plain.pdf"}, view).err.count("note: "), 1);
        }
    }

    void whatWaitsIsPrintedWhole()
    {
        // More than waits in memory, so that part of it comes back from a file.
        const std::size_t count = 200;
        const auto textOf = [](std::size_t place) {
            return std::to_string(place) + std::string(host::OrderedOutput::mostInMemory / 100, 'x') + "\n";
        };
        std::string whole;
        const std::string file = m_folder->path("printed").toStdString();
        const int out = dup(STDOUT_FILENO);
        const int printed = open(file.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600);
        dup2(printed, STDOUT_FILENO);
        host::OrderedOutput output;
        for (std::size_t place = count; place-- > 0;)
            if (place != 7)
                output.add(place, textOf(place));
        output.finish();
        dup2(out, STDOUT_FILENO);
        ::close(out);
        ::close(printed);
        for (std::size_t place = 0; place < count; ++place)
            whole += place == 7 ? "" : textOf(place);
        QVERIFY(WorkFolder::contentOf(file) == whole);
    }

private:
    ProgramRun quintar(const QStringList& arguments, const QByteArray& input = QByteArray()) const
    {
        return ProgramRun(PROGRAM_FILE, arguments, m_folder->path(), input);
    }

    QJsonObject shown(const QString& file) const
    {
        return ProgramRun::jsonLines(quintar({"show", "--json", file}).out).value(0);
    }

    static QByteArray contents()
    {
        std::string bytes;
        for (const char* file : {"d/all.pdf", "d/plain.pdf", "d/sub/script.pdf"})
            bytes += WorkFolder::contentOf(file);
        return QByteArray::fromStdString(bytes);
    }

    std::unique_ptr<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestCheck)
#include "TestCheck.moc"
