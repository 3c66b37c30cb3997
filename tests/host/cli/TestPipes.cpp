// Standard input and output as document, result and report; one result's own file.
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/WorkFolder.h"
#include "support/program/ProgramRun.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

#include <sys/stat.h>
#include <unistd.h>

class TestPipes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(qputenv("TMPDIR", m_temporary.path().toLocal8Bit())); }
    // Whatever happened, nothing stays behind.
    void cleanup()
    {
        QCOMPARE(QDir(m_temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), {});
    }

    void changesWhatComesThroughAPipe()
    {
        const QByteArray original = QByteArray::fromStdString(PdfBuilder::simple());
        const ProgramRun piped = quintar({"-o", "-", "-"}, original);
        QCOMPARE(piped.err, QByteArray());
        QCOMPARE(piped.status, 0);
        QVERIFY(piped.out.startsWith(original) && piped.out.size() > original.size());
        WorkFolder::put("in.pdf", PdfBuilder::simple());
        QCOMPARE(quintar({"-o", "-", "in.pdf"}).out, piped.out);

        const mode_t before = umask(027);
        const ProgramRun toFile = quintar({"-o", "new/out.pdf", "-", "--report", "report"}, original);
        umask(before);
        QCOMPARE(toFile.out, QByteArray("changed (appended)  standard input: page mode: unset -> "
                                        "use-outlines\n1 changed, 0 unchanged, 0 failed\n"));
        QCOMPARE(QByteArray::fromStdString(WorkFolder::contentOf("new/out.pdf")), piped.out);
        struct stat status;
        QCOMPARE(stat(qPrintable(m_folder.path() + "/new/out.pdf"), &status), 0);
        QCOMPARE(int(status.st_mode & 07777), 0640);
        const auto lines = ProgramRun::jsonLines(QByteArray::fromStdString(WorkFolder::contentOf("report")));
        QCOMPARE(lines.value(1).value("file"), QJsonValue("-"));

        const ProgramRun unchanged = quintar({"-o", "-", "-"}, piped.out);
        QCOMPARE(unchanged.out, piped.out);
        const ProgramRun dry = quintar({"-n", "-o", "-", "-"}, original);
        QCOMPARE(dry.out, QByteArray("would change  standard input: page mode: unset -> use-outlines\n1 "
                                     "would change, 0 unchanged, 0 failed\n"));
    }

    void printsNothingOfWhatFailed()
    {
        const ProgramRun broken = quintar({"-o", "-", "-"}, "no document");
        QCOMPARE(broken.status, 1);
        QCOMPARE(broken.out, QByteArray());
        QCOMPARE(broken.err, QByteArray("failed: standard input: not a PDF document\n"));
        QCOMPARE(shell("%1 run --page-mode bookmarks -o - in.pdf > /dev/full").status, 1);
        QVERIFY(shell("TMPDIR=/nowhere %1 run --page-mode bookmarks -o - in.pdf").err.contains("TMPDIR"));
        const ProgramRun terminal =
            shell("script -qec '%1 run --page-mode bookmarks -o - in.pdf' /dev/null < /dev/null");
        QVERIFY2(terminal.out.contains("on the terminal") && !terminal.out.contains("%PDF"), terminal.out);
    }

    void isStoppedWhileItWaitsForInput()
    {
        QProcess process;
        process.start(PROGRAM_FILE, {"run", "--page-mode", "bookmarks", "-o", "-", "-"});
        QVERIFY(process.waitForStarted());
        process.write("%PDF-1.4\n");
        const QDir temporary(m_temporary.path());
        QTRY_VERIFY(!temporary.entryList(QDir::Dirs | QDir::NoDotAndDotDot).isEmpty());
        process.terminate();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QCOMPARE(process.exitCode(), SIGTERM);
        QCOMPARE(process.readAllStandardOutput(), QByteArray());
    }

    void printsTheReportAlone()
    {
        WorkFolder::put("in.pdf", PdfBuilder::simple());
        const ProgramRun run = quintar({"-o", "out", "--report", "-", "in.pdf", "no.pdf"});
        QCOMPARE(run.status, 1);
        const auto lines = ProgramRun::jsonLines(run.out);
        QCOMPARE(run.out.count('\n'), 4);
        QCOMPARE(lines[0].value("event"), QJsonValue("start"));
        QCOMPARE(lines[1].value("status"), QJsonValue("changed"));
        QCOMPARE(lines[2].value("status"), QJsonValue("failed"));
        QCOMPARE(lines[3].value("event"), QJsonValue("end"));
        QCOMPARE(run.err, QByteArray("failed: no.pdf: no such file or directory\n"
                                     "1 changed, 0 unchanged, 1 failed\n"));
        // What is in the file that standard output goes to stays.
        shell("echo first > log; %1 run --page-mode bookmarks -qo out --report - in.pdf >> log");
        QVERIFY(WorkFolder::contentOf("log").starts_with("first\n{"));
    }

    // A nightly job mails what is printed.
    void quietIsSilentAboutSingleDocuments()
    {
        WorkFolder::put("in.pdf", PdfBuilder::simple());
        const QStringList words{"run", "--display-doc-title", "yes", "-o", "out", "in.pdf"};
        const ProgramRun loud(PROGRAM_FILE, words, m_folder.path());
        QVERIFY2(loud.err.contains("note: in.pdf: "), loud.err);
        const ProgramRun quiet(PROGRAM_FILE, words + QStringList{"-q"}, m_folder.path());
        QCOMPARE(quiet.out + quiet.err, QByteArray());
    }

    void notesWhatTheActionMakesOfTheSettings()
    {
        WorkFolder::put("in.pdf", PdfBuilder::simple());
        const ProgramRun run(PROGRAM_FILE,
                             {"run", "--set", "LayoutAndMagnCheckBox=1", "--set", "PageLayoutComboBox=1",
                              "--set", "OpenToPageSpinBox=9000", "--report", "report", "-o", "out", "in.pdf"},
                             m_folder.path());
        QCOMPARE(run.status, 0);
        const QString page = "so it opens at page 1 instead of 9000";
        const QString rows = "NavigationTabComboBox (\"Page Only\"), MagnificationComboBox (\"Default\")";
        QCOMPARE(run.err.count(page.toUtf8()), 1);
        QCOMPARE(run.err.count(rows.toUtf8()), 1);
        const auto lines = ProgramRun::jsonLines(QByteArray::fromStdString(WorkFolder::contentOf("report")));
        const QString note = lines.value(1).value("note").toString();
        QVERIFY2(note.contains(page) && note.contains(rows), qPrintable(note));
    }

    // Of so many pages the count is believed at first.
    void findsThatPagesAreMissing()
    {
        PdfBuilder builder;
        std::string nodes;
        for (int node = 3; node < 102; ++node) {
            std::string kids;
            for (int page = node * 100; page < node * 100 + 100; ++page) {
                builder.object(page, "<< /Type /Page >>");
                kids += std::to_string(page) + " 0 R ";
            }
            builder.object(node, "<< /Type /Pages /Count 100 /Kids [" + kids + "] >>");
            nodes += std::to_string(node) + " 0 R ";
        }
        builder.catalog("").object(2, "<< /Type /Pages /Count 10100 /Kids [" + nodes + "] >>");
        WorkFolder::put("in.pdf", builder.object(10300, "null").bytes());
        const ProgramRun last(PROGRAM_FILE, {"run", "--open-page", "last", "-o", "out", "in.pdf"},
                              m_folder.path());
        QVERIFY2(last.out.contains("open page: unset -> 9900;"), last.out + last.err);
        const ProgramRun action(PROGRAM_FILE,
                                {"run", "--set", "LayoutAndMagnCheckBox=1", "--set", "OpenToPageSpinBox=9950",
                                 "-o", "out", "in.pdf"},
                                m_folder.path());
        QVERIFY2(action.err.contains("it has 9900 pages, so it opens at page 1 instead of 9950"), action.err);
        QVERIFY2(action.out.contains("open page: unset -> 1;"), action.out);
    }

private:
    ProgramRun quintar(const QStringList& words, const QByteArray& input = {}) const
    {
        return {PROGRAM_FILE, QStringList{"run", "--page-mode", "bookmarks"} + words, m_folder.path(), input};
    }

    ProgramRun shell(const char* line) const
    {
        return {"sh", {"-c", QString(line).arg(PROGRAM_FILE)}, m_folder.path()};
    }

    QTemporaryDir m_temporary;
    WorkFolder m_folder;
};

QTEST_GUILESS_MAIN(TestPipes)
#include "TestPipes.moc"
