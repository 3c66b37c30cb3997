#include "host/files/FileCopy.h"
#include "host/files/SafeOutput.h"
#include "host/run/Progress.h"
#include "host/run/Report.h"
#include "host/terminal/FileNames.h"
#include "support/Rows.h"
#include "support/WorkFolder.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace host;
namespace fs = std::filesystem;

class TestSafeOutput : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }
    void cleanup() { m_folder.reset(); }

    void replacesOnlyWhenCommitted()
    {
        WorkFolder::put("target", "old");
        const std::string temporary = SafeOutput::temporaryNameFor("target");
        {
            SafeOutput output("target", temporary);
            WorkFolder::put(temporary, "new");
        }
        QCOMPARE(WorkFolder::contentOf("target"), std::string("old"));
        QVERIFY(!fs::exists(temporary));
        for (const bool flush : {false, true}) {
            SafeOutput output("deep/er/target", temporary);
            QCOMPARE(SafeOutput::makeFolder(SafeOutput::folderOf("deep/er/target")), std::string());
            WorkFolder::put(temporary, "new");
            QCOMPARE(output.commit(statusOf("target"), flush), std::string());
            QCOMPARE(WorkFolder::contentOf("deep/er/target"), std::string("new"));
        }
        fs::create_directories("folder/inside");
        SafeOutput output("folder", temporary);
        WorkFolder::put(temporary, "new");
        QCOMPARE(output.commit(statusOf("target"), false),
                 std::string("folder cannot be written: is a directory"));
    }

    void keepsModeAndOwner()
    {
        WorkFolder::put("original");
        QCOMPARE(chmod("original", 0751), 0);
        if (geteuid() == 0)
            QCOMPARE(chown("original", 1234, 2345), 0);
        const std::string temporary = SafeOutput::temporaryNameFor("target");
        WorkFolder::put(temporary);
        SafeOutput output("target", temporary);
        QCOMPARE(output.commit(statusOf("original"), false), std::string());
        const struct stat status = statusOf("target");
        QCOMPARE(status.st_mode & 07777, 0751u);
        QCOMPARE(status.st_uid, statusOf("original").st_uid);
        QCOMPARE(status.st_gid, statusOf("original").st_gid);
    }

    void removesWhatEndedProcessesLeft()
    {
        const pid_t child = fork();
        if (child == 0) {
            std::ofstream("name") << SafeOutput::temporaryNameFor("target");
            std::ofstream(SafeOutput::temporaryNameFor("target")) << "unfinished";
            _exit(0);
        }
        QCOMPARE(waitpid(child, nullptr, 0), child);
        const std::string ended =
            WorkFolder::contentOf("name").substr(0, WorkFolder::contentOf("name").rfind('-'));
        const std::string running = SafeOutput::temporaryNameFor("target");
        const std::string stranger = "./.quintar-0123456789abcdef-1-1";
        const std::string oldStranger = "./.quintar-0123456789abcdef-1-2";
        for (const std::string& name : {running, stranger, oldStranger, std::string(".quintarfile")})
            WorkFolder::put(name);
        WorkFolder::put(".quintar-notes"); // somebody's own
        const timespec old[2] = {{1, 0}, {1, 0}};
        for (const char* name : {oldStranger.c_str(), ".quintar-notes"})
            QCOMPARE(utimensat(AT_FDCWD, name, old, 0), 0);
        fs::create_symlink("nowhere", ".quintar-link");
        SafeOutput::removeLeftovers(".");
        QStringList left;
        for (const fs::directory_entry& entry : fs::directory_iterator("."))
            if (entry.path().string().find(".quintar") != std::string::npos)
                left += QString::fromStdString(entry.path().string());
        left.sort();
        QStringList wanted{QString::fromStdString(running), QString::fromStdString(stranger),
                           "./.quintar-link", "./.quintar-notes", "./.quintarfile"};
        wanted.sort();
        QCOMPARE(left, wanted);
        QVERIFY(ended.find(".quintar-") != std::string::npos);
    }

    void copiesWithHoles()
    {
        WorkFolder::put("sparse", "begin");
        fs::resize_file("sparse", 4 << 20);
        std::ofstream("sparse", std::ios::binary | std::ios::app) << "end";
        QCOMPARE(copyFile("sparse", "copy"), std::string());
        QVERIFY(WorkFolder::contentOf("copy") == WorkFolder::contentOf("sparse"));
        QVERIFY(statusOf("copy").st_blocks <= statusOf("sparse").st_blocks + 16);
        QCOMPARE(statusOf("copy").st_mode & 0777, 0600u);
        for (const char* content : {"", "x"}) {
            WorkFolder::put("small", content);
            QCOMPARE(copyFile("small", std::string("copy of ") + content), std::string());
            QCOMPARE(WorkFolder::contentOf(std::string("copy of ") + content), std::string(content));
        }
        // Files under /proc have no size and cannot be copied within the kernel.
        fs::resize_file("sparse", 0);
        QCOMPARE(copyFile("sparse", "empty"), std::string());
    }

    void refusesToCopyWhatIsNoFile()
    {
        QCOMPARE(mkfifo("fifo", 0600), 0);
        WorkFolder::put("there", "kept");
        QCOMPARE(copyFile("fifo", "copy"), std::string("cannot be read: not a regular file"));
        QCOMPARE(copyFile("none", "copy"), std::string("cannot be read: no such file or directory"));
        QCOMPARE(copyFile("there", "no/copy"), std::string("cannot be written: no such file or directory"));
        QCOMPARE(copyFile("there", "there"), std::string("cannot be written: file exists"));
        QCOMPARE(WorkFolder::contentOf("there"), std::string("kept"));
        QVERIFY(!fs::exists("copy"));
    }

    void reportsInOrderAndInValidJson()
    {
        const auto line = [](const std::string& file) {
            return Report::Line{file, "", DocumentResult::failed("\"quoted\"\n\x01\xff", 7)};
        };
        Report report("report", Report::Start::New);
        report.add(2, line("third"));
        report.add(0, line("fir\nst"));
        QCOMPARE(WorkFolder::contentOf("report").find("third"), std::string::npos);
        report.add(1, line("\xff\"\\"));
        const QByteArray text = QByteArray::fromStdString(WorkFolder::contentOf("report"));
        QCOMPARE(text.count('\n'), 3);
        QStringList files;
        for (const QByteArray& each : text.trimmed().split('\n')) {
            const QJsonDocument document = QJsonDocument::fromJson(each);
            QVERIFY2(document.isObject(), each);
            files += document.object().value("file").toString();
            QCOMPARE(document.object().value("milliseconds").toInt(), 7);
            QVERIFY(document.object().value("output").isNull());
        }
        QCOMPARE(files, (QStringList{"fir\nst", QString(QChar(0xfffd)) + "\"\\", "third"}));
        report.add(4, line("after a gap"));
        report.flush();
        QVERIFY(WorkFolder::contentOf("report").find("after a gap") != std::string::npos);
    }

    void escapesForTerminals_data()
    {
        const Rows<QByteArray, QByteArray> add;
        const auto row = [&add](const QByteArray& bytes, const char* printed) {
            add(printed, bytes, QByteArray(printed));
        };
        row("plain \xc3\xb4 \xe2\x82\xac \xf0\x9f\x98\x80.pdf",
            "plain \xc3\xb4 \xe2\x82\xac \xf0\x9f\x98\x80.pdf");
        row("a\nb\tc\rd", "a\\nb\\tc\\x0dd");
        row("\x1b[31m\x7f", "\\x1b[31m\\x7f");
        row("back\\slash", "back\\\\slash");
        row("\xff\xc3", "\\xff\\xc3");
        row("\xc2\x9b", "\\u009b");
        row("\xe2\x80\xae"
            "fdp.exe",
            "\\u202efdp.exe");
        row(QByteArray("nul\0", 4), "nul\\x00");
    }

    void escapesForTerminals()
    {
        const auto [bytes, printed] = Rows<QByteArray, QByteArray>::current();
        QCOMPARE(QByteArray::fromStdString(forTerminal(bytes.toStdString())), printed);
    }

    void drawsProgress()
    {
        QCOMPARE(Progress::lineFor(0, 0, 4, 0, 80), std::string("[........................] 0/4"));
        QCOMPARE(Progress::lineFor(2, 1, 4, 1, 80),
                 std::string("[############............] 2/4, 1 failed  2.0/s  0:01 left"));
        QCOMPARE(Progress::lineFor(500, 0, 100000, 10, 80),
                 std::string("[........................] 500/100000  50/s  33:10 left"));
        QCOMPARE(Progress::lineFor(0, 0, 0, 0, 80), std::string("[########################] 0/0"));
        QCOMPARE(Progress::lineFor(1, 0, 2, 1, 10), std::string("[#########"));
    }

private:
    static struct stat statusOf(const std::string& name)
    {
        struct stat status = {};
        if (lstat(name.c_str(), &status) != 0)
            qFatal("no %s", name.c_str());
        return status;
    }

    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestSafeOutput)
#include "TestSafeOutput.moc"
