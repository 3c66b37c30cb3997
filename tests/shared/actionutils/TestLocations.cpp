#include "CActionUtils.h"
#include "CUtils.h"
#include "support/Rows.h"
#include "support/folders/TemporaryHome.h"

#include <QSettings>
#include <QtTest>

#include <optional>

class TestLocations : public QObject
{
    Q_OBJECT

private:
    std::optional<TemporaryHome> m_home;

    static QString file() { return CUtils::GetSettingsFolder() + "/LastVisitedLocations.qsf"; }

private slots:
    void init() { m_home.emplace(); }

    void answersWhatWasNeverSaved()
    {
        QCOMPARE(CActionUtils::GetLastVisitedLocation("open"), m_home->filePath("Desktop"));
        QCOMPARE(CActionUtils::GetLastEnteredLinks("link"), QStringList());
        QVERIFY2(!QFile::exists(file()), "reading leaves no file");
    }

    void keepsTexts_data()
    {
        const Rows<QString> row;
        row("folder", "/srv/scans");
        row("empty, which is not the desktop", "");
        row("what an INI file sets apart", "C:\\a, \"b\"; c=d % [e] #f");
        row("the mark of a typed value", "@Invalid()");
        row("white space", "  a\tb\r\nc  ");
        row("other scripts", QString::fromUtf8("/\xe6\x97\xa5\xe6\x9c\xac/\xc3\xbc/\xf0\x9f\x93\x84"));
        row("long", QString(5000, 'x'));
    }

    void keepsTexts()
    {
        const auto [text] = Rows<QString>::current();
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
        const Rows<QString, QString> row;
        row("five of six", "a b c d e f", "f e d c b");
        row("again moves to the front", "a b a", "a b");
        row("again among five drops none", "a b c d e c", "c e d b a");
        row("twice in a row", "a a", "a");
        row("case makes another link", "a A", "A a");
    }

    void keepsTheLatestLinks()
    {
        const auto [entered, kept] = Rows<QString, QString>::current();
        for (const QString& link : entered.split(' '))
            CActionUtils::SaveLastEnteredLink("Dialog/Link field", link);
        QCOMPARE(CActionUtils::GetLastEnteredLinks("Dialog/Link field").join(' '), kept);
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

    void takesKeysOfGroups()
    {
        for (const char* key : {"g1/g2/k", "1/path", "General/k", "%general/\xc3\xbc k"}) {
            CActionUtils::SaveLastVisitedLocation(QString::fromUtf8(key), "/a");
            CActionUtils::SaveLastVisitedLocation("place", QString("/") + key);
            QCOMPARE(CActionUtils::GetLastVisitedLocation(QString::fromUtf8(key)), QString("/a"));
            QCOMPARE(CActionUtils::GetLastVisitedLocation("place"), QString("/") + key);
        }
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
