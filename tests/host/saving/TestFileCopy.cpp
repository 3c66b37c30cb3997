#include "host/saving/FileCopy.h"
#include "support/folders/FileStatus.h"
#include "support/folders/WorkFolder.h"

#include <QtTest>

#include <optional>

#include <sys/stat.h>

using namespace host;
namespace fs = std::filesystem;

class TestFileCopy : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }
    void cleanup() { m_folder.reset(); }

    void copiesWithHoles()
    {
        WorkFolder::put("sparse", "begin");
        fs::resize_file("sparse", 4 << 20);
        std::ofstream("sparse", std::ios::binary | std::ios::app) << "end";
        QCOMPARE(copyFile("sparse", "copy").text, std::string());
        QVERIFY(WorkFolder::contentOf("copy") == WorkFolder::contentOf("sparse"));
        QVERIFY(statusOf("copy").st_blocks <= statusOf("sparse").st_blocks + 16);
        QCOMPARE(statusOf("copy").st_mode & 0777, 0600u);
        for (const char* content : {"", "x"}) {
            WorkFolder::put("small", content);
            QCOMPARE(copyFile("small", std::string("copy of ") + content).text, std::string());
            QCOMPARE(WorkFolder::contentOf(std::string("copy of ") + content), std::string(content));
        }
        // Files under /proc have no size and cannot be copied within the kernel.
        fs::resize_file("sparse", 0);
        QCOMPARE(copyFile("sparse", "empty").text, std::string());
    }

    void refusesToCopyWhatIsNoFile()
    {
        QCOMPARE(mkfifo("fifo", 0600), 0);
        WorkFolder::put("there", "kept");
        QCOMPARE(copyFile("fifo", "copy").text, std::string("cannot be read: not a regular file"));
        QCOMPARE(copyFile("none", "copy").text, std::string("cannot be read: no such file or directory"));
        QCOMPARE(copyFile("there", "no/copy").text,
                 std::string("cannot be written: no such file or directory"));
        QCOMPARE(copyFile("there", "there").text, std::string("cannot be written: file exists"));
        QCOMPARE(WorkFolder::contentOf("there"), std::string("kept"));
        QVERIFY(!fs::exists("copy"));
    }

private:
    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestFileCopy)
#include "TestFileCopy.moc"
