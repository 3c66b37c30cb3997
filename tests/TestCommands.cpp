#include "CActionUtils.h"

#include <QtTest>

class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void mapsEveryKeywordBothWays()
    {
        QCOMPARE(gCommandsList.size(), 43);
        for (int number = 0; number < 43; ++number) {
            const QString keyword = CActionUtils::SplitComGetCommandString(number);
            QCOMPARE(CActionUtils::SplitComGetCommandIndex(keyword), number);
            QCOMPARE(CActionUtils::SplitComGetCommandIndex(keyword.toUpper()), number);
        }
    }

    // One keyword of each group, at its place in the table.
    void findsKeywords_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("number");
        QTest::newRow("first") << "SplitIfTextIsPresent" << 0;
        QTest::newRow("split") << "splitifthistextrepeats" << 6;
        QTest::newRow("header") << "skipheader" << 7;
        QTest::newRow("provide") << "providefilenameafterstringinbox" << 15;
        QTest::newRow("add") << "addtofilename" << 16;
        QTest::newRow("list") << "getfilenamesfromlistinfile" << 22;
        QTest::newRow("include") << "includeall" << 23;
        QTest::newRow("exclude, in its own spelling") << "excludeifnotextcontainted" << 31;
        QTest::newRow("extract") << "extractfilename" << 32;
        QTest::newRow("rectangle") << "extracttextlineafterstringinrect" << 41;
        QTest::newRow("last") << "FILLINFODICTENTRY" << 42;
        QTest::newRow("the Kelvin sign is a capital k") << QString("s%1ipheader").arg(QChar(0x212a)) << 7;
        QTest::newRow("empty") << "" << -1;
        QTest::newRow("space before") << " includeall" << -1;
        QTest::newRow("space after") << "includeall " << -1;
        QTest::newRow("part of a keyword") << "include" << -1;
        QTest::newRow("another letter") << "includeell" << -1;
        QTest::newRow("a dotless i stays as it is") << QString("%1ncludeall").arg(QChar(0x131)) << -1;
    }

    void findsKeywords()
    {
        QFETCH(QString, name);
        QTEST(CActionUtils::SplitComGetCommandIndex(name), "number");
    }

    void answersUnknownNumbers()
    {
        QCOMPARE(CActionUtils::SplitComGetCommandString(23), QString("includeall"));
        for (const int number : {-1, 43, INT_MIN, INT_MAX})
            QCOMPARE(CActionUtils::SplitComGetCommandString(number), QString("INVALID_INDEX"));
    }
};

QTEST_GUILESS_MAIN(TestCommands)
#include "TestCommands.moc"
