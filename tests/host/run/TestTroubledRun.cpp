// Runs that meet full disks, other programs, signals, and documents that crash, hang or eat memory; and what
// their reports are to the next run.
#include "host/cell/ProcessLimits.h"
#include "support/Rows.h"
#include "support/program/BatchFixture.h"

#include <QtTest>

#include <csignal>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// How many documents became what.
QByteArray counts(const ProgramRun& run)
{
    return run.out.split('\n').value(run.out.count('\n') - 1);
}

} // namespace

class TestTroubledRun : public QObject, private BatchFixture
{
    Q_OBJECT

private slots:
    void init() { begin(); }

    void cleanup()
    {
        QCOMPARE(strays(), QStringList());
        end();
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
            QVERIFY(contentOf("disk/a.pdf") == original);
            QVERIFY(!fs::exists("disk/out/a.pdf"));
            QCOMPARE(strays(), QStringList());
        }
        put("b.pdf", original);
        const ProgramRun run = apply({"--in-place", "--events", "--report", "disk/report", "b.pdf"});
        QVERIFY2(run.out.contains("report cannot be written: no space left") &&
                     run.out.contains("\"noSpace\""),
                 run.out);
        QVERIFY(contentOf("b.pdf") == original);
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
            return ProgramRun("sh", QStringList{"-c", script, PROGRAM_FILE} + arguments, path());
        };
        const QStringList run =
            QStringList{"run", "--report", "out/report", "--jobs", "20", "in"} + panelAndPage();
        const QStringList toOut = run + QStringList{"-o", "out"};
        QCOMPARE(shell("exec \"$0\" \"$@\" <&- >&- 2>&-", toOut).status, 0);
        QCOMPARE(contentOf("out/report").find("20 changed"), std::string::npos);
        QCOMPARE(shell("ulimit -n 16; exec \"$0\" \"$@\"", toOut).status, 0);
        const ProgramRun gone = shell("mkdir x; cd x; rmdir ../x; exec \"$0\" \"$@\"",
                                      QStringList{"run", "-o", "out", path("in")} + panelAndPage());
        QCOMPARE(gone.status, 2);
        const ProgramRun full = shell("exec \"$0\" \"$@\" >/dev/full", {"show", "in/1.pdf"});
        QCOMPARE(full.status, 1);
        QVERIFY2(full.err.contains("no space left"), full.err);

        put("1-hang.pdf");
        put("2-good.pdf");
        QProcess process;
        process.start("sh",
                      QStringList{"-c", "trap '' HUP; exec \"$0\" \"$@\"", program()} +
                          words("--jobs 1 --timeout 2 --report report --in-place 1-hang.pdf 2-good.pdf"));
        QVERIFY(waitFor([] { return fs::exists("report"); }));
        QTest::qWait(200);
        ::kill(pid_t(process.processId()), SIGHUP);
        QVERIFY(process.waitForFinished(20000));
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(contentOf("2-good.pdf") != PdfBuilder::simple());
    }

    void makesAnOutputFolderAgain()
    {
        for (const char* name : {"in/1-good.pdf", "in/2-slow.pdf", "in/3-good.pdf"})
            put(name);
        QProcess process;
        process.start(program(), words("--jobs 1 -o out in"));
        QVERIFY(waitFor([] { return fs::exists("out/1-good.pdf"); }));
        fs::remove_all("out");
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        QVERIFY(!fs::exists("out/1-good.pdf") && fs::exists("out/2-slow.pdf") &&
                fs::exists("out/3-good.pdf"));
    }

    void refusesWhatChangedMeanwhile()
    {
        for (const char* target : {" --in-place", " -o out"}) {
            put("replaced.pdf");
            const std::string newer = put("newer", PdfBuilder::simple("/PageMode /UseThumbs"));
            const ProgramRun run = troubled(QString("--sandbox off replaced.pdf") + target);
            QVERIFY2(reasonFor(run.err, "replaced.pdf").contains("changed by another program"), run.err);
            QVERIFY(contentOf("replaced.pdf") == newer);
            QVERIFY(!fs::exists("out/replaced.pdf"));
        }
    }

    void losesNothingForWantOfMemory()
    {
        if (host::sanitized)
            QSKIP("workers have no memory limit under the sanitizer");
        PdfBuilder builder;
        builder.catalog("/Kept 9 0 R").pages(2).object(9, "(" + std::string(20 << 20, 'x') + ")");
        const std::string damaged = builder.bytes() + "10 0 obj\nnull\nendobj\n" + std::string(5000, '\n');
        const std::string original = put("a.pdf", damaged);
        const ProgramRun run = apply({"--memory", "32", "--in-place", "a.pdf"});
        QVERIFY2(reasonFor(run.err, "a.pdf").contains("memory"), run.err);
        QVERIFY(contentOf("a.pdf") == original);
    }

    void replacesWorkersThatGetIntoTrouble()
    {
        QStringList troubles{"crash", "hang"};
        if (!host::sanitized) // workers have no memory limit then
            troubles.insert(1, "hungry");
        for (int number = 0; number < 200; ++number) {
            const int trouble = number % 40 == 7 ? number / 40 % troubles.size() : -1;
            const QString name = trouble < 0 ? "good" : troubles[trouble];
            put(QString("in/%1-%2.pdf").arg(number, 3, 10, QChar('0')).arg(name).toStdString());
        }
        const ProgramRun run = troubled("--jobs 3 --timeout 8 --memory 300 -o out --report report in");
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
        if (host::sanitized)
            QSKIP("workers have no memory limit under the sanitizer");
        for (const char* name :
             {"in/1-good.pdf", "in/2-crash.pdf", "in/3-hungry.pdf", "in/4-hang.pdf", "in/5-good.pdf"})
            put(name);
        const ProgramRun run(program(), {"show", "-j1", "--timeout", "1", "--memory", "300", "in"}, path());
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
        process.start(program(), words("--jobs 2 --in-place --report report in"));
        QVERIFY(waitFor([] { return contentOf("in/3-late-hang.pdf") != PdfBuilder::simple(); }));
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
        QVERIFY(contentOf("in/4-good.pdf") == PdfBuilder::simple());
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
        const auto [target, folder] = Rows<QString, QString>::current();
        for (const char* name : {"in/1-late-crash.pdf", "in/2-good.pdf"})
            put(name);
        const ProgramRun run = troubled("--report report " + target);
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
        for (int number = 0; number < 60; ++number)
            put("in/" + std::to_string(100 + number) + (number == 30 ? "-hang.pdf" : "-good.pdf"));
        QProcess hanging;
        hanging.start(program(), words("--jobs 2 -o out in"));
        const auto results = [] {
            const fs::directory_iterator entries("out");
            return std::count_if(fs::begin(entries), fs::end(entries), [](const fs::directory_entry& entry) {
                return entry.path().extension() == ".pdf";
            });
        };
        QVERIFY(waitFor([&] { return fs::exists("out") && results() == 59; }));
        hanging.kill();
        QVERIFY(hanging.waitForFinished());

        for (const char* name : {"few/1-good.pdf", "few/2-slow.pdf", "few/3-good.pdf", "few/4-good.pdf"})
            put(name);
        QProcess stopped;
        stopped.start(program(), words("--jobs 1 --in-place --report report few"));
        QVERIFY(waitFor([] { return !report().isEmpty(); }));
        ::kill(pid_t(stopped.processId()), SIGTERM);
        QVERIFY(stopped.waitForFinished());
        QVERIFY(stopped.readAllStandardOutput().endsWith(
            "2 changed, 0 unchanged, 0 failed, stopped with 2 not done\n"));
    }

    void resumesWhereAReportEnds()
    {
        for (const char* name : {"in/a.pdf", "in/b.pdf", "in/c.pdf", "in/h\xf4tel.pdf"})
            put(name);
        put("in/bad.pdf", "bad");
        const QStringList toOut = QStringList{"run", "-o", "out", "in"} + panelAndPage();
        const auto resumed = [&](const QStringList& run, const char* to) {
            return quintar(run + QStringList{"--resume", "report", "--report", to});
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
        QCOMPARE(other.size(), 7);
        QCOMPARE(other[4].value("file"), QJsonValue("in/c.pdf"));

        fs::remove("out/a.pdf");
        QCOMPARE(counts(resumed(toOut, "report")),
                 QByteArray("3 changed, 0 unchanged, 0 failed, 2 done before"));
        const ProgramRun last = resumed(toOut, "report");
        QCOMPARE(counts(last), QByteArray("0 changed, 0 unchanged, 0 failed, 5 done before"));
        QCOMPARE(last.status, 0);
        QCOMPARE(counts(resumed(QStringList{"run", "-o", "new", "in"} + panelAndPage(), "other")),
                 QByteArray("5 changed, 0 unchanged, 0 failed"));

        const QStringList inPlace = QStringList{"run", "--in-place", "in"} + panelAndPage();
        QCOMPARE(quintar(inPlace + QStringList{"--report", "report"}).status, 0);
        QCOMPARE(counts(resumed(inPlace, "report")),
                 QByteArray("0 changed, 0 unchanged, 0 failed, 5 done before"));
    }

    void resumesNothingThatIsNoReport()
    {
        const std::string document = put("a.pdf");
        put("report", "no report\n");
        const ProgramRun refused = apply({"--in-place", "--resume", "report", "--report", "other", "a.pdf"});
        QCOMPARE(refused.status, 2);
        QVERIFY2(refused.err.contains("line 1 tells nothing of a document"), refused.err);
        QVERIFY(contentOf("a.pdf") == document);
    }

    void refusesAReportThatAnotherRunWrites()
    {
        put("a.pdf");
        const std::string lines = put("report", "lines of another run\n");
        const int report = open("report", O_WRONLY | O_CLOEXEC);
        QCOMPARE(flock(report, LOCK_EX), 0);
        const ProgramRun run = apply({"-o", "out", "--resume", "report", "--report", "report", "a.pdf"});
        close(report);
        QCOMPARE(run.status, 2);
        QCOMPARE(run.err, QByteArray("quintar: the report report is being written by another run\n"));
        QVERIFY(contentOf("report") == lines && !fs::exists("out"));
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
                                 panelAndPage(),
                             path());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.err, QByteArray("note: d/a.pdf: could not be kept: owner, group\n"));
        QVERIFY(contentOf("d/report").find("\"note\":\"could not be kept: owner, group\"") !=
                std::string::npos);
    }

private:
    /// The program beside a library that gets into trouble.
    QString program() const
    {
        const QString place = path("installed");
        return fs::exists(place.toStdString()) ? place + "/bin/quintar" : programBesideTrouble(place);
    }

    static QStringList words(const QString& options)
    {
        return QStringList{"run"} + options.split(' ') + panelAndPage();
    }

    ProgramRun troubled(const QString& options) const { return {program(), words(options), path()}; }
};

QTEST_GUILESS_MAIN(TestTroubledRun)
#include "TestTroubledRun.moc"
