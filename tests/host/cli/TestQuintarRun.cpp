// Runs the program as a user does, and has its documents confirmed by another reader.
#include "support/Rows.h"
#include "support/folders/FileStatus.h"
#include "support/program/BatchFixture.h"

#include <QSettings>
#include <QtTest>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

std::string withLast(std::string bytes, const std::string& old, const std::string& with)
{
    return bytes.replace(bytes.rfind(old), old.size(), with);
}

/// The second sets anew what the first one has set.
const QList<QVariantMap> anotherAfterOne{
    {{"LayoutAndMagnCheckBox", true}, {"PageLayoutComboBox", 5}, {"OpenToPageSpinBox", 1}},
    {{"LayoutAndMagnCheckBox", true},
     {"NavigationTabComboBox", 4},
     {"PageLayoutComboBox", 2},
     {"MagnificationComboBox", 8},
     {"OpenToPageSpinBox", 3},
     {"ViewerPrefsCheckBox", true},
     {"HideToobarsCheckBox", true},
     {"OpenInFullScreenCheckBox", true},
     {"ShowComboBox", 1}}};

} // namespace

class TestQuintarRun : public QObject, private BatchFixture
{
    Q_OBJECT

private slots:
    void init() { begin(); }

    void cleanup()
    {
        QCOMPARE(strays(), QStringList());
        end();
    }

    void appliesAnActionListToAFolder()
    {
        const std::string original = put("in/a.pdf");
        put("in/deep/b.PDF",
            PdfBuilder::simple("/PageMode /UseThumbs /ViewerPreferences << /HideMenubar true >>"));
        put("in/notes.txt");
        putList(anotherAfterOne);
        const ProgramRun run =
            quintar({"run", "--list", "list.xqq", "-o", "new/out", "--report", "report", "in"});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QVERIFY2(run.out.endsWith("2 changed, 0 unchanged, 0 failed\n"), run.out);
        QVERIFY(contentOf("in/a.pdf") == original);
        for (const char* name : {"new/out/a.pdf", "new/out/deep/b.PDF"}) {
            const QpdfReader reader(path(name));
            const QJsonObject catalog = reader.catalog();
            QCOMPARE(catalog.value("/PageMode"), QJsonValue("/FullScreen"));
            QCOMPARE(catalog.value("/PageLayout"), QJsonValue("/TwoColumnLeft"));
            QJsonObject preferences = reader.resolved(catalog.value("/ViewerPreferences")).toObject();
            QCOMPARE(preferences.take("/HideMenubar").toBool(), false);
            QCOMPARE(preferences, (QJsonObject{{"/HideToolbar", true},
                                               {"/DisplayDocTitle", true},
                                               {"/NonFullScreenPageMode", "/UseAttachments"}}));
        }
        QCOMPARE(report().size(), 2);
        QJsonObject line = report()[0];
        QVERIFY(line.take("output").toString().endsWith("/new/out/a.pdf"));
        for (const char* varying : {"milliseconds", "fileState", "outputState"})
            QVERIFY(!line.take(varying).isNull());
        QCOMPARE(line.take("before").toObject().value("pageMode"), QJsonValue());
        QCOMPARE(line.take("after").toObject().value("pageMode"), QJsonValue("FullScreen"));
        QCOMPARE(line, (QJsonObject{{"file", "in/a.pdf"},
                                    {"status", "changed"},
                                    {"reasonCode", QJsonValue()},
                                    {"saved", "appended"},
                                    {"reason", QJsonValue()}}));
    }

    void changesInPlace_data()
    {
        const Rows<QString, bool, QByteArray>
            row; // whether the document has another name, and how it is saved
        row("where it lies", "--in-place", false, "appended in place");
        row("with another name", "--in-place", true, "appended");
        row("as asked for", "--in-place --replace", false, "appended");
    }

    void changesInPlace()
    {
        const auto [words, isLinked, saved] = Rows<QString, bool, QByteArray>::current();
        const std::string original = put("real/a.pdf");
        QCOMPARE(chmod("real/a.pdf", 0640), 0);
        fs::create_symlink("real/a.pdf", "link.pdf");
        isLinked ? fs::create_hard_link("real/a.pdf", "kept.pdf") : fs::copy("real/a.pdf", "kept.pdf");
        const ino_t file = statusOf("real/a.pdf").st_ino;
        const ProgramRun run = apply(words.split(' ') + QStringList{"link.pdf"});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QVERIFY2(run.out.startsWith("changed (" + saved + ")  link.pdf"), run.out);
        QCOMPARE(statusOf("real/a.pdf").st_ino == file, saved == "appended in place");
        QVERIFY(fs::is_symlink("link.pdf"));
        QCOMPARE(fs::read_symlink("link.pdf").string(), std::string("real/a.pdf"));
        QCOMPARE(int(fs::status("real/a.pdf").permissions()), 0640);
        QVERIFY(contentOf("kept.pdf") == original);
        QVERIFY(contentOf("real/a.pdf").substr(0, original.size()) == original);
        const QpdfReader reader(path("real/a.pdf"));
        QCOMPARE(reader.catalog().value("/PageMode"), QJsonValue("/UseOutlines"));
        QCOMPARE(reader.resolved(reader.catalog().value("/OpenAction")).toArray().at(1).toString(),
                 QString("/Fit"));
    }

    void leavesAloneWhatNeedsNoChange()
    {
        put("a.pdf");
        QCOMPARE(apply({"-o", "out", "a.pdf"}).status, 0);
        const std::string changed = contentOf("out/a.pdf");
        struct stat before;
        struct stat after;
        QCOMPARE(stat("out/a.pdf", &before), 0);
        const ProgramRun inPlace = apply({"--in-place", "--report", "report", "out"});
        QVERIFY2(inPlace.out.endsWith("0 changed, 1 unchanged, 0 failed\n"), inPlace.out);
        QCOMPARE(stat("out/a.pdf", &after), 0);
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
        QVERIFY(report()[0].value("saved").isNull());

        QCOMPARE(apply({"-o", "copies", "--report", "report", "out/a.pdf"}).status, 0);
        QVERIFY(contentOf("copies/a.pdf") == changed);
        QCOMPARE(report()[0].value("status"), QJsonValue("unchanged"));
        QCOMPARE(report()[0].value("saved"), QJsonValue("copied"));
    }

    void goesOnBehindBadDocuments()
    {
        put("good.pdf");
        put("empty.pdf", "");
        put("text.pdf", "This is no PDF document.\n");
        put("locked.pdf", encrypted(PdfBuilder::simple(), {"--encrypt", "user", "owner", "256"}));
        QCOMPARE(mkfifo("fifo.pdf", 0600), 0);
        const ProgramRun run = apply({"-o", "out", "--report", "report", "--password", "wrong", "missing.pdf",
                                      "empty.pdf", "text.pdf", "locked.pdf", "fifo.pdf", "good.pdf"});
        QCOMPARE(run.status, 1);
        QCOMPARE(reasonFor(run.err, "missing.pdf"), QString("no such file or directory"));
        QCOMPARE(reasonFor(run.err, "empty.pdf"), QString("the file is empty"));
        QCOMPARE(reasonFor(run.err, "text.pdf"), QString("not a PDF document"));
        QVERIFY(reasonFor(run.err, "locked.pdf").contains("password"));
        QCOMPARE(reasonFor(run.err, "fifo.pdf"), QString("not a regular file"));
        QVERIFY(fs::exists("out/good.pdf"));
        for (const char* bad : {"empty.pdf", "text.pdf", "locked.pdf", "fifo.pdf"})
            QVERIFY(!fs::exists(std::string("out/") + bad));
        const QList<QJsonObject> lines = report();
        QCOMPARE(lines.size(), 6);
        QCOMPARE(lines[1].value("status"), QJsonValue("failed"));
        QCOMPARE(lines[1].value("reason"), QJsonValue("the file is empty"));
        QVERIFY(lines[1].value("output").isNull());
        QCOMPARE(lines[5].value("status"), QJsonValue("changed"));
    }

    void refusesBeforeAnythingIsWritten_data()
    {
        const Rows<QString, QByteArray> row;
        const QString set = " --set LayoutAndMagnCheckBox=1";
        row("output is a file", "run -o bad.tsf sub/a.pdf" + set, "not a folder");
        row("settings file damaged", "run -o out --tool-settings bad.tsf a.pdf", "bad.tsf: ");
        row("a PDF as settings", "run -o out --list a.pdf a.pdf", "not an action list");
        row("same output", "run -o out a.pdf sub/a.pdf" + set, "same output");
        row("overwrites an input", "run -o . a.pdf" + set, "would overwrite");
        row("report over an input", "run -o out --report a.pdf a.pdf" + set, "report");
        row("report nowhere", "run -o out --report no/r a.pdf" + set, "no/r");
        row("no password file", "run -o out --password-file no a.pdf" + set, "no cannot");
        row("rewriting in place", "run --in-place --rewrite a.pdf" + set, "--rewrite goes with -o");
        row("replacing elsewhere", "run -o out --replace a.pdf" + set, "--replace goes with --in-place");
        row("null without list", "run -o out --null a.pdf" + set, "--files-from");
        row("endless list", "run -o out --files-from /dev/zero" + set, "too large");
        row("empty name", "run -o out ''" + set, "empty");
    }

    void refusesBeforeAnythingIsWritten()
    {
        const auto [words, named] = Rows<QString, QByteArray>::current();
        const std::string original = put("a.pdf");
        put("sub/a.pdf");
        put("bad.tsf", "[General]\nToolSettings=@Variant(\\0\\0\\0\\b\\0\\0");
        const ProgramRun run = quintar(words.split(' ', Qt::SkipEmptyParts).replaceInStrings("''", ""));
        QCOMPARE(run.status, 2);
        QVERIFY2(run.err.contains(named), run.err);
        QVERIFY(contentOf("a.pdf") == original);
        QVERIFY(!fs::exists("out") || fs::is_empty("out"));
    }

    void guardsSignedDocuments_data()
    {
        const Rows<std::string, QStringList, QString, QString>
            row; // what is refused and why, what is allowed
        row("signed", "", {"refuse"}, "it is signed", "append");
        row("certified", "/Perms << /DocMDP 9 0 R >>", {"refuse", "append"}, "it is certified",
            "append-certified");
    }

    void guardsSignedDocuments()
    {
        const auto [entries, refused, reason, allowed] =
            Rows<std::string, QStringList, QString, QString>::current();
        const std::string original = put("signed.pdf", signedDocument(entries));
        put("plain.pdf");
        const QStringList words{"-o", "out", "--report", "report", "signed.pdf", "plain.pdf", "--signed"};
        for (const QString& option : refused) {
            const ProgramRun run = apply(words + QStringList{option});
            QCOMPARE(run.status, 1);
            const QString told = reasonFor(run.err, "signed.pdf");
            QVERIFY2(told.startsWith(reason) && told.contains("--signed " + allowed), run.err);
            QVERIFY(!fs::exists("out/signed.pdf"));
        }
        QCOMPARE(apply(words + QStringList{allowed}).err, QByteArray());
        const std::string result = contentOf("out/signed.pdf");
        QVERIFY(result.size() > original.size() && result.starts_with(original));
        QCOMPARE(report()[0].value("certified").toBool(), !entries.empty());
        QVERIFY(!report()[1].contains("certified"));
    }

    void appendsOrRefuses_data()
    {
        const Rows<std::string, QString, QString> row; // what happens without --rewrite, and with it
        const QString doubt = "--rewrite would refuse it";
        const std::string newer = "3 0 obj\nnull\nendobj\ntrailer\n<< /Root 1 0 R >>\nstartxref\n9\n%%EOF\n";
        const std::string direct = "/Root << /Type /Catalog /Pages 2 0 R >>";
        row("sound", PdfBuilder::simple(), "appended", "appended");
        row("beyond doubt", withLast(PdfBuilder::simple(), "startxref\n", "startxref\n7"), "appended",
            "appended");
        row("signed, beyond doubt", withLast(signedDocument(), "startxref\n", "startxref\n7"), "appended",
            "appended");
        row("in doubt", PdfBuilder::simple() + newer, doubt, "newest");
        row("signed and in doubt", signedDocument() + newer, doubt, "newest");
        row("nothing to append to", withLast(PdfBuilder::simple(), "/Root 1 0 R", direct),
            "--rewrite writes it", "rewritten");
        row("signed, nothing to append to", withLast(signedDocument(), "/Root 1 0 R", direct),
            "--rewrite writes it", "signatures");
    }

    void appendsOrRefuses()
    {
        const auto [bytes, appending, rewriting] = Rows<std::string, QString, QString>::current();
        put("a.pdf", bytes);
        for (const QString option : {"--sync", "--rewrite"}) {
            const QString& expected = option == "--rewrite" ? rewriting : appending;
            const QStringList words{option, "--signed", "append", "--report", "report", "-o", "out", "a.pdf"};
            const bool done = expected == "appended" || expected == "rewritten";
            QCOMPARE(apply(QStringList{"--dry-run"} + words).status, done ? 0 : 1);
            fs::remove("report");
            const ProgramRun run = apply(words);
            QCOMPARE(run.status, done ? 0 : 1);
            const QJsonObject told = report().value(0);
            QVERIFY2(told.value(done ? "saved" : "reason").toString().contains(expected), run.err);
            QCOMPARE(fs::exists("out/a.pdf"), done);
            QCOMPARE(done && contentOf("out/a.pdf").starts_with(bytes), expected == "appended");
            fs::remove_all("out");
            fs::remove("report");
        }
    }

    void guardsEncryptedDocuments()
    {
        put("locked.pdf",
            encrypted(PdfBuilder::simple(), {"--encrypt", "us\u00e9r", "owner", "256", "--modify=none"}));
        put("plain.pdf");
        const ProgramRun user = apply({"-o", "out", "--password", "us\u00e9r", "plain.pdf", "locked.pdf"});
        QCOMPARE(user.status, 1);
        QVERIFY2(reasonFor(user.err, "locked.pdf").contains("owner password"), user.err);
        QVERIFY(fs::exists("out/plain.pdf"));
        put("password", "owner\nsecond line\n");
        const ProgramRun owner = apply({"-o", "out", "--password-file", "password", "locked.pdf"});
        QCOMPARE(owner.err, QByteArray());
        QCOMPARE(QpdfReader(path("out/locked.pdf"), "us\u00e9r").catalog().value("/PageMode"),
                 QJsonValue("/UseOutlines"));
    }

    void asksForAPasswordOnATerminal()
    {
        put("locked.pdf", encrypted(PdfBuilder::simple(), {"--encrypt", "secret", "owner", "256"}));
        const QStringList words = QStringList{PROGRAM_FILE, "run", "--in-place"} + panelAndPage() +
                                  QStringList{"--password-file", "-", "locked.pdf"};
        QProcess terminal;
        terminal.setWorkingDirectory(path());
        terminal.start("script", {"-qec", words.join(' '), "/dev/null"});
        QByteArray shown;
        QVERIFY(
            waitFor([&] { return (shown += terminal.readAllStandardOutput()).contains("Password for"); }));
        terminal.write("secret\n"); // and no end of input
        QVERIFY(terminal.waitForFinished());
        shown += terminal.readAllStandardOutput();
        QVERIFY2(terminal.exitCode() == 0 && !shown.contains("secret"), shown);
    }

    void readsAPasswordFromAPipeThatStaysOpen()
    {
        put("locked.pdf", encrypted(PdfBuilder::simple(), {"--encrypt", "secret", "owner", "256"}));
        QProcess show;
        show.start(PROGRAM_FILE, {"show", "--password-file", "-", path("locked.pdf")});
        show.write("secret\n");
        QVERIFY(show.waitForFinished());
        QCOMPARE(show.exitCode(), 0);
    }

    void writesNothingInADryRun()
    {
        const std::string original = put("in/a.pdf");
        put("in/same.pdf", PdfBuilder::simple("/PageMode /UseNone"));
        put("in/bad.pdf", "bad");
        put("in/signed.pdf", signedDocument());
        const QStringList settings{"--set", "LayoutAndMagnCheckBox=0", "--set", "ViewerPrefsCheckBox=1",
                                   "--set", "HideMenuBarCheckBox=1"};
        const ProgramRun run =
            quintar(QStringList{"run", "--dry-run", "--report", "report", "-o", "out", "in"} + settings);
        QCOMPARE(run.status, 1);
        QVERIFY2(run.out.contains("would change  in/a.pdf: "), run.out);
        QVERIFY2(run.out.endsWith("2 would change, 0 unchanged, 2 failed\n"), run.out);
        QVERIFY(!fs::exists("out"));
        const ProgramRun inPlace = quintar(QStringList{"run", "--dry-run", "--in-place", "in"} + settings);
        QCOMPARE(inPlace.status, 1);
        QVERIFY(contentOf("in/a.pdf") == original);
        QCOMPARE(report()[0].value("status"), QJsonValue("changed"));
        QVERIFY(report()[0].value("saved").isNull());
    }

    void tellsWhatChanges_data()
    {
        const Rows<std::string, QString, QByteArray, QJsonObject, QJsonObject> row;
        const QString openPage = "--open-page 2 --zoom fit-width";
        const QJsonObject second{{"page", 2}, {"type", "FitH"}, {"zoom", QJsonValue()}};
        row("an entry", "/PageMode /UseThumbs", "--page-mode bookmarks",
            "page mode: use-thumbs -> use-outlines", {{"pageMode", "UseThumbs"}},
            {{"pageMode", "UseOutlines"}});
        row("an entry that is not there", "", "--page-mode bookmarks", "page mode: unset -> use-outlines",
            {{"pageMode", QJsonValue()}}, {{"pageMode", "UseOutlines"}});
        row("a preference", "/ViewerPreferences << /HideMenubar true /FitWindow true >>", "--hide-menubar no",
            "hide menubar: yes -> no", {{"viewerPreferences", QJsonObject{{"HideMenubar", true}}}},
            {{"viewerPreferences", QJsonObject{{"HideMenubar", false}}}});
        row("a script", "/OpenAction << /S /JavaScript /JS (x) >>", openPage,
            "open page: JavaScript -> 2; zoom: unset -> fit-width",
            {{"openAction", QJsonObject{{"action", "JavaScript"}}}}, {{"openAction", second}});
        row("a page taken away", "/OpenAction [ 3 0 R /Fit ]", "--open-page unset",
            "open page: 1 -> unset; zoom: fit-page -> unset",
            {{"openAction", QJsonObject{{"page", 1}, {"type", "Fit"}, {"zoom", QJsonValue()}}}},
            {{"openAction", QJsonValue()}});
    }

    void tellsWhatChanges()
    {
        const auto [catalog, options, words, before, after] =
            Rows<std::string, QString, QByteArray, QJsonObject, QJsonObject>::current();
        put("a.pdf", PdfBuilder::simple(catalog));
        const QStringList run = QStringList{"run", "a.pdf", "--report", "report"} + options.split(' ');
        const ProgramRun dry = quintar(run + QStringList{"--in-place", "--dry-run"});
        QVERIFY2(dry.out.startsWith("would change  a.pdf: " + words + "\n"), dry.out + dry.err);
        for (const QString target : {"--suffix=new", "--in-place"}) {
            const ProgramRun real = quintar(run + QStringList{target});
            const QByteArray saved = target == "--in-place" ? "appended in place" : "appended";
            QVERIFY2(real.out.startsWith("changed (" + saved + ")  a.pdf: " + words + "\n"),
                     real.out + real.err);
            QCOMPARE(report().value(0).value("before"), QJsonValue(before));
            QCOMPARE(report().value(0).value("after"), QJsonValue(after));
        }
    }

    void takesNamesOfAnyBytes()
    {
        const std::string odd = "h\xf4tel \"x\".pdf";
        const std::string lines = "two\nlines.pdf";
        for (const std::string& name : {odd, lines, std::string("-o.pdf"), std::string("[a,b]/show.pdf")})
            put(name);
        const QByteArray list = QByteArray::fromStdString(odd + '\0' + lines + '\0' + "./-o.pdf" + '\0');
        const QStringList words =
            QStringList{"run", "-o", "out", "--report", "report", "--files-from", "-", "--null"} +
            panelAndPage() + QStringList{"--", "[a,b]"};
        QCOMPARE(quintar(words + QStringList{"-o.pdf"}, list).status, 2); // -o.pdf is there twice
        const ProgramRun run = quintar(words, list);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        for (const std::string& name : {odd, lines, std::string("-o.pdf"), std::string("show.pdf")})
            QVERIFY2(fs::exists("out/" + name), name.c_str());
        const QList<QJsonObject> reported = report();
        QCOMPARE(reported.size(), 4);
        QCOMPARE(reported[1].value("fileBytes"), QJsonValue("h%F4tel%20%22x%22.pdf"));
        QCOMPARE(reported[2].value("file"), QJsonValue(QString::fromStdString(lines)));
        QVERIFY(!reported[2].contains("fileBytes"));
    }

    void printsNothingThatATerminalObeys()
    {
        put("in/\x1b]0;owned\x07\x1b[31m.pdf", "bad");
        put("in/\xc2\x9b"
            "31m\xe2\x80\xae.pdf");
        const ProgramRun run = apply({"-o", "out", "in"});
        QCOMPARE(run.status, 1);
        for (const char* part : {"\x1b", "\x07", "\xc2\x9b", "\xe2\x80\xae"})
            QVERIFY(!run.out.contains(part) && !run.err.contains(part));
        QVERIFY2(run.err.contains("\\x1b]0;owned\\x07"), run.err);
    }

private:
    void putList(const QList<QVariantMap>& entries) const
    {
        QSettings list("list.xqq", QSettings::IniFormat);
        for (int number = 0; number < entries.size(); ++number) {
            list.setValue(QString("ActionName%1").arg(number), "Initial View");
            list.setValue(QString("ActionPrefs%1").arg(number), entries[number]);
        }
    }
};

QTEST_GUILESS_MAIN(TestQuintarRun)
#include "TestQuintarRun.moc"
