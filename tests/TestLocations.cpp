#include "CActionUtils.h"
#include "CUtils.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class TestLocations : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;

    static QString file() { return CUtils::GetSettingsFolder() + "/LastVisitedLocations.qsf"; }

private slots:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        qputenv("HOME", QFile::encodeName(m_home->path()));
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_home->filePath("data")));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home->filePath("config")));
    }

    void answersWhatWasNeverSaved()
    {
        QCOMPARE(CActionUtils::GetLastVisitedLocation("open"), m_home->filePath("Desktop"));
        QCOMPARE(CActionUtils::GetLastEnteredLinks("link"), QStringList());
        QVERIFY2(!QFile::exists(file()), "reading leaves no file");
    }

    void keepsTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("folder") << "/srv/scans";
        QTest::newRow("empty, which is not the desktop") << "";
        QTest::newRow("what an INI file sets apart") << "C:\\a, \"b\"; c=d % [e] #f";
        QTest::newRow("the mark of a typed value") << "@Invalid()";
        QTest::newRow("white space") << "  a\tb\r\nc  ";
        QTest::newRow("other scripts")
            << QString::fromUtf8("/\xe6\x97\xa5\xe6\x9c\xac/\xc3\xbc/\xf0\x9f\x93\x84");
        QTest::newRow("long") << QString(5000, 'x');
    }

    void keepsTexts()
    {
        QFETCH(QString, text);
        CActionUtils::SaveLastVisitedLocation("place", "before");
        CActionUtils::SaveLastVisitedLocation("place", text);
        CActionUtils::SaveLastEnteredLink("links", text);
        CActionUtils::SaveLastVisitedLocation("other", "else");
        QCOMPARE(CActionUtils::GetLastVisitedLocation("place"), text);
        QCOMPARE(CActionUtils::GetLastEnteredLinks("links"), QStringList{text});
        CActionUtils::SaveLastEnteredLink("links", "newer");
        QCOMPARE(CActionUtils::GetLastEnteredLinks("links"), (QStringList{"newer", text}));
    }

    void keepsTheLatestLinks_data()
    {
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("kept");
        QTest::newRow("five of six") << "a b c d e f"
                                     << "f e d c b";
        QTest::newRow("again moves to the front") << "a b a"
                                                  << "a b";
        QTest::newRow("again among five drops none") << "a b c d e c"
                                                     << "c e d b a";
        QTest::newRow("twice in a row") << "a a"
                                        << "a";
        QTest::newRow("case makes another link") << "a A"
                                                 << "A a";
    }

    void keepsTheLatestLinks()
    {
        QFETCH(QString, entered);
        for (const QString& link : entered.split(' '))
            CActionUtils::SaveLastEnteredLink("Dialog/Link field", link);
        QTEST(CActionUtils::GetLastEnteredLinks("Dialog/Link field").join(' '), "kept");
        QCOMPARE(CActionUtils::GetLastEnteredLinks("Dialog/Other field"), QStringList());
    }

    void sharesTheFileWithOthers()
    {
        QDir().mkpath(CUtils::GetSettingsFolder());
        {
            QSettings others(file(), QSettings::IniFormat);
            others.setValue("links", QStringList{"1", "2", "3", "2", "4", "5", "6", "7"});
            others.setValue("place", "/theirs");
        }
        QCOMPARE(CActionUtils::GetLastVisitedLocation("place"), QString("/theirs"));
        CActionUtils::SaveLastEnteredLink("links", "0");
        const QSettings others(file(), QSettings::IniFormat);
        QCOMPARE(others.value("links").toStringList(), (QStringList{"0", "1", "2", "3", "4"}));
        QCOMPARE(others.value("place").toString(), QString("/theirs"));
    }

    void losesWhatCannotBeKept()
    {
        QVERIFY(QDir().mkpath(file()));
        CActionUtils::SaveLastVisitedLocation("place", "/x");
        CActionUtils::SaveLastEnteredLink("links", "x");
        QCOMPARE(CActionUtils::GetLastVisitedLocation("place"), m_home->filePath("Desktop"));
        QCOMPARE(CActionUtils::GetLastEnteredLinks("links"), QStringList());
    }

    void doesNotWaitForABlockedLock()
    {
        QVERIFY(QDir().mkpath(file() + ".lock"));
        QElapsedTimer timer;
        timer.start();
        CActionUtils::SaveLastVisitedLocation("place", "/x");
        QCOMPARE(CActionUtils::GetLastVisitedLocation("place"), QString("/x"));
        QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_GUILESS_MAIN(TestLocations)
#include "TestLocations.moc"
