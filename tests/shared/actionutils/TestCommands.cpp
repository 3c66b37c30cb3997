#include "CActionUtils.h"
#include "support/Rows.h"

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
        const Rows<QString, int> row;
        row("first", "SplitIfTextIsPresent", 0);
        row("split", "splitifthistextrepeats", 6);
        row("header", "skipheader", 7);
        row("provide", "providefilenameafterstringinbox", 15);
        row("add", "addtofilename", 16);
        row("list", "getfilenamesfromlistinfile", 22);
        row("include", "includeall", 23);
        row("exclude, in its own spelling", "excludeifnotextcontainted", 31);
        row("extract", "extractfilename", 32);
        row("rectangle", "extracttextlineafterstringinrect", 41);
        row("last", "FILLINFODICTENTRY", 42);
        row("the Kelvin sign is a capital k", QString("s%1ipheader").arg(QChar(0x212a)), 7);
        row("empty", "", -1);
        row("space before", " includeall", -1);
        row("part of a keyword", "include", -1);
        row("another letter", "includeell", -1);
        row("a dotless i stays as it is", QString("%1ncludeall").arg(QChar(0x131)), -1);
    }

    void findsKeywords()
    {
        const auto [name, number] = Rows<QString, int>::current();
        QCOMPARE(CActionUtils::SplitComGetCommandIndex(name), number);
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
