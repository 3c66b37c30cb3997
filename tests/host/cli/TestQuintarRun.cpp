// Runs the program as a user does, and has its documents confirmed by another reader.
#include "support/FileStatus.h"
#include "support/PdfBuilder.h"
#include "support/ProgramRun.h"
#include "support/Rows.h"
#include "support/SpecialDocuments.h"
#include "support/WorkFolder.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <csignal>
#include <functional>
#include <optional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const QStringList panelAndPage{"--set", "LayoutAndMagnCheckBox=true",
                               "--set", "NavigationTabComboBox=1",
                               "--set", "PageLayoutComboBox=One Column",
                               "--set", "MagnificationComboBox=1",
                               "--set", "OpenToPageSpinBox=2"};

std::string withLast(std::string bytes, const std::string& old, const std::string& with)
{
    return bytes.replace(bytes.rfind(old), old.size(), with);
}

QString reasonFor(const QByteArray& err, const QByteArray& name)
{
    for (const QByteArray& line : err.split('\n'))
        if (line.startsWith("failed: " + name + ": "))
            return QString::fromUtf8(line.mid(10 + name.size()));
    return QString();
}

} // namespace

class TestQuintarRun : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }

    void cleanup()
    {
        QCOMPARE(strays(), QStringList());
        m_folder.reset();
    }

    void appliesAnActionListToAFolder()
    {
        const std::string original = put("in/a.pdf");
        put("in/deep/b.PDF",
            PdfBuilder::simple("/PageMode /UseThumbs /ViewerPreferences << /HideMenubar true >>"));
        put("in/notes.txt");
        putList({{{"LayoutAndMagnCheckBox", true}, {"PageLayoutComboBox", 5}, {"OpenToPageSpinBox", 1}},
                 {{"LayoutAndMagnCheckBox", true},
                  {"NavigationTabComboBox", 4},
                  {"PageLayoutComboBox", 2},
                  {"MagnificationComboBox", 8},
                  {"OpenToPageSpinBox", 3},
                  {"ViewerPrefsCheckBox", true},
                  {"HideToobarsCheckBox", true},
                  {"OpenInFullScreenCheckBox", true},
                  {"ShowComboBox", 1}}});
        const ProgramRun run =
            quintar({"run", "--list", "list.xqq", "-o", "new/out", "--report", "report", "in"});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QVERIFY2(run.out.endsWith("2 changed, 0 unchanged, 0 failed\n"), run.out);
        QVERIFY(WorkFolder::contentOf("in/a.pdf") == original);
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
        QVERIFY(WorkFolder::contentOf("kept.pdf") == original);
        QVERIFY(WorkFolder::contentOf("real/a.pdf").substr(0, original.size()) == original);
        const QpdfReader reader(path("real/a.pdf"));
        QCOMPARE(reader.catalog().value("/PageMode"), QJsonValue("/UseOutlines"));
        QCOMPARE(reader.resolved(reader.catalog().value("/OpenAction")).toArray().at(1).toString(),
                 QString("/Fit"));
    }

    void leavesAloneWhatNeedsNoChange()
    {
        put("a.pdf");
        QCOMPARE(apply({"-o", "out", "a.pdf"}).status, 0);
        const std::string changed = WorkFolder::contentOf("out/a.pdf");
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
        QVERIFY(WorkFolder::contentOf("copies/a.pdf") == changed);
        QCOMPARE(report()[0].value("status"), QJsonValue("unchanged"));
        QCOMPARE(report()[0].value("saved"), QJsonValue("copied"));
    }

    void goesOnBehindBadDocuments()
    {
        put("good.pdf");
        put("empty.pdf", "");
        put("text.pdf", "This is no PDF document.\n");
        put("locked.pdf", encrypted(PdfBuilder::simple(), {"--encrypt", "user", "owner", "256"}));
        put("forbidden/x.pdf");
        QCOMPARE(mkfifo("fifo.pdf", 0600), 0);
        QCOMPARE(chmod("forbidden", 0), 0);
        const ProgramRun run =
            apply({"-o", "out", "--report", "report", "--password", "wrong", "missing.pdf", "empty.pdf",
                   "text.pdf", "locked.pdf", "fifo.pdf", "forbidden", "good.pdf"});
        chmod("forbidden", 0700);
        QCOMPARE(run.status, 1);
        QCOMPARE(reasonFor(run.err, "missing.pdf"), QString("no such file or directory"));
        QCOMPARE(reasonFor(run.err, "empty.pdf"), QString("the file is empty"));
        QCOMPARE(reasonFor(run.err, "text.pdf"), QString("not a PDF document"));
        QVERIFY(reasonFor(run.err, "locked.pdf").contains("password"));
        QCOMPARE(reasonFor(run.err, "fifo.pdf"), QString("not a regular file"));
        if (geteuid() != 0)
            QCOMPARE(reasonFor(run.err, "forbidden"), QString("permission denied"));
        QVERIFY(fs::exists("out/good.pdf"));
        for (const char* bad : {"empty.pdf", "text.pdf", "locked.pdf", "fifo.pdf"})
            QVERIFY(!fs::exists(std::string("out/") + bad));
        const QList<QJsonObject> lines = report();
        QCOMPARE(lines.size(), 7);
        QCOMPARE(lines[1].value("status"), QJsonValue("failed"));
        QCOMPARE(lines[1].value("reason"), QJsonValue("the file is empty"));
        QVERIFY(lines[1].value("output").isNull());
        QCOMPARE(lines[6].value("status"), QJsonValue("changed"));
    }

    void refusesBeforeAnythingIsWritten_data()
    {
        const Rows<QString, QByteArray> row;
        const QString set = " --set LayoutAndMagnCheckBox=1";
        row("no command", "", "which command");
        row("unknown option", "run --fast -o out a.pdf" + set, "--fast");
        row("missing value", "run a.pdf" + set + " -o", "-o needs a value");
        row("no settings", "run -o out a.pdf", "--set");
        row("two sources", "run -o out --list x.xqq a.pdf" + set, "one source");
        row("no target", "run a.pdf" + set, "-o DIR");
        row("two targets", "run -o out --in-place a.pdf" + set, "exclude");
        row("no documents", "run -o out" + set, "which documents");
        row("output is a file", "run -o bad.tsf sub/a.pdf" + set, "not a folder");
        row("unknown key", "run -o out --set Colour=1 a.pdf", "HideMenuBarCheckBox");
        row("value out of range", "run -o out --set ShowComboBox=2 a.pdf", "1  Document Title");
        row("settings file damaged", "run -o out --tool-settings bad.tsf a.pdf", "bad.tsf: ");
        row("a PDF as settings", "run -o out --list a.pdf a.pdf", "not an action list");
        row("same output", "run -o out a.pdf sub/a.pdf" + set, "same output");
        row("overwrites an input", "run -o . a.pdf" + set, "would overwrite");
        row("report over an input", "run -o out --report a.pdf a.pdf" + set, "report");
        row("report nowhere", "run -o out --report no/r a.pdf" + set, "no/r");
        row("no password file", "run -o out --password-file no a.pdf" + set, "no cannot");
        row("number of jobs", "run -o out --jobs 0 a.pdf" + set, "1 to 1024");
        row("signed", "run -o out --signed maybe a.pdf" + set, "refuse, append or append-certified");
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
        QVERIFY(WorkFolder::contentOf("a.pdf") == original);
        QVERIFY(!fs::exists("out") || fs::is_empty("out"));
    }

    void guardsSignedDocuments()
    {
        const std::string original = put("signed.pdf", signedDocument());
        const ProgramRun refused = apply({"-o", "out", "signed.pdf"});
        QCOMPARE(refused.status, 1);
        QVERIFY2(reasonFor(refused.err, "signed.pdf").startsWith("it is signed"), refused.err);
        QVERIFY(!fs::exists("out/signed.pdf"));
        const ProgramRun appended = apply({"--signed", "append", "-o", "out", "signed.pdf"});
        QCOMPARE(appended.status, 0);
        const std::string result = WorkFolder::contentOf("out/signed.pdf");
        QVERIFY(result.size() > original.size() && result.substr(0, original.size()) == original);
    }

    void guardsCertifiedDocuments()
    {
        const std::string original = put("certified.pdf", signedDocument("/Perms << /DocMDP 9 0 R >>"));
        for (const char* allowed : {"refuse", "append"}) {
            const ProgramRun refused =
                apply({"--signed", allowed, "-o", "out", "--report", "report", "certified.pdf"});
            QCOMPARE(refused.status, 1);
            QVERIFY2(reasonFor(refused.err, "certified.pdf").startsWith("it is certified"), refused.err);
            QVERIFY(reasonFor(refused.err, "certified.pdf").contains("--signed append-certified"));
            QVERIFY(!fs::exists("out/certified.pdf"));
        }
        put("plain.pdf");
        const ProgramRun appended = apply({"--signed", "append-certified", "-o", "out", "--report", "report",
                                           "certified.pdf", "plain.pdf"});
        QCOMPARE(appended.err, QByteArray());
        const std::string result = WorkFolder::contentOf("out/certified.pdf");
        QVERIFY(result.size() > original.size() && result.starts_with(original));
        QVERIFY(report()[0].value("certified").toBool());
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
            QCOMPARE(done && WorkFolder::contentOf("out/a.pdf").starts_with(bytes), expected == "appended");
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
        QVERIFY(WorkFolder::contentOf("in/a.pdf") == original);
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
            panelAndPage + QStringList{"--", "[a,b]"};
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

    void survivesAFullDisk()
    {
        fs::create_directories("disk");
        if (ProgramRun("mount", {"-t", "tmpfs", "-o", "size=128k", "tmpfs", path("disk")}).status != 0)
            QSKIP("no file system can be mounted here");
        const auto unmount = qScopeGuard([this] { ProgramRun("umount", {"-l", path("disk")}); });
        const auto document = [](std::size_t size) {
            return PdfBuilder().catalog("").pages(2).stream(9, "", std::string(size, 'x')).bytes();
        };
        // A few bytes of what is appended where it lies still fit.
        const std::size_t padding = 100000;
        const std::string original =
            put("disk/a.pdf", document(padding + 4090 - document(padding).size() % 4096));
        for (const char* target : {"--in-place --replace", "-o disk/out", "--in-place"}) {
            if (target == std::string("--in-place"))
                put("disk/filler", std::string(1 << 20, 'x'));
            const ProgramRun run = apply(QString(target).split(' ') + QStringList{"disk/a.pdf"});
            QCOMPARE(run.status, 1);
            QVERIFY2(reasonFor(run.err, "disk/a.pdf").contains("no space left"), run.err);
            QVERIFY(WorkFolder::contentOf("disk/a.pdf") == original);
            QVERIFY(!fs::exists("disk/out/a.pdf"));
            QCOMPARE(strays(), QStringList());
        }
    }

    void survivesAReadOnlyFolder()
    {
        if (geteuid() == 0)
            QSKIP("nothing is read-only for root");
        const std::string original = put("in/a.pdf");
        QCOMPARE(chmod("in", 0500), 0);
        const ProgramRun run = apply({"--in-place", "in/a.pdf"});
        chmod("in", 0700);
        QVERIFY2(reasonFor(run.err, "in/a.pdf").contains("permission denied"), run.err);
        QVERIFY(WorkFolder::contentOf("in/a.pdf") == original);
    }

    void survivesAFullReport()
    {
        put("a.pdf");
        const ProgramRun run = apply({"-o", "out", "--report", "/dev/full", "a.pdf"});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains("the report /dev/full is incomplete: no space left on device"), run.err);
        QVERIFY(fs::exists("out/a.pdf"));
    }

    // Closed streams, few descriptors, a folder that has gone, and signals that a parent ignores.
    void livesWithWhatTheShellGives()
    {
        for (int number = 0; number < 20; ++number)
            put("in/" + std::to_string(number) + ".pdf");
        const auto shell = [&](const QString& script, const QStringList& arguments) {
            return ProgramRun("sh", QStringList{"-c", script, PROGRAM_FILE} + arguments, m_folder->path());
        };
        const QStringList run =
            QStringList{"run", "--report", "out/report", "--jobs", "20", "in"} + panelAndPage;
        const QStringList toOut = run + QStringList{"-o", "out"};
        QCOMPARE(shell("exec \"$0\" \"$@\" <&- >&- 2>&-", toOut).status, 0);
        QCOMPARE(WorkFolder::contentOf("out/report").find("20 changed"), std::string::npos);
        QCOMPARE(shell("ulimit -n 16; exec \"$0\" \"$@\"", toOut).status, 0);
        const ProgramRun gone = shell("mkdir x; cd x; rmdir ../x; exec \"$0\" \"$@\"",
                                      QStringList{"run", "-o", "out", path("in")} + panelAndPage);
        QCOMPARE(gone.status, 2);
        const ProgramRun full = shell("exec \"$0\" \"$@\" >/dev/full", {"show", "in/1.pdf"});
        QCOMPARE(full.status, 1);
        QVERIFY2(full.err.contains("no space left"), full.err);

        put("1-hang.pdf");
        put("2-good.pdf");
        const QString program = programBesideTrouble(path("installed"));
        QProcess process;
        process.start("sh", QStringList{"-c", "trap '' HUP; exec \"$0\" \"$@\"", program, "run", "--jobs",
                                        "1", "--timeout", "2", "--report", "report", "--in-place",
                                        "1-hang.pdf", "2-good.pdf"} +
                                panelAndPage);
        QVERIFY(waitFor([] { return fs::exists("report"); }));
        QTest::qWait(200);
        ::kill(pid_t(process.processId()), SIGHUP);
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(WorkFolder::contentOf("2-good.pdf") != PdfBuilder::simple());
    }

    void makesAnOutputFolderAgain()
    {
        for (const char* name : {"in/1-good.pdf", "in/2-slow.pdf", "in/3-good.pdf"})
            put(name);
        QProcess process;
        process.start(programBesideTrouble(path("installed")),
                      QStringList{"run", "--jobs", "1", "-o", "out", "in"} + panelAndPage);
        QVERIFY(waitFor([] { return fs::exists("out/1-good.pdf"); }));
        fs::remove_all("out");
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(!fs::exists("out/1-good.pdf") && fs::exists("out/2-slow.pdf") &&
                fs::exists("out/3-good.pdf"));
    }

    void refusesWhatChangedMeanwhile()
    {
        for (const QStringList& target : {QStringList{"--in-place"}, QStringList{"-o", "out"}}) {
            put("replaced.pdf");
            const std::string newer = put("newer", PdfBuilder::simple("/PageMode /UseThumbs"));
            const ProgramRun run(programBesideTrouble(path("installed")),
                                 QStringList{"run", "--sandbox", "off", "replaced.pdf"} + target +
                                     panelAndPage,
                                 m_folder->path());
            QVERIFY2(reasonFor(run.err, "replaced.pdf").contains("changed by another program"), run.err);
            QVERIFY(WorkFolder::contentOf("replaced.pdf") == newer);
            QVERIFY(!fs::exists("out/replaced.pdf"));
            fs::remove_all("installed");
        }
    }

    void losesNothingForWantOfMemory()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("workers have no memory limit under the sanitizer");
#endif
        PdfBuilder builder;
        builder.catalog("/Kept 9 0 R").pages(2).object(9, "(" + std::string(20 << 20, 'x') + ")");
        const std::string damaged = builder.bytes() + "10 0 obj\nnull\nendobj\n" + std::string(5000, '\n');
        const std::string original = put("a.pdf", damaged);
        const ProgramRun run = apply({"--memory", "32", "--in-place", "a.pdf"});
        QVERIFY2(reasonFor(run.err, "a.pdf").contains("memory"), run.err);
        QVERIFY(WorkFolder::contentOf("a.pdf") == original);
    }

    void replacesWorkersThatGetIntoTrouble()
    {
#if defined(__SANITIZE_ADDRESS__)
        const QStringList troubles{"crash", "hang"}; // workers have no memory limit under the sanitizer
#else
        const QStringList troubles{"crash", "hungry", "hang"};
#endif
        for (int number = 0; number < 200; ++number) {
            const int trouble = number % 40 == 7 ? number / 40 % troubles.size() : -1;
            const QString name = trouble < 0 ? "good" : troubles[trouble];
            put(QString("in/%1-%2.pdf").arg(number, 3, 10, QChar('0')).arg(name).toStdString());
        }
        const ProgramRun run(programBesideTrouble(path("installed")),
                             QStringList{"run", "--jobs", "3", "--timeout", "8", "--memory", "300", "-o",
                                         "out", "--report", "report", "in"} +
                                 panelAndPage,
                             m_folder->path());
        QCOMPARE(run.status, 1);
        QVERIFY2(run.out.endsWith("195 changed, 0 unchanged, 5 failed\n"), run.out.right(200));
        const QList<QJsonObject> lines = report();
        QCOMPARE(lines.size(), 200);
        for (int number = 0; number < 200; ++number) {
            const QString name = lines[number].value("file").toString();
            QVERIFY(name.startsWith(QString("in/%1-").arg(number, 3, 10, QChar('0'))));
            const QString wanted = name.contains("good") ? "changed" : "failed";
            QCOMPARE(lines[number].value("status").toString(), wanted);
            const QString reason = lines[number].value("reason").toString();
            QVERIFY2(!name.contains("crash") || reason.contains("crashed"), qPrintable(reason));
            QVERIFY2(!name.contains("hang") || reason.contains("longer than 8 s"), qPrintable(reason));
            QVERIFY2(!name.contains("hungry") || reason.contains("memory"), qPrintable(reason));
        }
    }

    void limitsHoldForReadingToo()
    {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("workers have no memory limit under the sanitizer");
#endif
        for (const char* name :
             {"in/1-good.pdf", "in/2-crash.pdf", "in/3-hungry.pdf", "in/4-hang.pdf", "in/5-good.pdf"})
            put(name);
        const ProgramRun run(programBesideTrouble(path("installed")),
                             {"show", "-j1", "--timeout", "1", "--memory", "300", "in"}, m_folder->path());
        QCOMPARE(run.status, 1);
        QVERIFY2(run.out.startsWith("in/1-good.pdf\n") && run.out.contains("in/5-good.pdf\n"), run.out);
        QCOMPARE(run.err,
                 QByteArray("quintar: in/2-crash.pdf: the worker process crashed on it: Aborted\n"
                            "quintar: in/3-hungry.pdf: the document needs more memory than there is\n"
                            "quintar: in/4-hang.pdf: it took longer than 1 s\n"));
    }

    void stopsWhenAsked()
    {
        for (const char* name : {"in/1-good.pdf", "in/2-hang.pdf", "in/3-late-hang.pdf", "in/4-good.pdf"})
            put(name);
        QProcess process;
        process.start(programBesideTrouble(path("installed")),
                      QStringList{"run", "--jobs", "2", "--in-place", "--report", "report", "in"} +
                          panelAndPage);
        QVERIFY(waitFor([] { return WorkFolder::contentOf("in/3-late-hang.pdf") != PdfBuilder::simple(); }));
        ::kill(pid_t(process.processId()), SIGINT);
        QTest::qWait(300);
        QCOMPARE(process.state(), QProcess::Running); // waits for the document in work
        ::kill(pid_t(process.processId()), SIGINT);
        QVERIFY(process.waitForFinished(10000));
        QCOMPARE(process.exitCode(), 130);
        const QByteArray err = process.readAllStandardError();
        QVERIFY2(err.contains("not done: in/2-hang.pdf\nnot done: in/4-good.pdf\n"), err);
        QVERIFY(process.readAllStandardOutput().endsWith(
            "2 changed, 0 unchanged, 0 failed, stopped with 2 not done\n"));
        QCOMPARE(report().size(), 2);
        QVERIFY(WorkFolder::contentOf("in/4-good.pdf") == PdfBuilder::simple());
    }

    // Between the rename and the answer a worker can end as at any other moment.
    void tellsWhatWasPutInPlaceLast_data()
    {
        const Rows<QString, QString> row;
        row("in place", "--in-place in", "in");
        row("to a folder", "-o out in", "out");
    }

    void tellsWhatWasPutInPlaceLast()
    {
        const auto [words, folder] = Rows<QString, QString>::current();
        for (const char* name : {"in/1-late-crash.pdf", "in/2-good.pdf"})
            put(name);
        const ProgramRun run(programBesideTrouble(path("installed")),
                             QStringList{"run", "--report", "report"} + words.split(' ') + panelAndPage,
                             m_folder->path());
        QVERIFY2(run.out.endsWith("2 changed, 0 unchanged, 0 failed\n"), run.err);
        const std::string changed = folder.toStdString() + "/1-late-crash.pdf";
        QVERIFY(QpdfReader(path(changed)).catalog().contains("/PageMode"));
        QJsonObject crashed = report()[0];
        QJsonObject good = report()[1];
        QVERIFY(crashed.take("note").toString().contains("crashed"));
        for (const char* state : {"fileState", "outputState"})
            QVERIFY(crashed.value(state).toString().contains(" bytes, "));
        for (const char* own : {"file", "output", "fileState", "outputState", "milliseconds"})
            QVERIFY(!crashed.take(own).isNull() && !good.take(own).isNull());
        QVERIFY(crashed.value("after").toObject().contains("openAction"));
        for (QJsonObject* line : {&crashed, &good})
            QCOMPARE(line->take("undo").isObject(), folder == "in");
        QCOMPARE(crashed, good);
    }

    // After a stop signal no document is begun, and one that takes long keeps no other waiting.
    void beginsNoDocumentTooLateOrTooEarly()
    {
        const auto start = [program = programBesideTrouble(path("installed"))](QProcess& process,
                                                                               const QStringList& options) {
            process.start(program, QStringList{"run"} + options + panelAndPage);
        };
        for (int number = 0; number < 60; ++number)
            put("in/" + std::to_string(100 + number) + (number == 30 ? "-hang.pdf" : "-good.pdf"));
        QProcess hanging;
        start(hanging, {"--jobs", "2", "-o", "out", "in"});
        const auto results = [] {
            const fs::directory_iterator entries("out");
            return std::count_if(begin(entries), end(entries), [](const fs::directory_entry& entry) {
                return entry.path().extension() == ".pdf";
            });
        };
        QVERIFY(waitFor([&] { return fs::exists("out") && results() == 59; }));
        hanging.kill();
        QVERIFY(hanging.waitForFinished());

        for (const char* name : {"few/1-good.pdf", "few/2-slow.pdf", "few/3-good.pdf", "few/4-good.pdf"})
            put(name);
        QProcess stopped;
        start(stopped, {"--jobs", "1", "--in-place", "--report", "report", "few"});
        QVERIFY(waitFor([] { return !report().isEmpty(); }));
        ::kill(pid_t(stopped.processId()), SIGTERM);
        QVERIFY(stopped.waitForFinished());
        QVERIFY(stopped.readAllStandardOutput().endsWith(
            "2 changed, 0 unchanged, 0 failed, stopped with 2 not done\n"));
    }

    // Killed at any moment, a run leaves every document whole; what it leaves behind goes with the next one.
    void leavesNothingBehindWhenKilled()
    {
        const std::string padding = std::string(20000, 'x');
        for (int round = 0; round < 12; ++round) {
            for (int number = 0; number < 40; ++number) {
                PdfBuilder builder;
                builder.catalog("").pages(2).stream(9, "", padding);
                put("in/" + std::to_string(number) + ".pdf", builder.bytes());
            }
            const std::string original = WorkFolder::contentOf("in/0.pdf");
            QProcess process;
            process.start(PROGRAM_FILE, QStringList{"run", "--in-place", "in"} + panelAndPage);
            QVERIFY(process.waitForStarted());
            QTest::qWait(5 * round);
            process.kill();
            // A quick run has ended by itself.
            QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished());
            const ProgramRun next = apply({"--in-place", "in"});
            QCOMPARE(next.status, 0);
            QCOMPARE(strays(), QStringList());
            for (int number = 0; number < 40; ++number) {
                const std::string name = "in/" + std::to_string(number) + ".pdf";
                QVERIFY(WorkFolder::contentOf(name).substr(0, original.size()) == original);
            }
            QVERIFY(QpdfReader(path("in/39.pdf")).catalog().contains("/PageMode"));
        }
    }

    void resumesWhereAReportEnds()
    {
        for (const char* name : {"in/a.pdf", "in/b.pdf", "in/c.pdf", "in/h\xf4tel.pdf"})
            put(name);
        put("in/bad.pdf", "bad");
        const QStringList toOut = QStringList{"run", "-o", "out", "in"} + panelAndPage;
        const auto resumed = [&](const QStringList& run, const char* to) {
            return quintar(run + QStringList{"--resume", "report", "--report", to});
        };
        const auto counts = [](const ProgramRun& run) {
            return run.out.split('\n').value(run.out.count('\n') - 1);
        };
        QCOMPARE(counts(resumed(toOut, "report")), QByteArray("4 changed, 0 unchanged, 1 failed"));

        put("in/a.pdf", PdfBuilder::simple("/PageMode /UseThumbs"));  // the document is another one
        fs::remove("out/b.pdf");                                      // the result is gone
        put("in/bad.pdf");                                            // what failed has been mended
        std::ofstream("report", std::ios::app) << "{\"file\":\"in/c"; // a run was killed here
        const ProgramRun second = resumed(toOut, "other");
        QCOMPARE(counts(second), QByteArray("3 changed, 0 unchanged, 0 failed, 2 done before"));
        QVERIFY2(!second.out.contains("in/c.pdf"), second.out);
        const QList<QJsonObject> other =
            ProgramRun::jsonLines(QByteArray::fromStdString(WorkFolder::contentOf("other")));
        QCOMPARE(other.size(), 7);
        QCOMPARE(other[4].value("file"), QJsonValue("in/c.pdf"));

        fs::remove("out/a.pdf");
        QCOMPARE(counts(resumed(toOut, "report")),
                 QByteArray("3 changed, 0 unchanged, 0 failed, 2 done before"));
        const ProgramRun last = resumed(toOut, "report");
        QCOMPARE(counts(last), QByteArray("0 changed, 0 unchanged, 0 failed, 5 done before"));
        QCOMPARE(last.status, 0);
        QCOMPARE(counts(resumed(QStringList{"run", "-o", "new", "in"} + panelAndPage, "other")),
                 QByteArray("5 changed, 0 unchanged, 0 failed"));

        const QStringList inPlace = QStringList{"run", "--in-place", "in"} + panelAndPage;
        QCOMPARE(quintar(inPlace + QStringList{"--report", "report"}).status, 0);
        QCOMPARE(counts(resumed(inPlace, "report")),
                 QByteArray("0 changed, 0 unchanged, 0 failed, 5 done before"));

        put("report", "no report\n");
        const ProgramRun refused = resumed(inPlace, "other");
        QCOMPARE(refused.status, 2);
        QVERIFY2(refused.err.contains("line 1 tells nothing of a document"), refused.err);
    }

    void refusesAReportThatAnotherRunWrites()
    {
        put("a.pdf");
        const std::string lines = put("report", "lines of another run\n");
        const int report = open("report", O_WRONLY | O_CLOEXEC);
        QCOMPARE(flock(report, LOCK_EX), 0);
        for (const QStringList& resume : {QStringList(), QStringList{"--resume", "report"}}) {
            const ProgramRun run = apply(QStringList{"-o", "out", "--report", "report", "a.pdf"} + resume);
            QCOMPARE(run.status, 2);
            QCOMPARE(run.err, QByteArray("quintar: the report report is being written by another run\n"));
            QVERIFY(WorkFolder::contentOf("report") == lines);
            QVERIFY(!fs::exists("out"));
        }
        close(report);
        QCOMPARE(apply({"-o", "out", "--report", "report", "a.pdf"}).status, 0);
    }

    void tellsWhatCouldNotBeKept()
    {
        if (geteuid() != 0)
            QSKIP("only root can have files that are not the user's own");
        put("d/a.pdf");
        QCOMPARE(chmod(".", 0711), 0);
        QCOMPARE(chown("d", 65534, 65534), 0);
        const ProgramRun run("setpriv",
                             QStringList{"--reuid=65534", "--regid=65534", "--clear-groups", PROGRAM_FILE,
                                         "run", "--in-place", "--report", "d/report", "d/a.pdf"} +
                                 panelAndPage,
                             m_folder->path());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray("note: d/a.pdf: could not be kept: owner, group\n"));
        QVERIFY(WorkFolder::contentOf("d/report").find("\"note\":\"could not be kept: owner, group\"") !=
                std::string::npos);
    }

    void showsHowDocumentsOpen()
    {
        put("a.pdf", PdfBuilder::simple(
                         "/PageMode /UseOC /PageLayout /TwoPageRight /OpenAction [ 4 0 R /XYZ 0 792 1.5 ] "
                         "/ViewerPreferences << /HideToolbar true /NonFullScreenPageMode /UseThumbs >>"));
        put("plain.pdf");
        const ProgramRun words = quintar({"show", "a.pdf", "plain.pdf"});
        QCOMPARE(words.status, 0);
        for (const char* line :
             {"a.pdf\n  Pages                          3\n",
              "  Navigation tab                 Conten Group Panel and Page\n",
              "  Page layout                    Two pages, odd-numbered pages on the right\n",
              "  Magnification                  150%\n  Open to page                   2\n",
              "  Hide tool bars                 yes\n  Hide menu bar                  no\n",
              "  After full screen              Pages Panel and Page\n",
              "  Page layout                    No preference set in document\n",
              "  Open to page                   not set in document\n"})
            QVERIFY2(words.out.contains(line), words.out);
        const ProgramRun json = quintar({"show", "--json", "a.pdf", "missing.pdf", "plain.pdf"});
        QCOMPARE(json.status, 1);
        QVERIFY2(json.err.contains("missing.pdf: no such file"), json.err);
        const QList<QJsonObject> objects = ProgramRun::jsonLines(json.out);
        QCOMPARE(objects.size(), 2);
        QCOMPARE(objects[0].value("pageMode"), QJsonValue("UseOC"));
        QCOMPARE(objects[0].value("pageLayout"), QJsonValue("TwoPageRight"));
        QCOMPARE(objects[0].value("openAction").toObject().value("page").toInt(), 2);
        QCOMPARE(objects[0].value("openAction").toObject().value("zoom").toDouble(), 150.0);
        QCOMPARE(objects[0].value("viewerPreferences").toObject().value("HideToolbar").toBool(), true);
        QVERIFY(objects[1].value("openAction").isNull() && objects[1].value("pageLayout").isNull());
    }

private:
    static std::string put(const std::string& name, const std::string& bytes = PdfBuilder::simple())
    {
        return WorkFolder::put(name, bytes);
    }

    QString path(const std::string& name) const
    {
        return m_folder->path(name);
    }

    ProgramRun quintar(const QStringList& arguments, const QByteArray& input = QByteArray()) const
    {
        return ProgramRun(PROGRAM_FILE, arguments, m_folder->path(), input);
    }

    /// Changes documents to bookmarks, one column, and page 2 as a whole.
    ProgramRun apply(const QStringList& arguments) const
    {
        return quintar(QStringList{"run"} + arguments + panelAndPage);
    }

    void putList(const QList<QVariantMap>& entries) const
    {
        QSettings list("list.xqq", QSettings::IniFormat);
        for (int number = 0; number < entries.size(); ++number) {
            list.setValue(QString("ActionName%1").arg(number), "Initial View");
            list.setValue(QString("ActionPrefs%1").arg(number), entries[number]);
        }
    }

    /// What became of the documents.
    static QList<QJsonObject> report()
    {
        QList<QJsonObject> lines =
            ProgramRun::jsonLines(QByteArray::fromStdString(WorkFolder::contentOf("report")));
        const auto isOfNoResult = [](const QJsonObject& line) {
            return line.value("status") == "begun" || line.contains("event");
        };
        lines.erase(std::remove_if(lines.begin(), lines.end(), isOfNoResult), lines.end());
        return lines;
    }

    /// Temporary files that should have gone.
    QStringList strays() const
    {
        QStringList found;
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator("."))
            if (entry.path().filename().string().find(".quintar-") != std::string::npos)
                found += QString::fromStdString(entry.path().string());
        return found;
    }

    bool waitFor(const std::function<bool()>& condition) const
    {
        for (int attempt = 0; attempt < 500 && !condition(); ++attempt)
            QTest::qWait(20);
        return condition();
    }

    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestQuintarRun)
#include "TestQuintarRun.moc"
