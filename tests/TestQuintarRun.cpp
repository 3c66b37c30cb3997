// Runs the program as a user does, and has its documents confirmed by another reader.
#include "support/PdfBuilder.h"
#include "support/ProgramRun.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const QStringList panelAndPage{"--set", "LayoutAndMagnCheckBox=true",
                               "--set", "NavigationTabComboBox=1",
                               "--set", "PageLayoutComboBox=One Column",
                               "--set", "MagnificationComboBox=1",
                               "--set", "OpenToPageSpinBox=2"};

std::string contentOf(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::string encrypted(const std::string& plain, const QStringList& options)
{
    const QTemporaryDir folder;
    const QString in = folder.filePath("in.pdf");
    std::ofstream(in.toStdString(), std::ios::binary) << plain;
    const ProgramRun run("qpdf", QStringList{in} + options + QStringList{"--", folder.filePath("out.pdf")});
    return run.status == 0 ? contentOf(folder.filePath("out.pdf").toStdString()) : std::string();
}

std::string signedDocument()
{
    PdfBuilder builder;
    builder.catalog("/AcroForm << /SigFlags 3 /Fields [ 8 0 R ] >>").pages(2);
    builder.object(8, "<< /FT /Sig /T (Signature) /V 9 0 R >>");
    builder.object(9, "<< /Type /Sig /Filter /Adobe.PPKLite /ByteRange [ 0 10 20 30 ] /Contents <00> >>");
    return builder.bytes();
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
    void init();
    void cleanup();
    void appliesAnActionListToAFolder();
    void appliesEntriesInTheirOrder();
    void changesInPlace();
    void leavesAloneWhatNeedsNoChange();
    void goesOnBehindBadDocuments();
    void refusesBeforeAnythingIsWritten_data();
    void refusesBeforeAnythingIsWritten();
    void guardsSignedDocuments();
    void guardsEncryptedDocuments();
    void writesNothingInADryRun();
    void takesNamesOfAnyBytes();
    void printsNothingThatATerminalObeys();
    void survivesAFullDisk();
    void survivesAReadOnlyFolder();
    void survivesAFullReport();
    void livesWithWhatTheShellGives();
    void refusesWhatChangedMeanwhile();
    void losesNothingForWantOfMemory();
    void replacesWorkersThatGetIntoTrouble();
    void stopsWhenAsked();
    void leavesNothingBehindWhenKilled();
    void resumesWhereAReportEnds();
    void showsHowDocumentsOpen();

private:
    std::string put(const std::string& name, const std::string& bytes = PdfBuilder::simple()) const;
    QString path(const std::string& name) const { return m_folder->filePath(QString::fromStdString(name)); }
    ProgramRun quintar(const QStringList& arguments, const QByteArray& input = QByteArray()) const;
    QList<QJsonObject> report() const;
    QStringList strays() const;
    QString programWithTroubledLibrary() const;
    bool waitFor(const std::function<bool()>& condition) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestQuintarRun::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    fs::current_path(m_folder->path().toStdString());
}

void TestQuintarRun::cleanup()
{
    QCOMPARE(strays(), QStringList());
    fs::current_path("/");
    fs::remove_all(m_folder->path().toStdString()); // names that are no text are beyond QTemporaryDir
    m_folder.reset();
}

std::string TestQuintarRun::put(const std::string& name, const std::string& bytes) const
{
    if (const fs::path folder = fs::path(name).parent_path(); !folder.empty())
        fs::create_directories(folder);
    std::ofstream(name, std::ios::binary) << bytes;
    return bytes;
}

ProgramRun TestQuintarRun::quintar(const QStringList& arguments, const QByteArray& input) const
{
    return ProgramRun(PROGRAM_FILE, arguments, m_folder->path(), input);
}

QList<QJsonObject> TestQuintarRun::report() const
{
    return ProgramRun::jsonLines(QByteArray::fromStdString(contentOf("report")));
}

/// Temporary files that should have gone.
QStringList TestQuintarRun::strays() const
{
    QStringList found;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator("."))
        if (entry.path().filename().string().find(".quintar-") != std::string::npos)
            found += QString::fromStdString(entry.path().string());
    return found;
}

/// A copy of the program beside a library that crashes, hangs or eats memory when a document's name says so.
QString TestQuintarRun::programWithTroubledLibrary() const
{
    const std::string modules = path("installed/lib/quintar").toStdString();
    fs::create_directories(path("installed/bin").toStdString());
    fs::create_directories(modules);
    fs::copy_file(PROGRAM_FILE, path("installed/bin/quintar").toStdString());
    fs::create_symlink(PLUGIN_FILE, modules + "/EditInitialView.so");
    fs::create_symlink(TROUBLED_ENGINE_FILE, modules + "/TelvarPDFLibraryCPDylib1311.dylib");
    return path("installed/bin/quintar");
}

bool TestQuintarRun::waitFor(const std::function<bool()>& condition) const
{
    for (int attempt = 0; attempt < 500 && !condition(); ++attempt)
        QTest::qWait(20);
    return condition();
}

void TestQuintarRun::appliesAnActionListToAFolder()
{
    const std::string original = put("in/a.pdf");
    put("in/deep/b.PDF",
        PdfBuilder::simple("/PageMode /UseThumbs /ViewerPreferences << /HideMenubar true >>"));
    put("in/notes.txt");
    QSettings list("list.xqq", QSettings::IniFormat);
    list.setValue("SequenceName", "List");
    list.setValue("ActionName0", "Initial View");
    list.setValue("ActionPrefs0", QVariantMap{{"LayoutAndMagnCheckBox", true},
                                              {"NavigationTabComboBox", 4},
                                              {"PageLayoutComboBox", 2},
                                              {"MagnificationComboBox", 8},
                                              {"OpenToPageSpinBox", 3},
                                              {"ViewerPrefsCheckBox", true},
                                              {"HideToobarsCheckBox", true},
                                              {"OpenInFullScreenCheckBox", true},
                                              {"ShowComboBox", 1}});
    list.sync();
    const ProgramRun run =
        quintar({"run", "--list", "list.xqq", "-o", "new/out", "--report", "report", "in"});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    QVERIFY2(run.out.endsWith("2 changed, 0 unchanged, 0 failed\n"), run.out);
    QVERIFY(contentOf("in/a.pdf") == original);
    for (const char* name : {"new/out/a.pdf", "new/out/deep/b.PDF"}) {
        const QpdfReader reader(path(name));
        const QJsonObject catalog = reader.catalog();
        QCOMPARE(catalog.value("/PageMode").toString(), QString("/FullScreen"));
        QCOMPARE(catalog.value("/PageLayout").toString(), QString("/TwoColumnLeft"));
        const QJsonObject preferences = reader.resolved(catalog.value("/ViewerPreferences")).toObject();
        QCOMPARE(preferences.value("/HideToolbar"), QJsonValue(true));
        QCOMPARE(preferences.value("/HideMenubar").toBool(), false);
        QCOMPARE(preferences.value("/DisplayDocTitle"), QJsonValue(true));
        QCOMPARE(preferences.value("/NonFullScreenPageMode").toString(), QString("/UseAttachments"));
    }
    const QList<QJsonObject> lines = report();
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0].value("file").toString(), QString("in/a.pdf"));
    QVERIFY(lines[0].value("output").toString().endsWith("/new/out/a.pdf"));
    QCOMPARE(lines[0].value("status").toString(), QString("changed"));
    QCOMPARE(lines[0].value("saved").toString(), QString("appended"));
    QVERIFY(lines[0].value("reason").isNull());
    QVERIFY(lines[0].value("milliseconds").isDouble());
}

void TestQuintarRun::appliesEntriesInTheirOrder()
{
    put("a.pdf");
    QSettings list("list.xqq", QSettings::IniFormat);
    const QVariantMap first{{"LayoutAndMagnCheckBox", true},
                            {"NavigationTabComboBox", 1},
                            {"PageLayoutComboBox", 5},
                            {"OpenToPageSpinBox", 1}};
    QVariantMap second = first;
    second["PageLayoutComboBox"] = 3;
    for (const auto& [number, settings] : {std::pair(0, first), std::pair(1, second)}) {
        list.setValue(QString("ActionName%1").arg(number), "Initial View");
        list.setValue(QString("ActionPrefs%1").arg(number), settings);
    }
    list.sync();
    QCOMPARE(quintar({"run", "--list", "list.xqq", "-o", "out", "a.pdf"}).status, 0);
    QCOMPARE(QpdfReader(path("out/a.pdf")).catalog().value("/PageLayout").toString(),
             QString("/TwoColumnRight"));
}

void TestQuintarRun::changesInPlace()
{
    const std::string original = put("real/a.pdf");
    QCOMPARE(chmod("real/a.pdf", 0640), 0);
    fs::create_symlink("real/a.pdf", "link.pdf");
    fs::create_hard_link("real/a.pdf", "kept.pdf");
    const ProgramRun run = quintar(QStringList{"run", "--in-place"} + panelAndPage + QStringList{"link.pdf"});
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(run.status, 0);
    QVERIFY(fs::is_symlink("link.pdf"));
    QCOMPARE(fs::read_symlink("link.pdf").string(), std::string("real/a.pdf"));
    QCOMPARE(int(fs::status("real/a.pdf").permissions()), 0640);
    QVERIFY(contentOf("kept.pdf") == original);
    QVERIFY(contentOf("real/a.pdf").substr(0, original.size()) == original);
    const QpdfReader reader(path("real/a.pdf"));
    QCOMPARE(reader.catalog().value("/PageMode").toString(), QString("/UseOutlines"));
    QCOMPARE(reader.resolved(reader.catalog().value("/OpenAction")).toArray().at(1).toString(),
             QString("/Fit"));
}

void TestQuintarRun::leavesAloneWhatNeedsNoChange()
{
    put("a.pdf");
    QCOMPARE(quintar(QStringList{"run", "-o", "out"} + panelAndPage + QStringList{"a.pdf"}).status, 0);
    const std::string changed = contentOf("out/a.pdf");
    struct stat before;
    struct stat after;
    QCOMPARE(stat("out/a.pdf", &before), 0);
    const ProgramRun inPlace =
        quintar(QStringList{"run", "--in-place", "--report", "report"} + panelAndPage + QStringList{"out"});
    QVERIFY2(inPlace.out.endsWith("0 changed, 1 unchanged, 0 failed\n"), inPlace.out);
    QCOMPARE(stat("out/a.pdf", &after), 0);
    QCOMPARE(after.st_ino, before.st_ino);
    QCOMPARE(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    QVERIFY(report()[0].value("saved").isNull());

    QCOMPARE(quintar(QStringList{"run", "-o", "copies", "--report", "report"} + panelAndPage +
                     QStringList{"out/a.pdf"})
                 .status,
             0);
    QVERIFY(contentOf("copies/a.pdf") == changed);
    QCOMPARE(report()[0].value("status").toString(), QString("unchanged"));
    QCOMPARE(report()[0].value("saved").toString(), QString("copied"));
}

void TestQuintarRun::goesOnBehindBadDocuments()
{
    put("good.pdf");
    put("empty.pdf", "");
    put("text.pdf", "This is no PDF document.\n");
    put("locked.pdf", encrypted(PdfBuilder::simple(), {"--encrypt", "user", "owner", "256"}));
    put("forbidden/x.pdf");
    QCOMPARE(mkfifo("fifo.pdf", 0600), 0);
    QCOMPARE(chmod("forbidden", 0), 0);
    const ProgramRun run =
        quintar(QStringList{"run", "-o", "out", "--report", "report", "--password", "wrong"} + panelAndPage +
                QStringList{"missing.pdf", "empty.pdf", "text.pdf", "locked.pdf", "fifo.pdf", "forbidden",
                            "good.pdf"});
    chmod("forbidden", 0700);
    QCOMPARE(run.status, 1);
    QCOMPARE(reasonFor(run.err, "missing.pdf"), QString("no such file or directory"));
    QCOMPARE(reasonFor(run.err, "empty.pdf"), QString("the file is empty"));
    QCOMPARE(reasonFor(run.err, "text.pdf"), QString("not a PDF document"));
    QVERIFY(reasonFor(run.err, "locked.pdf").contains("password"));
    QCOMPARE(reasonFor(run.err, "fifo.pdf"), QString("not a regular file"));
    if (geteuid() != 0)
        QCOMPARE(reasonFor(run.err, "forbidden"), QString("permission denied"));
    QStringList outputs;
    for (const fs::directory_entry& entry : fs::directory_iterator("out"))
        outputs += QString::fromStdString(entry.path().filename().string());
    outputs.sort();
    QVERIFY(outputs.contains("good.pdf") && outputs.size() <= 2); // root reads the forbidden folder
    const QList<QJsonObject> lines = report();
    QCOMPARE(lines.size(), 7);
    QCOMPARE(lines[1].value("file").toString(), QString("empty.pdf"));
    QCOMPARE(lines[1].value("status").toString(), QString("failed"));
    QCOMPARE(lines[1].value("reason").toString(), QString("the file is empty"));
    QVERIFY(lines[1].value("output").isNull());
    QCOMPARE(lines[6].value("status").toString(), QString("changed"));
}

void TestQuintarRun::refusesBeforeAnythingIsWritten_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("named");
    const auto row = [](const char* name, const QStringList& arguments, const char* named) {
        QTest::newRow(name) << arguments << QByteArray(named);
    };
    const QStringList set{"--set", "LayoutAndMagnCheckBox=1"};
    row("no command", {}, "which command");
    row("unknown command", {"walk"}, "\"walk\"");
    row("unknown option", QStringList{"run", "--fast", "-o", "out", "a.pdf"} + set, "--fast");
    row("missing value", QStringList{"run", "a.pdf"} + set + QStringList{"-o"}, "-o needs a value");
    row("no settings", {"run", "-o", "out", "a.pdf"}, "--set");
    row("two sources", QStringList{"run", "-o", "out", "--list", "x.xqq", "a.pdf"} + set, "one source");
    row("no target", QStringList{"run", "a.pdf"} + set, "-o DIR");
    row("two targets", QStringList{"run", "-o", "out", "--in-place", "a.pdf"} + set, "exclude");
    row("no documents", QStringList{"run", "-o", "out"} + set, "which documents");
    row("output is a file", QStringList{"run", "-o", "a.pdf", "sub/a.pdf"} + set, "not a folder");
    row("unknown key", {"run", "-o", "out", "--set", "Colour=1", "a.pdf"}, "HideMenuBarCheckBox");
    row("value out of range", {"run", "-o", "out", "--set", "ShowComboBox=2", "a.pdf"}, "1  Document Title");
    row("settings file missing", {"run", "-o", "out", "--favorite", "no.ini", "a.pdf"},
        "no.ini: no such file");
    row("settings file damaged", {"run", "-o", "out", "--tool-settings", "bad.tsf", "a.pdf"}, "bad.tsf: ");
    row("a PDF as settings", {"run", "-o", "out", "--list", "a.pdf", "a.pdf"}, "not an action list");
    row("same output", QStringList{"run", "-o", "out", "a.pdf", "sub/a.pdf"} + set, "same output");
    row("overwrites an input", QStringList{"run", "-o", ".", "a.pdf"} + set, "would overwrite");
    row("report over an input", QStringList{"run", "-o", "out", "--report", "a.pdf", "a.pdf"} + set,
        "report");
    row("report nowhere", QStringList{"run", "-o", "out", "--report", "no/r", "a.pdf"} + set, "no/r");
    row("no password file", QStringList{"run", "-o", "out", "--password-file", "no", "a.pdf"} + set,
        "no cannot");
    row("number of jobs", QStringList{"run", "-o", "out", "--jobs", "0", "a.pdf"} + set, "1 to 1024");
    row("signed", QStringList{"run", "-o", "out", "--signed", "maybe", "a.pdf"} + set, "refuse or append");
    row("null without list", QStringList{"run", "-o", "out", "--null", "a.pdf"} + set, "--files-from");
    row("empty name", QStringList{"run", "-o", "out", ""} + set, "empty");
}

void TestQuintarRun::refusesBeforeAnythingIsWritten()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, named);
    const std::string original = put("a.pdf");
    put("sub/a.pdf");
    put("bad.tsf", "[General]\nToolSettings=@Variant(\\0\\0\\0\\b\\0\\0");
    const ProgramRun run = quintar(arguments);
    QCOMPARE(run.status, 2);
    QVERIFY2(run.err.contains(named), run.err);
    QVERIFY(contentOf("a.pdf") == original);
    QVERIFY(!fs::exists("out") || fs::is_empty("out"));
}

void TestQuintarRun::guardsSignedDocuments()
{
    const std::string original = put("signed.pdf", signedDocument());
    const ProgramRun refused = quintar(QStringList{"run", "-o", "out", "signed.pdf"} + panelAndPage);
    QCOMPARE(refused.status, 1);
    QVERIFY2(reasonFor(refused.err, "signed.pdf").startsWith("it is signed"), refused.err);
    QVERIFY(!fs::exists("out/signed.pdf"));
    const ProgramRun appended =
        quintar(QStringList{"run", "--signed", "append", "-o", "out", "signed.pdf"} + panelAndPage);
    QCOMPARE(appended.status, 0);
    const std::string result = contentOf("out/signed.pdf");
    QVERIFY(result.size() > original.size() && result.substr(0, original.size()) == original);
}

void TestQuintarRun::guardsEncryptedDocuments()
{
    put("locked.pdf",
        encrypted(PdfBuilder::simple(), {"--encrypt", "us\u00e9r", "owner", "256", "--modify=none"}));
    put("plain.pdf");
    const ProgramRun user = quintar(
        QStringList{"run", "-o", "out", "--password", "us\u00e9r", "plain.pdf", "locked.pdf"} + panelAndPage);
    QCOMPARE(user.status, 1);
    QVERIFY2(reasonFor(user.err, "locked.pdf").contains("owner password"), user.err);
    QVERIFY(fs::exists("out/plain.pdf"));
    put("password", "owner\nsecond line\n");
    const ProgramRun owner =
        quintar(QStringList{"run", "-o", "out", "--password-file", "password", "locked.pdf"} + panelAndPage);
    QCOMPARE(owner.err, QByteArray());
    QCOMPARE(QpdfReader(path("out/locked.pdf"), "us\u00e9r").catalog().value("/PageMode").toString(),
             QString("/UseOutlines"));
}

void TestQuintarRun::writesNothingInADryRun()
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
    QVERIFY2(run.out.contains("would change  in/a.pdf\n"), run.out);
    QVERIFY2(run.out.endsWith("2 would change, 0 unchanged, 2 failed\n"), run.out);
    QVERIFY(!fs::exists("out"));
    const ProgramRun inPlace = quintar(QStringList{"run", "--dry-run", "--in-place", "in"} + settings);
    QCOMPARE(inPlace.status, 1);
    QVERIFY(contentOf("in/a.pdf") == original);
    QCOMPARE(report()[0].value("status").toString(), QString("changed"));
    QVERIFY(report()[0].value("saved").isNull());
}

void TestQuintarRun::takesNamesOfAnyBytes()
{
    const std::string odd = "h\xf4tel \"x\".pdf";
    const std::string lines = "two\nlines.pdf";
    put(odd);
    put(lines);
    put("-o.pdf");
    put("[a,b]/show.pdf");
    const QByteArray list = QByteArray::fromStdString(odd + '\0' + lines + '\0' + "./-o.pdf" + '\0');
    const ProgramRun run =
        quintar(QStringList{"run", "-o", "out", "--report", "report", "--files-from", "-", "--null"} +
                    panelAndPage + QStringList{"--", "-o.pdf"},
                list + "[a,b]");
    QCOMPARE(run.status, 2); // -o.pdf is there twice
    const ProgramRun again =
        quintar(QStringList{"run", "-o", "out", "--report", "report", "--files-from", "-", "--null"} +
                    panelAndPage + QStringList{"--", "[a,b]"},
                list);
    QCOMPARE(again.err, QByteArray());
    QCOMPARE(again.status, 0);
    for (const std::string& name : {odd, lines, std::string("-o.pdf"), std::string("show.pdf")})
        QVERIFY2(fs::exists("out/" + name), name.c_str());
    const QList<QJsonObject> reported = report();
    QCOMPARE(reported.size(), 4);
    QCOMPARE(reported[1].value("fileBytes").toString(), QString("h%F4tel%20%22x%22.pdf"));
    QCOMPARE(reported[2].value("file").toString(), QString::fromStdString(lines));
    QVERIFY(!reported[2].contains("fileBytes"));
}

void TestQuintarRun::printsNothingThatATerminalObeys()
{
    put("in/\x1b]0;owned\x07\x1b[31m.pdf", "bad");
    put("in/\xc2\x9b"
        "31m\xe2\x80\xae.pdf");
    const ProgramRun run = quintar(QStringList{"run", "-o", "out", "in"} + panelAndPage);
    QCOMPARE(run.status, 1);
    for (const char* part : {"\x1b", "\x07", "\xc2\x9b", "\xe2\x80\xae"})
        QVERIFY(!run.out.contains(part) && !run.err.contains(part));
    QVERIFY2(run.err.contains("\\x1b]0;owned\\x07"), run.err);
}

void TestQuintarRun::survivesAFullDisk()
{
    fs::create_directories("disk");
    if (ProgramRun("mount", {"-t", "tmpfs", "-o", "size=128k", "tmpfs", path("disk")}).status != 0)
        QSKIP("no file system can be mounted here");
    const auto unmount = qScopeGuard([this] { ProgramRun("umount", {"-l", path("disk")}); });
    const std::string padding = std::string(100000, 'x');
    PdfBuilder builder;
    builder.catalog("").pages(2).stream(9, "", padding);
    const std::string original = put("disk/a.pdf", builder.bytes());
    for (const QStringList& target : {QStringList{"--in-place"}, QStringList{"-o", "disk/out"}}) {
        const ProgramRun run =
            quintar(QStringList{"run"} + target + panelAndPage + QStringList{"disk/a.pdf"});
        QCOMPARE(run.status, 1);
        QVERIFY2(reasonFor(run.err, "disk/a.pdf").contains("no space left"), run.err);
        QVERIFY(contentOf("disk/a.pdf") == original);
        QVERIFY(!fs::exists("disk/out/a.pdf"));
        QCOMPARE(strays(), QStringList());
    }
}

void TestQuintarRun::survivesAReadOnlyFolder()
{
    if (geteuid() == 0)
        QSKIP("nothing is read-only for root");
    const std::string original = put("in/a.pdf");
    QCOMPARE(chmod("in", 0500), 0);
    const ProgramRun run = quintar(QStringList{"run", "--in-place", "in/a.pdf"} + panelAndPage);
    chmod("in", 0700);
    QCOMPARE(run.status, 1);
    QVERIFY2(reasonFor(run.err, "in/a.pdf").contains("permission denied"), run.err);
    QVERIFY(contentOf("in/a.pdf") == original);
}

void TestQuintarRun::survivesAFullReport()
{
    put("a.pdf");
    const ProgramRun run =
        quintar(QStringList{"run", "-o", "out", "--report", "/dev/full", "a.pdf"} + panelAndPage);
    QCOMPARE(run.status, 1);
    QVERIFY2(run.err.contains("the report /dev/full is incomplete: no space left on device"), run.err);
    QVERIFY(fs::exists("out/a.pdf"));
}

// Closed streams, few descriptors, a folder that has gone, and signals that a parent ignores.
void TestQuintarRun::livesWithWhatTheShellGives()
{
    for (int number = 0; number < 20; ++number)
        put("in/" + std::to_string(number) + ".pdf");
    const auto shell = [&](const QString& script, const QStringList& arguments) {
        return ProgramRun("sh", QStringList{"-c", script, PROGRAM_FILE} + arguments, m_folder->path());
    };
    const QStringList run = QStringList{"run", "--report", "out/report", "--jobs", "20", "in"} + panelAndPage;
    const QStringList toOut = run + QStringList{"-o", "out"};
    QCOMPARE(shell("exec \"$0\" \"$@\" <&- >&- 2>&-", toOut).status, 0);
    QCOMPARE(contentOf("out/report").find("20 changed"), std::string::npos);
    QCOMPARE(shell("ulimit -n 16; exec \"$0\" \"$@\"", toOut).status, 0);
    const ProgramRun gone = shell("mkdir x; cd x; rmdir ../x; exec \"$0\" \"$@\"",
                                  QStringList{"run", "-o", "out", path("in")} + panelAndPage);
    QCOMPARE(gone.status, 2);
    const ProgramRun full = shell("exec \"$0\" \"$@\" >/dev/full", {"show", "in/1.pdf"});
    QCOMPARE(full.status, 1);
    QVERIFY2(full.err.contains("no space left"), full.err);

    put("1-hang.pdf");
    put("2-good.pdf");
    const QString program = programWithTroubledLibrary();
    QProcess process;
    process.start("sh", QStringList{"-c", "trap '' HUP; exec \"$0\" \"$@\"", program, "run", "--jobs", "1",
                                    "--timeout", "2", "--report", "report", "--in-place", "1-hang.pdf",
                                    "2-good.pdf"} +
                            panelAndPage);
    QVERIFY(waitFor([] { return fs::exists("report"); }));
    QTest::qWait(200);
    ::kill(pid_t(process.processId()), SIGHUP);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(contentOf("2-good.pdf") != PdfBuilder::simple());
}

void TestQuintarRun::refusesWhatChangedMeanwhile()
{
    for (const QStringList& target : {QStringList{"--in-place"}, QStringList{"-o", "out"}}) {
        put("replaced.pdf");
        const std::string newer = put("newer", PdfBuilder::simple("/PageMode /UseThumbs"));
        const ProgramRun run(programWithTroubledLibrary(),
                             QStringList{"run", "replaced.pdf"} + target + panelAndPage, m_folder->path());
        QVERIFY2(reasonFor(run.err, "replaced.pdf").contains("changed by another program"), run.err);
        QVERIFY(contentOf("replaced.pdf") == newer);
        QVERIFY(!fs::exists("out/replaced.pdf"));
        fs::remove_all("installed");
    }
}

void TestQuintarRun::losesNothingForWantOfMemory()
{
#if defined(__SANITIZE_ADDRESS__)
    QSKIP("workers have no memory limit under the sanitizer");
#endif
    PdfBuilder builder;
    builder.catalog("/Kept 9 0 R").pages(2).object(9, "(" + std::string(20 << 20, 'x') + ")");
    const std::string damaged = builder.bytes() + "10 0 obj\nnull\nendobj\n" + std::string(5000, '\n');
    const std::string original = put("a.pdf", damaged);
    const ProgramRun run =
        quintar(QStringList{"run", "--memory", "32", "--in-place", "a.pdf"} + panelAndPage);
    QVERIFY2(reasonFor(run.err, "a.pdf").contains("memory"), run.err);
    QVERIFY(contentOf("a.pdf") == original);
}

void TestQuintarRun::replacesWorkersThatGetIntoTrouble()
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
    const ProgramRun run(programWithTroubledLibrary(),
                         QStringList{"run", "--jobs", "3", "--timeout", "8", "--memory", "300", "-o", "out",
                                     "--report", "report", "in"} +
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

void TestQuintarRun::stopsWhenAsked()
{
    for (const char* name : {"in/1-good.pdf", "in/2-hang.pdf", "in/3-good.pdf"})
        put(name);
    QProcess process;
    process.start(programWithTroubledLibrary(),
                  QStringList{"run", "--jobs", "1", "--in-place", "--report", "report", "in"} + panelAndPage);
    QVERIFY(waitFor([] { return fs::exists("report") && fs::file_size("report") > 0; }));
    ::kill(pid_t(process.processId()), SIGINT);
    QTest::qWait(300);
    QCOMPARE(process.state(), QProcess::Running); // waits for the document in work
    ::kill(pid_t(process.processId()), SIGINT);
    QVERIFY(process.waitForFinished(10000));
    QCOMPARE(process.exitCode(), 130);
    const QByteArray err = process.readAllStandardError();
    QVERIFY2(err.contains("not done: in/2-hang.pdf\nnot done: in/3-good.pdf\n"), err);
    QVERIFY(process.readAllStandardOutput().endsWith(
        "1 changed, 0 unchanged, 0 failed, stopped with 2 not done\n"));
    QCOMPARE(report().size(), 1);
    QVERIFY(contentOf("in/3-good.pdf") == PdfBuilder::simple());
}

// Killed at any moment, a run leaves every document whole; what it leaves behind goes with the next one.
void TestQuintarRun::leavesNothingBehindWhenKilled()
{
    const std::string padding = std::string(20000, 'x');
    for (int round = 0; round < 12; ++round) {
        for (int number = 0; number < 40; ++number) {
            PdfBuilder builder;
            builder.catalog("").pages(2).stream(9, "", padding);
            put("in/" + std::to_string(number) + ".pdf", builder.bytes());
        }
        const std::string original = contentOf("in/0.pdf");
        QProcess process;
        process.start(PROGRAM_FILE, QStringList{"run", "--in-place", "in"} + panelAndPage);
        QVERIFY(process.waitForStarted());
        QTest::qWait(5 * round);
        process.kill();
        // A quick run has ended by itself.
        QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished());
        const ProgramRun next = quintar(QStringList{"run", "--in-place", "in"} + panelAndPage);
        QCOMPARE(next.status, 0);
        QCOMPARE(strays(), QStringList());
        for (int number = 0; number < 40; ++number) {
            const std::string name = "in/" + std::to_string(number) + ".pdf";
            QVERIFY(contentOf(name).substr(0, original.size()) == original);
        }
        QVERIFY(QpdfReader(path("in/39.pdf")).catalog().contains("/PageMode"));
    }
}

void TestQuintarRun::resumesWhereAReportEnds()
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
    const QList<QJsonObject> other = ProgramRun::jsonLines(QByteArray::fromStdString(contentOf("other")));
    QCOMPARE(other.size(), 5);
    QCOMPARE(other[3].value("file").toString(), QString("in/c.pdf"));

    fs::remove("out/a.pdf");
    QCOMPARE(counts(resumed(toOut, "report")), QByteArray("3 changed, 0 unchanged, 0 failed, 2 done before"));
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

void TestQuintarRun::showsHowDocumentsOpen()
{
    put("a.pdf",
        PdfBuilder::simple("/PageMode /UseOC /PageLayout /TwoPageRight /OpenAction [ 4 0 R /XYZ 0 792 1.5 ] "
                           "/ViewerPreferences << /HideToolbar true /NonFullScreenPageMode /UseThumbs >>"));
    put("plain.pdf");
    const ProgramRun words = quintar({"show", "a.pdf", "plain.pdf"});
    QCOMPARE(words.status, 0);
    for (const char* line :
         {"a.pdf\n  Pages                 3\n", "  Navigation tab        Conten Group Panel and Page\n",
          "  Page layout           Two pages, odd-numbered pages on the right\n",
          "  Open at page          2\n  Magnification         150%\n",
          "  Hide tool bars        yes\n  Hide menu bar         no\n",
          "  After full screen     Pages Panel and Page\n",
          "  Page layout           No preference set in document\n",
          "  Open at page          not set in document\n"})
        QVERIFY2(words.out.contains(line), words.out);
    const ProgramRun json = quintar({"show", "--json", "a.pdf", "missing.pdf", "plain.pdf"});
    QCOMPARE(json.status, 1);
    QVERIFY2(json.err.contains("missing.pdf: no such file"), json.err);
    const QList<QJsonObject> objects = ProgramRun::jsonLines(json.out);
    QCOMPARE(objects.size(), 2);
    QCOMPARE(objects[0].value("pageMode").toString(), QString("UseOC"));
    QCOMPARE(objects[0].value("pageLayout").toString(), QString("TwoPageRight"));
    QCOMPARE(objects[0].value("openAction").toObject().value("page").toInt(), 2);
    QCOMPARE(objects[0].value("openAction").toObject().value("zoom").toDouble(), 150.0);
    QCOMPARE(objects[0].value("viewerPreferences").toObject().value("HideToolbar").toBool(), true);
    QVERIFY(objects[1].value("openAction").isNull() && objects[1].value("pageLayout").isNull());
}

QTEST_GUILESS_MAIN(TestQuintarRun)
#include "TestQuintarRun.moc"
