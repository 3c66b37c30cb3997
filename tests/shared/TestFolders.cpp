#include "shared/CUtils.h"
#include "shared/actionutils/CActionUtils.h"
#include "support/Rows.h"

#include <QDirIterator>
#include <QtTest>

#include <unistd.h>

#include <algorithm>
#include <optional>

/// Folders and temporary names, in a home and a temporary folder of the test's own.
class TestFolders : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home.emplace();
        QVERIFY(m_home->isValid());
        for (const char* folder : {"data", "Documents", "temp"})
            QVERIFY(QDir(m_home->path()).mkdir(folder));
        qputenv("HOME", m_home->path().toUtf8());
        qputenv("XDG_CONFIG_HOME", m_home->filePath("config").toUtf8());
        qputenv("XDG_DATA_HOME", m_home->filePath("data").toUtf8());
        qputenv("TMPDIR", m_home->filePath("temp").toUtf8());
        QCoreApplication::setApplicationName("The Host");
    }

    void cleanup() { m_home.reset(); }

    void composesPathsExactly()
    {
        const QString tools = m_home->filePath("data") + "/kelvane software/Plexor/";
        for (const QString& unnamed : {QString(), QString("")}) {
            CUtils::SetAppName("another name");
            QCOMPARE(CUtils::GetAppName(), QString("another name"));
            CUtils::SetAppName(unnamed);
            QCOMPARE(CUtils::GetAppName(), QString("Plexor"));
        }
        CUtils::SetAppName("another name");
        QCOMPARE(CUtils::GetAppDataFolder(), m_home->filePath("data"));
        QCOMPARE(CUtils::GetAppDataToolsFolder(), tools);
        QCOMPARE(CUtils::GetSequenceFolder(), tools + "Actions");
        QCOMPARE(CUtils::GetWFFolder(), tools + "WF");
        QCOMPARE(CUtils::GetReportsFolder(), tools + "/Reports/Action Reports");
        QCOMPARE(CUtils::GetAppLogFolder(), tools + "/Reports/App Log");
        QCOMPARE(CUtils::GetSettingsFolder(), tools + "/Settings");
        QCOMPARE(CUtils::GetCollectionsFolder(), tools + "/Settings/Favorites");
        QCOMPARE(CUtils::GetAdvSplitTemplatesFolder(), tools + "/Settings/AdvSplitTemplates");
        QCOMPARE(CUtils::GetActionFolder(), QString("./Tools"));
        QCOMPARE(CActionUtils::GetSettingsFolder(), CUtils::GetSettingsFolder());
        QCOMPARE(CActionUtils::GetCollectionsFolder(), CUtils::GetCollectionsFolder());
        QCOMPARE(CActionUtils::GetSequenceFolder(), CUtils::GetSequenceFolder());
        QCOMPARE(CActionUtils::GetQuintarAppDataFolder(), CUtils::GetAppDataToolsFolder());
        QVERIFY(foldersBelowHome().isEmpty());
    }

    void setsTheFoldersUp_data()
    {
        const Rows<QStringList, QStringList, QStringList> row;
        row("all", {}, {}, {});
        row("no data root", {"data"}, {}, {"data/"});
        row("no documents root", {"Documents"}, {}, {"Documents/"});
        row("a file in the way of Input", {}, {"Documents/The Host/Input"}, {"Documents/The Host/Input"});
    }

    void setsTheFoldersUp()
    {
        const auto [removed, files, missing] = Rows<QStringList, QStringList, QStringList>::current();
        const QDir home(m_home->path());
        for (const QString& folder : removed)
            QVERIFY(home.rmdir(folder));
        for (const QString& file : files) {
            QVERIFY(home.mkpath(QFileInfo(file).path()));
            QVERIFY(QFile(home.filePath(file)).open(QIODevice::WriteOnly));
        }
        QStringList expected = m_tree;
        for (const QString& part : missing) {
            const auto lacks = [&](const QString& folder) { return folder.startsWith(part); };
            expected.erase(std::remove_if(expected.begin(), expected.end(), lacks), expected.end());
        }
        CUtils::SetupFolders();
        QCOMPARE(foldersBelowHome(), expected);
        CUtils::SetupFolders();
        QCOMPARE(foldersBelowHome(), expected);
    }

    void makesTemporaryFolders()
    {
        for (const char* made : {"job", "job_0", "job_1"}) {
            QString name = "job";
            const QDir folder = CUtils::GetNewTempFolder(&name);
            QCOMPARE(name, QDir::tempPath() + '/' + made);
            QVERIFY(folder == QDir(name) && folder.exists());
        }
        QVERIFY(QDir::temp().rmdir("job_0") && QFile(QDir::tempPath() + "/job_0").open(QIODevice::WriteOnly));
        QVERIFY(QDir::temp().mkdir("job_3"));
        QString name = "job";
        CUtils::GetNewTempFolder(&name);
        QCOMPARE(name, QDir::tempPath() + "/job_2");

        const QString file = m_home->filePath("file");
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
        qputenv("TMPDIR", file.toUtf8());
        name = "job";
        QCOMPARE(CUtils::GetNewTempFolder(&name), QDir::temp());
        QCOMPARE(name, file + '/');
    }

    void answersTheLastFolderWhenAllNumbersAreTaken()
    {
        // A hundred thousand names are quickly made in memory only.
        const QTemporaryDir inMemory("/dev/shm/TestFolders-XXXXXX");
        if (!inMemory.isValid())
            QSKIP("no file system in memory");
        qputenv("TMPDIR", inMemory.path().toUtf8());
        QDir temp = QDir::temp();
        QVERIFY(temp.mkdir("job"));
        const QByteArray target = temp.filePath("job").toUtf8();
        for (int number = 0; number < 100000; ++number) {
            const QByteArray link = target + '_' + QByteArray::number(number);
            QCOMPARE(::symlink(target.constData(), link.constData()), 0);
        }
        QString name = "job";
        CUtils::GetNewTempFolder(&name);
        QCOMPARE(name, temp.filePath("job_99999"));

        QVERIFY(QFile::remove(name));
        name = "job";
        CUtils::GetNewTempFolder(&name);
        QCOMPARE(name, temp.filePath("job_99999"));
        QVERIFY(!QFileInfo(name).isSymLink());
    }

    void findsTemporaryFileNames()
    {
        char prefix[] = "scan";
        QCOMPARE(CUtils::GetNewTempFile(prefix), QDir::tempPath() + "/scan_1.pdf");
        const auto take = [](int number) {
            return QFile(QDir::tempPath() + QString("/scan_%1.pdf").arg(number)).open(QIODevice::WriteOnly);
        };
        QVERIFY(take(1));
        QCOMPARE(CUtils::GetNewTempFile(prefix), QDir::tempPath() + "/scan_2.pdf");
        for (int number = 3; number <= 9999; ++number)
            QVERIFY(take(number));
        QCOMPARE(CUtils::GetNewTempFile(prefix), QDir::tempPath() + "/scan_2.pdf");
        QVERIFY(take(2));
        QCOMPARE(CUtils::GetNewTempFile(prefix), QString());
        for (const auto& [text, name] : {std::pair<QByteArray, QString>{"\xc3\xa9", QString(QChar(0xe9))},
                                         {"%1%2%s%d", "%1%2%s%d"},
                                         {"a\\b\\", "a/b/"},
                                         {"", ""}})
            QCOMPARE(CUtils::GetNewTempFile(QByteArray(text).data()),
                     QDir::tempPath() + '/' + name + "_1.pdf");
    }

private:
    /// The folders below the home, but for those that init makes.
    QStringList foldersBelowHome() const
    {
        QStringList folders;
        QDirIterator all(m_home->path(), QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString folder = QDir(m_home->path()).relativeFilePath(all.next());
            if (folder.contains('/'))
                folders.append(folder);
        }
        folders.sort();
        return folders;
    }

    const QStringList m_tree =
        QStringList{"Documents/The Host", "Documents/The Host/Input", "Documents/The Host/Output"} +
        QString("data/kelvane software#/Plexor#/Actions#/Reports#/Reports/Action Reports#/Reports/App Log#"
                "/Scripts#/Settings#/Settings/AdvSplitTemplates#/Settings/Favorites#/WF")
            .replace("#/P", "\ndata/kelvane software/P")
            .replace("#", "\ndata/kelvane software/Plexor")
            .split('\n');
    std::optional<QTemporaryDir> m_home;
};

QTEST_GUILESS_MAIN(TestFolders)
#include "TestFolders.moc"
