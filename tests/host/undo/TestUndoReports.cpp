#include "host/files/Checksum.h"
#include "support/Rows.h"
#include "support/program/UndoFixture.h"
#include "support/program/UsageErrors.h"

#include <QtTest>

#include <sys/file.h>

using namespace host;

/// What undoing believes of a report, and which reports it takes.
class TestUndoReports : public QObject, private UndoFixture
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { end(); }

    void takesALastLineWithoutItsLineFeed()
    {
        const Snapshots before = snapshots();
        QCOMPARE(change("thumbs", "report").status, 0);
        const QByteArrayList lines = reportText("report").split('\n'); // "start", "begun", "changed"
        WorkFolder::put("report", (lines[0] + '\n' + lines[2]).toStdString());
        QVERIFY(undo({"report"}).out.endsWith("1 undone, 0 undone already, 0 left alone\n"));
        QVERIFY(snapshots() == before);
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
        overwrite("in/a.pdf", statusOf("in/a.pdf").st_size - 8, "no end!\n");
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
};

QTEST_GUILESS_MAIN(TestUndoReports)
#include "TestUndoReports.moc"
