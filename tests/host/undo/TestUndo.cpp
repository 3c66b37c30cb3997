#include "host/cli/UndoCommand.h"
#include "host/files/Checksum.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/FileStatus.h"
#include "support/folders/WorkFolder.h"
#include "support/program/CommandRun.h"
#include "support/program/ProgramRun.h"
#include "support/program/UsageErrors.h"

#include <QtTest>

#include <functional>
#include <map>
#include <optional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

using namespace host;
namespace fs = std::filesystem;

namespace {

/// All that undoing has to bring back.
struct Snapshot
{
    std::string bytes;
    mode_t mode;
    std::int64_t seconds;
    long nanoseconds;
    bool operator==(const Snapshot&) const = default;
};

Snapshot snapshotOf(const std::string& name)
{
    const struct stat status = statusOf(name);
    return {WorkFolder::contentOf(name), status.st_mode, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

using Snapshots = std::map<std::string, Snapshot>;

/// Of all files in "in".
Snapshots snapshots()
{
    Snapshots all;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator("in"))
        if (entry.is_regular_file())
            all.emplace(entry.path().string(), snapshotOf(entry.path().string()));
    return all;
}

std::string damaged()
{
    const std::string whole = PdfBuilder::simple();
    return whole.substr(0, whole.rfind("xref\n0 ")) + "trailer\n<< /Root 1 0 R >>\nstartxref\n3\n%%EOF\n";
}

std::string large()
{
    PdfBuilder builder;
    builder.catalog("").pages(2).stream(9, "", std::string(300000, 'x'));
    return builder.bytes();
}

/// Writes other bytes, and gives the file its old time again.
void overwrite(const std::string& name, std::size_t at)
{
    const struct stat status = statusOf(name);
    std::fstream(name, std::ios::binary | std::ios::in | std::ios::out).seekp(std::streamoff(at)).put('#');
    const struct timespec times[] = {status.st_atim, status.st_mtim};
    QCOMPARE(utimensat(AT_FDCWD, name.c_str(), times, 0), 0);
}

} // namespace

class TestUndo : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        WorkFolder::put("in/a.pdf", PdfBuilder::simple());
    }
    void cleanup() { m_folder.reset(); }

    void bringsEveryByteAndModeBack()
    {
        WorkFolder::put("in/damaged.pdf", damaged());
        WorkFolder::put("in/deep/large.pdf", large());
        WorkFolder::put("in/h\xf4tel.pdf", PdfBuilder::simple());
        WorkFolder::put("in/no change.pdf",
                        PdfBuilder::simple("/PageMode /UseThumbs /PageLayout /OneColumn"));
        WorkFolder::put("in/failing.pdf", "no document");
        WorkFolder::put("real/a.pdf", PdfBuilder::simple());
        fs::create_symlink("../real/a.pdf", "in/link.pdf");
        QCOMPARE(chmod("in/a.pdf", 0640), 0);
        fs::last_write_time("in/deep/large.pdf", fs::file_time_type::clock::now() - std::chrono::hours(9999));
        const Snapshots before = snapshots();
        const Snapshot linked = snapshotOf("real/a.pdf");
        QCOMPARE(change("thumbs", "report").status, 1);
        QVERIFY(snapshots() != before);

        const Snapshots changed = snapshots();
        const CommandRun dry = undo({"--dry-run", "report"});
        QVERIFY2(dry.out.endsWith("5 would be undone, 0 undone already, 0 left alone\n"), dry.out + dry.err);
        QVERIFY(snapshots() == changed);

        fs::current_path("/"); // the report names the documents by absolute paths
        const CommandRun run = undo({m_folder->path("report")});
        fs::current_path(m_folder->path().toStdString());
        QCOMPARE(run.status, 0);
        QVERIFY2(run.out.endsWith("5 undone, 0 undone already, 0 left alone\n"), run.out);
        QVERIFY(snapshots() == before);
        QVERIFY(snapshotOf("real/a.pdf") == linked);
        QVERIFY(fs::is_symlink("in/link.pdf"));

        const CommandRun again = undo({"report"});
        QCOMPARE(again.status, 0);
        QVERIFY(again.out.contains("undone already  " + m_folder->path("in/a.pdf").toUtf8()));
        QVERIFY(again.out.endsWith("0 undone, 5 undone already, 0 left alone\n"));
        QVERIFY(snapshots() == before);
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator("."))
            QVERIFY(entry.path().filename().string().find(".quintar-") == std::string::npos);
    }

    void undoesTheNewestRunFirst()
    {
        const Snapshots before = snapshots();
        QCOMPARE(change("thumbs", "first").status, 0);
        const Snapshots between = snapshots();
        QCOMPARE(change("outlines", "second").status, 0);
        QCOMPARE(undo({"first"}).status, 1);
        QCOMPARE(undo({"second"}).status, 0);
        QVERIFY(snapshots() == between);
        QCOMPARE(undo({"first"}).status, 0);
        QVERIFY(snapshots() == before);

        // Both in one report, and once more after an undo.
        for (const char* mode : {"thumbs", "outlines"})
            QCOMPARE(change(mode, "both", {"--resume", "both"}).status, 0);
        QVERIFY(snapshots() != before);
        QVERIFY(undo({"both"}).out.contains("1 undone, 0 undone already, 0 left alone"));
        QVERIFY(snapshots() == before);
        QCOMPARE(change("thumbs", "both", {"--resume", "both"}).status, 0);
        QVERIFY(undo({"both"}).out.contains("1 undone, 0 undone already, 0 left alone"));
        QVERIFY(snapshots() == before);
        QVERIFY(undo({"both"}).out.contains("0 undone, 1 undone already, 0 left alone"));
    }

    void leavesAloneWhatHasChanged_data()
    {
        const Rows<std::function<void()>, QByteArray> row;
        const std::string name = "in/a.pdf";
        row(
            "an update behind it", [=] { std::ofstream(name, std::ios::app) << "%%EOF\n"; },
            "no longer as the report says");
        row(
            "its time", [=] { fs::last_write_time(name, fs::file_time_type::clock::now()); },
            "no longer as the report says");
        row(
            "a byte with its old time", [=] { overwrite(name, 20); },
            "what stands before the update is not what stood there");
        row(
            "gone", [=] { fs::remove(name); }, "no such file");
        row(
            "a link",
            [=] {
                fs::rename(name, "elsewhere.pdf");
                fs::create_symlink("../elsewhere.pdf", name);
            },
            "not a regular file");
    }

    void leavesAloneWhatHasChanged()
    {
        const auto [spoil, reason] = Rows<std::function<void()>, QByteArray>::current();
        WorkFolder::put("in/b.pdf", PdfBuilder::simple());
        const Snapshot before = snapshotOf("in/b.pdf");
        QCOMPARE(change("thumbs", "report").status, 0);
        spoil();
        const std::string spoilt = WorkFolder::contentOf("in/a.pdf");
        const CommandRun run = undo({"--quiet", "report"});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.startsWith("left alone: " + m_folder->path("in/a.pdf").toUtf8() + ": "), run.err);
        QVERIFY2(run.err.toLower().contains(reason), run.err);
        QCOMPARE(run.err.count('\n'), 1);
        QVERIFY(WorkFolder::contentOf("in/a.pdf") == spoilt);
        QVERIFY(snapshotOf("in/b.pdf") == before);
    }

    void leavesTheDocumentTheSameFile()
    {
        const ino_t file = statusOf("in/a.pdf").st_ino;
        QCOMPARE(change("thumbs", "report").status, 0);
        QCOMPARE(statusOf("in/a.pdf").st_ino, file);
        QCOMPARE(undo({"report"}).status, 0);
        QCOMPARE(statusOf("in/a.pdf").st_ino, file);
        fs::create_hard_link("in/a.pdf", "other.pdf");
        QCOMPARE(change("thumbs", "report").status, 0);
        fs::rename("in/a.pdf", "changed.pdf");
        fs::create_hard_link("changed.pdf", "in/a.pdf");
        QCOMPARE(undo({"report"}).status, 0);
        QVERIFY(WorkFolder::contentOf("changed.pdf") != WorkFolder::contentOf("in/a.pdf"));
    }

    // What a run leaves that is killed with all its workers while it appends where the document lies.
    void takesHalfAnUpdateBack()
    {
        const Snapshots before = snapshots();
        QCOMPARE(change("thumbs", "report").status, 0);
        const std::string after = WorkFolder::contentOf("in/a.pdf");
        const std::string report = WorkFolder::contentOf("report");
        // The lines "start" and "begun".
        WorkFolder::put("report", report.substr(0, report.find('\n', report.find('\n') + 1) + 1));
        const std::size_t lastLines = after.rfind("startxref");
        for (const std::size_t size : {after.size(), lastLines}) {
            WorkFolder::put("in/a.pdf", after.substr(0, size));
            QCOMPARE(undo({"report"}).out, "undone  " + m_folder->path("in/a.pdf").toUtf8() +
                                               "\n1 undone, 0 undone already, 0 left alone\n");
            QVERIFY(snapshots() == before);
            QVERIFY(undo({"report"}).out.endsWith("\n0 undone, 1 undone already, 0 left alone\n"));
        }
        for (const std::string& other : {after.substr(0, lastLines - 1),
                                         after.substr(0, lastLines) + "startxref\n1\n", after + "%%EOF\n"}) {
            WorkFolder::put("in/a.pdf", other);
            QCOMPARE(undo({"report"}).status, 1);
            QCOMPARE(WorkFolder::contentOf("in/a.pdf"), other);
        }
    }

    // It is as it was, and what others did to it since is no matter.
    void passesOverWhatTheRunCalledFailed()
    {
        QCOMPARE(change("thumbs", "report").status, 0);
        QByteArray text = reportText("report");
        const QByteArray done = text.split('\n').value(2);
        QJsonObject failed = ProgramRun::jsonLines(done).value(0);
        failed.insert("status", "failed");
        failed.remove("undo");
        WorkFolder::put(
            "report", text.replace(done, QJsonDocument(failed).toJson(QJsonDocument::Compact)).toStdString());
        WorkFolder::put("in/a.pdf", "another program's");
        const CommandRun run = undo({"report"});
        QCOMPARE(run.out + run.err, QByteArray("0 undone, 0 undone already, 0 left alone\n"));
        QCOMPARE(run.status, 0);
    }

    void takesALastLineWithoutItsLineFeed()
    {
        const Snapshots before = snapshots();
        QCOMPARE(change("thumbs", "report").status, 0);
        const QByteArrayList lines = reportText("report").split('\n'); // "start", "begun", "changed"
        WorkFolder::put("report", (lines[0] + '\n' + lines[2]).toStdString());
        QVERIFY(undo({"report"}).out.endsWith("1 undone, 0 undone already, 0 left alone\n"));
        QVERIFY(snapshots() == before);
    }

    // Killed itself, it may have cut a document off and not restored the time.
    void restoresTheTimeOfWhatIsCutOffAlready()
    {
        const Snapshots before = snapshots();
        QCOMPARE(change("thumbs", "report").status, 0);
        fs::resize_file("in/a.pdf", before.at("in/a.pdf").bytes.size());
        QVERIFY(
            undo({"--dry-run", "report"}).out.contains("0 would be undone, 1 undone already, 0 left alone"));
        QVERIFY(snapshots() != before);
        QVERIFY(undo({"report"}).out.contains("0 undone, 1 undone already, 0 left alone"));
        QVERIFY(snapshots() == before);
    }

    // What another program did between two runs stays, and all that is older.
    void stopsAtAChangeBetweenTwoRuns()
    {
        QCOMPARE(change("thumbs", "report").status, 0);
        std::ofstream("in/a.pdf", std::ios::app) << "% another program\n";
        const Snapshots between = snapshots();
        QCOMPARE(change("outlines", "report", {"--resume", "report"}).status, 0);
        const CommandRun run = undo({"report"});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains("an older change stays"), run.err);
        QVERIFY(snapshots() == between);
    }

    // Killed at any moment, a run has told of each document that it has changed.
    void takesAKilledRunBack()
    {
        for (int number = 0; number < 30; ++number)
            WorkFolder::put("in/" + std::to_string(number) + ".pdf", PdfBuilder::simple());
        const Snapshots before = snapshots();
        int changed = 0;
        for (int round = 1; round <= 6; ++round) {
            QProcess process;
            process.start(PROGRAM_FILE, runWords("thumbs", "report") << "--jobs"
                                                                     << "3");
            QVERIFY(process.waitForStarted());
            const auto lines = [] { return ProgramRun::jsonLines(reportText("report")).size(); };
            for (int wait = 0; wait < 2000 && lines() < round * 6 && process.state() == QProcess::Running;
                 ++wait)
                QTest::qWait(1);
            process.kill();
            QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished());
            QTest::qWait(50); // its workers end with it
            const Snapshots now = snapshots();
            for (const auto& [name, snapshot] : before)
                changed += now.at(name) == snapshot ? 0 : 1;
            const CommandRun run = undo({"report"});
            QCOMPARE(run.err, QByteArray());
            QCOMPARE(run.status, 0);
            QVERIFY(snapshots() == before);
        }
        QVERIFY(changed > 0);
    }

    void mistrustsReports_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray> row; // what is replaced in a report, and the reason
        const QByteArray impossible = "line 3 of the report says what no run can have done";
        row("a relative path", "\"output\":\"/", "\"output\":\"../", impossible);
        row("a path that ends early",
            "\"output\":", "\"outputBytes\":\"/etc/passwd%00.pdf\",\"output\":", impossible);
        row("no path", "\"output\":", "\"output\":7,\"x\":", impossible);
        row("a negative size", "\"undo\":{\"fileState\":\"", "\"undo\":{\"fileState\":\"-", impossible);
        row("no size at all", "\"undo\":{\"fileState\":\"", "\"undo\":{\"fileState\":\"0 bytes, ",
            impossible);
        row("more than there is", "\"undo\":{\"fileState\":\"", "\"undo\":{\"fileState\":\"9", impossible);
        row("a number as a state",
            "\"undo\":{\"fileState\":", "\"undo\":{\"fileState\":7,\"x\":", impossible);
        row("an array", "\"undo\":{", "\"undo\":[],\"x\":{", impossible);
        row("no checksum", "\"sha256\":\"", "\"sha256\":\"0", impossible);
        row("another checksum", "\"sha256\":\"", "\"sha256\":\"" + QByteArray(64, '0') + "\",\"x\":\"",
            "what stands before the update is not what stood there");
        row("nothing about undoing", "\"undo\":", "\"x\":", "does not tell what stood there before");
        row("no line of a report", "{\"", "[\"", "it is no report of a run");
        row("a line that is too long",
            "\"file\":", "\"x\":\"" + QByteArray(2 << 20, ' ') + "\",\"file\":", "line 2 is too long");
    }

    void mistrustsReports()
    {
        const auto [old, with, reason] = Rows<QByteArray, QByteArray, QByteArray>::current();
        QCOMPARE(change("thumbs", "report").status, 0);
        const Snapshots changed = snapshots();
        QByteArray text = reportText("report");
        QVERIFY(text.contains(old));
        WorkFolder::put("report", text.replace(old, with).toStdString());
        std::optional<CommandRun> run;
        const std::string refusal = refusalOf([&] { run = undo({"report"}); });
        const QByteArray answer = run ? run->err : QByteArray::fromStdString(refusal);
        QVERIFY2(answer.contains(reason), answer);
        QVERIFY(!run || run->status == 1);
        QVERIFY(snapshots() == changed);
    }

    // One that tells the truth about a file can still claim too much.
    void cutsNothingButUpdates()
    {
        QCOMPARE(change("thumbs", "report").status, 0);
        const struct stat status = statusOf("in/a.pdf");
        std::fstream("in/a.pdf", std::ios::binary | std::ios::in | std::ios::out)
            .seekp(status.st_size - 8)
            .write("no end!\n", 8);
        const struct timespec times[] = {status.st_atim, status.st_mtim};
        QCOMPARE(utimensat(AT_FDCWD, "in/a.pdf", times, 0), 0);
        const Snapshots changed = snapshots();
        const CommandRun run = undo({"report"});
        QVERIFY2(run.err.contains("what the report calls an update is none"), run.err);
        QVERIFY(snapshots() == changed);
    }

    // Nor may one that knows all that there is to know of the document.
    void cutsNoMoreThanAnUpdate()
    {
        const std::string original = PdfBuilder::simple();
        QCOMPARE(change("thumbs", "report").status, 0);
        const Snapshots changed = snapshots();
        const QByteArray text = reportText("report");
        for (const std::size_t size : {std::size_t{9}, original.find("1 0 obj"), original.find("2 0 obj"),
                                       original.find("xref\n"), original.size() - 10}) {
            const std::string left = WorkFolder::contentOf("in/a.pdf").substr(0, size);
            QByteArray tampered = text;
            tampered.replace("\"undo\":{\"fileState\":\"" + QByteArray::number(qint64(original.size())),
                             "\"undo\":{\"fileState\":\"" + QByteArray::number(qint64(size)));
            tampered.replace(QByteArray::fromStdString(checksumOf(original)),
                             QByteArray::fromStdString(checksumOf(left)));
            QVERIFY(tampered != text);
            WorkFolder::put("report", tampered.toStdString());
            const CommandRun run = undo({"report"});
            QVERIFY2(run.err.contains("what the report calls an update is none"),
                     QByteArray::number(qint64(size)) + run.err + run.out);
            QVERIFY(snapshots() == changed);
        }
    }

    void passesOverBrokenLines()
    {
        const Snapshots before = snapshots();
        QCOMPARE(change("thumbs", "report").status, 0);
        const std::string text = WorkFolder::contentOf("report");
        WorkFolder::put("report", std::string(100, '\0') + "\n{}\n" + text + "{\"file\":");
        const CommandRun run = undo({"report"});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.err, QByteArray("left alone: report: line 1 and 1 more tell nothing of a document\n"));
        QVERIFY(snapshots() == before);
    }

    void refusesReportsWithNothingToUndo()
    {
        const auto refusal = [](const QStringList& words) { return refusalOf([&] { undo(words); }); };
        QVERIFY(refusal({}).starts_with("which run?"));
        QVERIFY(refusal({"one", "two"}).starts_with("undo takes one report"));
        QVERIFY(refusal({"missing"}).starts_with("the report missing cannot be used: "));
        QCOMPARE(ProgramRun(PROGRAM_FILE, runWords("thumbs", "copied", "-o out")).status, 0);
        QVERIFY(refusal({"copied"}).find("is of a run with -o, which needs no undo") != std::string::npos);
        QCOMPARE(change("thumbs", "report").status, 0);
        const int file = open("report", O_RDONLY | O_CLOEXEC);
        QCOMPARE(flock(file, LOCK_EX), 0);
        QCOMPARE(refusal({"report"}), std::string("the report report is in use by a run"));
        close(file);
        QCOMPARE(change("outlines", "dry", {"--dry-run"}).status, 0);
        QCOMPARE(undo({"dry"}).out, QByteArray("0 undone, 0 undone already, 0 left alone\n"));
    }

private:
    static QStringList runWords(const QString& mode, const QString& report,
                                const QString& target = "--in-place")
    {
        return QStringList{"run", "--report", report, "--signed", "append", "in"} + target.split(' ') +
               QStringList{"--set", "LayoutAndMagnCheckBox=true",
                           "--set", "PageLayoutComboBox=One Column",
                           "--set", mode == "thumbs" ? "NavigationTabComboBox=2" : "NavigationTabComboBox=1"};
    }

    /// Changes all documents in "in", in place.
    static ProgramRun change(const QString& mode, const QString& report, const QStringList& more = {})
    {
        return ProgramRun(PROGRAM_FILE, runWords(mode, report) + more);
    }

    static CommandRun undo(const QStringList& words) { return CommandRun(UndoCommand(), words); }

    static QByteArray reportText(const char* name)
    {
        return QByteArray::fromStdString(WorkFolder::contentOf(name));
    }

    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestUndo)
#include "TestUndo.moc"
