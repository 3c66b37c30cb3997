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

    void findsKeywords()
    {
        // One keyword of each group, at its place in the table, and what is none.
        const std::pair<QString, int> keywords[] = {{"SplitIfTextIsPresent", 0},
                                                    {"splitifthistextrepeats", 6},
                                                    {"skipheader", 7},
                                                    {"providefilenameafterstringinbox", 15},
                                                    {"addtofilename", 16},
                                                    {"getfilenamesfromlistinfile", 22},
                                                    {"includeall", 23},
                                                    {"excludeifnotextcontainted", 31},
                                                    {"extractfilename", 32},
                                                    {"extracttextlineafterstringinrect", 41},
                                                    {"FILLINFODICTENTRY", 42},
                                                    {QString("s%1ipheader").arg(QChar(0x212a)), 7}, // Kelvin
                                                    {"", -1},
                                                    {" includeall", -1},
                                                    {"include", -1},
                                                    {QString("%1ncludeall").arg(QChar(0x131)), -1}};
        for (const auto& [name, number] : keywords)
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
