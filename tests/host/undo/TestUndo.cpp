#include "support/Rows.h"
#include "support/program/UndoFixture.h"

#include <QtTest>

#include <functional>

namespace fs = std::filesystem;

namespace {

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

} // namespace

class TestUndo : public QObject, private UndoFixture
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }

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
        const CommandRun run = undo({path("report")});
        fs::current_path(path("").toStdString());
        QCOMPARE(run.status, 0);
        QVERIFY2(run.out.endsWith("5 undone, 0 undone already, 0 left alone\n"), run.out);
        QVERIFY(snapshots() == before);
        QVERIFY(snapshotOf("real/a.pdf") == linked);
        QVERIFY(fs::is_symlink("in/link.pdf"));

        const CommandRun again = undo({"report"});
        QCOMPARE(again.status, 0);
        QVERIFY(again.out.contains("undone already  " + path("in/a.pdf").toUtf8()));
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
            "a byte with its old time", [=] { overwrite(name, 20, "#"); },
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
        QVERIFY2(run.err.startsWith("left alone: " + path("in/a.pdf").toUtf8() + ": "), run.err);
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
            QCOMPARE(undo({"report"}).out,
                     "undone  " + path("in/a.pdf").toUtf8() + "\n1 undone, 0 undone already, 0 left alone\n");
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
};

QTEST_GUILESS_MAIN(TestUndo)
#include "TestUndo.moc"
