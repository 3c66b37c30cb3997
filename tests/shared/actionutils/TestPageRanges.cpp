#include "CActionUtils.h"
#include "support/Rows.h"

#include <QtTest>

#include <climits>
#include <new>

namespace {

QList<int> counted(int first, int last)
{
    QList<int> pages;
    for (int page = first; page <= last; ++page)
        pages.append(page);
    return pages;
}

} // namespace

class TestPageRanges : public QObject
{
    Q_OBJECT

private slots:
    void validatesLists_data()
    {
        const Rows<QString, bool, bool> row;
        row("empty", "", false, false);
        row("one digit", "7", true, true);
        row("no page 0", "0", false, false);
        row("zeros inside numbers", "10,200", true, true);
        row("space after a comma", "1-3, 7", true, true);
        row("a space does not part two numbers", "1 2", true, true);
        row("a tab is not a space", "1\t", false, false);
        row("letter first", "a1", false, false);
        row("empty item", "1,,2", false, false);
        row("a final comma is accepted", "1,", true, true);
        row("the end is read up to the final comma", "5-2,", false, true);
        row("final dash", "1-", false, false);
        row("leading zero of an item", "1,05", false, false);
        row("leading zero of an end", "1-05", false, false);
        row("two dashes side by side", "1--3", false, false);
        row("two dashes in an item", "1-2-3", false, false);
        row("a dash in each of two items", "1-2,3-4", true, true);
        row("ascending", "2-5", true, true);
        row("descending", "5-2", false, true);
        row("start and end alike", "3-3", false, true);
        row("the start is read from the last comma", "9,10-9", false, true);
        row("an end beyond the largest int reads as 0", "1-99999999999", false, true);
        row("superscript two counts as a digit", QString::fromUtf8("\xc2\xb2"), true, true);
        row("Arabic digits pass, but read as 0", QString::fromUtf8("\xd9\xa3-\xd9\xa5"), false, true);
        row("a minus sign is no dash",
            QString::fromUtf8("1\xe2\x88\x92"
                              "2"),
            false, false);
        row("a digit outside the basic plane is two characters", QString::fromUtf8("\xf0\x9d\x9f\x8f"), false,
            false);
    }

    void validatesLists()
    {
        const auto [text, forward, anyOrder] = Rows<QString, bool, bool>::current();
        QCOMPARE(CActionUtils::ValidatePageRange(text, false), forward);
        QCOMPARE(CActionUtils::ValidatePageRange(text, true), anyOrder);
    }

    void validatesSplitLists()
    {
        for (const char* valid : {"1-3;5-2", "3-3", "1,;2,"})
            QVERIFY2(CActionUtils::ValidateSplitPageRange(valid), valid);
        for (const char* invalid : {"", "1-3;", ";1", "1;;2", "1; ;2", "1;2-;3"})
            QVERIFY2(!CActionUtils::ValidateSplitPageRange(invalid), invalid);
    }

    void listsPages_data()
    {
        const Rows<QString, int, QString, QList<int>> row;
        row("sorted, each once", "3,1-4,4", 10, "", {1, 2, 3, 4});
        row("overlapping ranges", "4-7,1-5,2-3,6", 10, "", counted(1, 7));
        row("even pages", "1-6", 10, "odd", {2, 4, 6});
        row("goes on after a skipped page", "3,4", 10, "odd", {4});
        row("only the start of a range meets the page count", "12,5-20", 10, "", counted(5, 20));
        row("a range that starts too late", "11-12,10-11", 10, "", {10, 11});
        row("a reversed range names nothing", "5-2,1", 10, "", {1});
        row("an empty item is page 0", "1,", 10, "", {0, 1});
        row("page 0 is even", "1,", 10, "even", {1});
        row("a missing start is 0", "-2", 10, "", {0, 1, 2});
        row("a missing end is 0", "2-", 10, "", {});
        row("the end is all after the first dash", "1-3-5", 10, "", {});
        row("a number beyond the largest int is 0", "99999999999", 10, "", {0});
        row("ends at the largest int", "2147483645-2147483647", INT_MAX, "",
            {INT_MAX - 2, INT_MAX - 1, INT_MAX});
        row("the longest range, all skipped", "1-2147483647", 10, "odd even", {});
        row("a negative odd number is no odd page", QString::fromUtf8("\xe2\x88\x92") + "3-2", 10, "odd",
            {-3, -2, -1, 0, 2});
        row("nor an even one", QString::fromUtf8("\xe2\x88\x92") + "3-2", 10, "odd even", {-3, -1});
        row("no pages", "1", 0, "", {});
    }

    void listsPages()
    {
        const auto [text, pageCount, skip, expected] = Rows<QString, int, QString, QList<int>>::current();
        QList<int> pages;
        QVERIFY(
            CActionUtils::GetPageList(text, pageCount, skip.contains("odd"), skip.contains("even"), &pages));
        QCOMPARE(pages, expected);
    }

    void keepsWhatTheListHeld()
    {
        QList<int> pages{9, 3, 3, -1};
        QVERIFY(!CActionUtils::GetPageList("", 10, false, false, &pages));
        QCOMPARE(pages, (QList<int>{9, 3, 3, -1}));
        QVERIFY(CActionUtils::GetPageList("2-4", 10, true, false, &pages));
        QCOMPARE(pages, (QList<int>{-1, 2, 3, 3, 4, 9}));
    }

    void leavesOutWhatMemoryCannotHold()
    {
        QList<int> pages{7, 5};
        QVERIFY(CActionUtils::GetPageList("1-2147483647", 10, false, true, &pages));
        QCOMPARE(pages, (QList<int>{5, 7}));
        QVERIFY(CActionUtils::GetPageList("9,2-2147483647,3-5", 10, false, false, &pages));
        QCOMPARE(pages, (QList<int>{3, 4, 5, 7, 9}));
    }

    // Quadratic work on these would take minutes.
    void takesLinearTime()
    {
        const int items = 500000;
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!CActionUtils::ValidatePageRange(QString("1-").repeated(items), true));
        QVERIFY(CActionUtils::ValidatePageRange(QString("1,").repeated(items), true));
        QVERIFY(CActionUtils::ValidatePageRange(QString("1-2,").repeated(items), false));
        QVERIFY(CActionUtils::ValidatePageRange(QString(2 * items, '1'), false));
        QVERIFY(!CActionUtils::ValidatePageRange("1-" + QString(2 * items, '1'), false));
        QVERIFY(!CActionUtils::ValidateSplitPageRange(QString("1;").repeated(items)));

        QList<int> pages;
        QVERIFY(CActionUtils::GetPageList(QString("1-100000,").repeated(items / 5), 100000, false, false,
                                          &pages));
        QCOMPARE(pages.size(), 100001);
        QVERIFY(CActionUtils::GetPageList("1-200000", 200000, false, false, &pages));
        QCOMPARE(pages, counted(0, 200000));
        QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
    }

    void collectsRuns_data()
    {
        const Rows<QList<int>, QList<int>> row;
        row("empty", {}, {});
        row("no neighbours", {2, 4, 6}, {6, 1, 4, 1, 2, 1});
        row("highest run first", {1, 2, 3, 7, 8, 10}, {10, 1, 7, 2, 1, 3});
        row("a page twice parts the run", {1, 2, 2, 3}, {2, 2, 1, 2});
        row("ends of the range", {INT_MAX, INT_MIN}, {INT_MIN, 1, INT_MAX, 1});
    }

    void collectsRuns()
    {
        auto [pages, expected] = Rows<QList<int>, QList<int>>::current();
        QList<int> runs{0};
        CActionUtils::CollectPageList(&pages, &runs);
        QCOMPARE(runs.takeFirst(), 0);
        QCOMPARE(runs, expected);
    }
};

QTEST_GUILESS_MAIN(TestPageRanges)
#include "TestPageRanges.moc"
