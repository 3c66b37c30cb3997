#include "shared/ini/CIniFile.h"
#include "support/Rows.h"
#include "support/folders/TemporaryHome.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <utime.h>

#include <thread>

namespace {

using Access = CIniFile::Access;

const int additions = 20;
const char* const addCommand = "--add";
const char* const addPlainlyCommand = "--add-plainly";

bool store(const QString& path, const QString& key, const QVariant& value, Access access = Access::Extend)
{
    CIniFile file(path, access);
    file.setValue(key, value);
    return file.commit();
}

QVariant plainly(const QString& path, const QString& key)
{
    return QSettings(path, QSettings::IniFormat).value(key);
}

bool makeFifo(const QString& path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

QString keyOf(const QString& writer, int number)
{
    return writer + QString::number(number);
}

/// Lets so many users read and write, but not the owning group, whose bits are the mask, nor others.
QByteArray accessListFor(int users)
{
    QByteArray list;
    QDataStream stream(&list, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    const auto grant = [&](quint16 tag, quint16 rights, quint32 id) { stream << tag << rights << id; };
    const quint32 nobodyNamed = 0xffffffff;
    stream << quint32(2); // the version
    grant(0x01, 6, nobodyNamed);
    for (int user = 0; user < users; ++user)
        grant(0x02, 6, 1000 + quint32(user));
    grant(0x04, 0, nobodyNamed);
    grant(0x10, 6, nobodyNamed);
    grant(0x20, 0, nobodyNamed);
    return list;
}

bool setList(const QString& path, const char* name, const QByteArray& list)
{
    return setxattr(QFile::encodeName(path).constData(), name, list.constData(), std::size_t(list.size()),
                    0) == 0;
}

/// \param users how many there is room for.
QByteArray listOf(const QString& path, int users)
{
    QByteArray list(accessListFor(users).size(), '\0');
    const ssize_t size = getxattr(QFile::encodeName(path).constData(), "system.posix_acl_access", list.data(),
                                  std::size_t(list.size()));
    return list.left(std::max(0, int(size)));
}

int addAll(const QString& path, const QString& writer, bool byQSettings)
{
    int failures = 0;
    for (int i = 0; i < additions; ++i) {
        if (byQSettings)
            QSettings(path, QSettings::IniFormat).setValue(keyOf(writer, i), i);
        else if (!store(path, keyOf(writer, i), i))
            ++failures;
    }
    return failures;
}

} // namespace

class TestIniFile : public QObject
{
    Q_OBJECT

    // In memory, where several files are written within one millisecond and nobody waits for a disk.
    QTemporaryDir m_folder{(QFileInfo::exists("/dev/shm") ? "/dev/shm" : QDir::tempPath()) + "/ini-XXXXXX"};
    QString m_path;

    QStringList allNames() const
    {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private slots:
    void init()
    {
        QDir(m_folder.path()).removeRecursively();
        QVERIFY(QDir().mkpath(m_folder.path()));
        m_path = m_folder.filePath("sub/one.ini");
        QVERIFY(QDir().mkpath(m_folder.filePath("sub")));
    }

    void writesWhatQSettingsReads()
    {
        const QVariantMap map{{"flag", true}, {"number", -7}, {"text", QString::fromUtf8("\xc3\xbc=\n;\"")}};
        const QVariantMap values{
            {"plain", "text"},
            {"@at", "@at"},
            {"with space/%&=", "a,b"},
            {QString::fromUtf8("gr\xc3\xbc\xc3\x9f"), QString::fromUtf8("\xe2\x82\xac \\x41")},
            {"list", QStringList{"a", "b,c", ""}},
            {"map", map},
            {"bytes", QByteArray("\0\1\xff", 3)},
        };
        {
            CIniFile file(m_path, Access::Extend);
            for (auto it = values.begin(); it != values.end(); ++it)
                file.setValue(it.key(), it.value());
            QCOMPARE(file.value("map").toMap(), map);
            QVERIFY(!QFile::exists(m_path));
            QVERIFY(file.commit());
            QVERIFY(!file.contains("plain"));
        }
        const CIniFile readBack(m_path, Access::Read);
        for (auto it = values.begin(); it != values.end(); ++it) {
            QCOMPARE(plainly(m_path, it.key()), it.value());
            QVERIFY(readBack.contains(it.key()));
            QCOMPARE(readBack.value(it.key()), it.value());
        }
        QCOMPARE(
            QDir(m_folder.filePath("sub")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{"one.ini"});
    }

    void extendsOrReplaces()
    {
        QVERIFY(writeFile(m_path, "[General]\nold=1\n\n[group]\nk=2\n"));
        QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(store(m_path, "new", 3));
        QCOMPARE(plainly(m_path, "old").toInt(), 1);
        QCOMPARE(plainly(m_path, "group/k").toInt(), 2);
        QCOMPARE(plainly(m_path, "new").toInt(), 3);
        QCOMPARE(QFile::permissions(m_path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());

        QVERIFY(store(m_path, "only", 4, Access::Replace));
        QCOMPARE(QSettings(m_path, QSettings::IniFormat).allKeys(), QStringList{"only"});
    }

    void grantsNobodyMore()
    {
        QVERIFY(writeFile(m_path, "[General]\nold=1\n"));
        QVERIFY(QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
        // What is made from now on in this folder grants something to another user.
        if (!setList(m_folder.filePath("sub"), "system.posix_acl_default", accessListFor(1)))
            QSKIP("no access lists here");
        QVERIFY(store(m_path, "new", 2));
        QCOMPARE(listOf(m_path, 1), QByteArray());

        const int many = 600;
        if (!setList(m_path, "system.posix_acl_access", accessListFor(many)))
            QSKIP("no access lists of this length here");
        QVERIFY(store(m_path, "new", 3));
        QCOMPARE(listOf(m_path, many), accessListFor(many));
    }

    void makesTheFolder()
    {
        const QString deep = m_folder.filePath("a/b/c.ini");
        QVERIFY(!CIniFile(deep, Access::Read).contains("k"));
        QVERIFY(!QFile::exists(m_folder.filePath("a")));
        QVERIFY(store(deep, "k", 1));
        QCOMPARE(plainly(deep, "k").toInt(), 1);
    }

    void leavesNoTraceWithoutCommit()
    {
        QVERIFY(writeFile(m_path, "[General]\nk=1\n"));
        {
            CIniFile file(m_path, Access::Replace);
            file.setValue("k", 2);
            CIniFile reader(m_path, Access::Read);
            reader.setValue("k", 3);
            QVERIFY(!reader.commit());
        }
        QCOMPARE(bytesOf(m_path), QByteArray("[General]\nk=1\n"));
    }

    void isSeenByQSettingsThatKnewTheOldFile()
    {
        for (int i = 100; i < 400; ++i) {
            QVERIFY(store(m_path, "k", i, i % 2 ? Access::Extend : Access::Replace));
            QCOMPARE(plainly(m_path, "k").toInt(), i);
            QCOMPARE(CIniFile(m_path, Access::Read).value("k").toInt(), i);
        }
    }

    void neverHangsOnTheLock_data()
    {
        const Rows<QString, int> row;
        row("a folder", "folder", 1500);
        row("a FIFO", "fifo", 1500);
        row("a link to a FIFO", "link", 1500);
        row("a huge file", "huge", 1500);
        row("left by a dead process", "dead", 1500);
        row("old and empty", "old", 1500);
        row("new and empty", "new", 5000);
    }

    void neverHangsOnTheLock()
    {
        const auto [kind, longest] = Rows<QString, int>::current();
        const QString lock = m_path + ".lock";
        if (kind == "folder")
            QVERIFY(QDir().mkpath(lock + "/filled"));
        else if (kind == "fifo")
            QVERIFY(makeFifo(lock));
        else if (kind == "link")
            QVERIFY(makeFifo(m_path + ".fifo") && QFile::link(m_path + ".fifo", lock));
        else if (kind == "dead")
            QVERIFY(writeFile(lock, "999999999\nquintar\n" + QSysInfo::machineHostName().toUtf8() + "\n"));
        else
            QVERIFY(writeFile(lock, QByteArray()));
        if (kind == "huge")
            QVERIFY(QFile::resize(lock, qint64(1) << 36));
        const utimbuf longAgo{1000000000, 1000000000};
        if (kind == "old")
            QCOMPARE(utime(QFile::encodeName(lock).constData(), &longAgo), 0);

        QElapsedTimer timer;
        timer.start();
        QVERIFY(store(m_path, "k", 1));
        QCOMPARE(CIniFile(m_path, Access::Read).value("k").toInt(), 1);
        QVERIFY2(timer.elapsed() < longest, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(kind != "folder" || QFile::exists(lock + "/filled"));
    }

    void leavesAloneWhatIsNoSettingsFile()
    {
        QVERIFY(QDir().mkpath(m_path + "/filled"));
        QVERIFY(!store(m_path, "k", 1, Access::Replace));
        QVERIFY(!store(m_path, "k", 1));
        QVERIFY(QFile::exists(m_path + "/filled"));

        const QString fifo = m_folder.filePath("fifo.ini");
        QVERIFY(makeFifo(fifo));
        QVERIFY(!CIniFile(fifo, Access::Read).contains("k"));
        QVERIFY(!store(fifo, "k", 1));
        QVERIFY(!QFileInfo(fifo).isFile());

        const QString huge = m_folder.filePath("huge.ini");
        QVERIFY(writeFile(huge, "[General]\nk=5\n"));
        QVERIFY(QFile::resize(huge, qint64(1) << 36));
        QVERIFY(!CIniFile(huge, Access::Read).contains("k"));
        QVERIFY(!store(huge, "k", 1));
        QCOMPARE(QFileInfo(huge).size(), qint64(1) << 36);

        for (const QString& path : {QString(), QString("/proc/none/k.ini"), QString("/proc/k.ini"),
                                    m_folder.filePath(QString("a") + QChar(0) + "b"), m_folder.filePath(""),
                                    m_folder.filePath(QString(300, 'n'))}) {
            QVERIFY(!store(path, "k", 1));
            QVERIFY(!store(path, "k", 1, Access::Replace));
            QVERIFY(!CIniFile(path, Access::Read).contains("k"));
        }
        QCOMPARE(allNames(), (QStringList{"fifo.ini", "huge.ini", "sub"}));
    }

    void writesThroughLinks()
    {
        const QString real = m_folder.filePath("real.ini");
        QVERIFY(writeFile(real, "[General]\nold=1\n"));
        QVERIFY(QFile::link(real, m_path));
        QVERIFY(store(m_path, "new", 2));
        QVERIFY(QFileInfo(m_path).isSymLink());
        QCOMPARE(plainly(real, "old").toInt() + plainly(real, "new").toInt(), 3);

        QVERIFY(store(m_path, "k", 3, Access::Replace));
        QVERIFY(!QFileInfo(m_path).isSymLink());
        QCOMPARE(plainly(real, "new").toInt(), 2);

        const QString loop = m_folder.filePath("loop.ini");
        QVERIFY(QFile::link(loop, loop));
        QVERIFY(!store(loop, "k", 1));
        const QString dangling = m_folder.filePath("dangling.ini");
        QVERIFY(QFile::link(m_folder.filePath("later.ini"), dangling));
        QVERIFY(store(dangling, "k", 1));
        QCOMPARE(plainly(m_folder.filePath("later.ini"), "k").toInt(), 1);
    }

    void replacesWhatCannotBeParsed()
    {
        QVERIFY(writeFile(m_path, "no settings at all\n[open\n=\n\xff\xfe"));
        QVERIFY(!CIniFile(m_path, Access::Read).contains("k"));
        QVERIFY(store(m_path, "k", 1));
        QCOMPARE(plainly(m_path, "k").toInt(), 1);
    }

    void losesNothingAmongWriters()
    {
        QProcess other;
        QProcess plain;
        const QString self = QCoreApplication::applicationFilePath();
        other.start(self, {addCommand, m_path, "process"});
        plain.start(self, {addPlainlyCommand, m_path, "plain"});
        int threadFailures = 0;
        std::thread thread([&] { threadFailures = addAll(m_path, "thread", false); });
        const int failures = addAll(m_path, "main", false);
        thread.join();
        QVERIFY(other.waitForFinished(60000) && plain.waitForFinished(60000));
        QCOMPARE(failures + threadFailures + other.exitCode() + plain.exitCode(), 0);

        const CIniFile file(m_path, Access::Read);
        for (const QString writer : {"process", "plain", "thread", "main"})
            for (int i = 0; i < additions; ++i)
                QVERIFY2(file.contains(keyOf(writer, i)), qPrintable(keyOf(writer, i)));
    }
};

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 4 && arguments.at(1).startsWith(addCommand))
        return addAll(arguments.at(2), arguments.at(3), arguments.at(1) == addPlainlyCommand);
    TestIniFile test;
    return QTest::qExec(&test, arguments);
}

#include "TestIniFile.moc"
