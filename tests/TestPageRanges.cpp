#include "CActionUtils.h"

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
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("forward");
        QTest::addColumn<bool>("anyOrder");
        const auto row = [](const char* text, bool forward, bool anyOrder, const char* why) {
            QTest::newRow(why) << QString::fromUtf8(text) << forward << anyOrder;
        };
        row("", false, false, "empty");
        row(" ", false, false, "empty without its spaces");
        row("7", true, true, "one digit");
        row("0", false, false, "no page 0");
        row("12", true, true, "two digits");
        row("10,200", true, true, "zeros inside numbers");
        row("1-3, 7", true, true, "space after a comma");
        row("1 - 3", true, true, "spaces around a dash");
        row("1 2", true, true, "a space does not part two numbers");
        row("1\t", false, false, "a tab is not a space");
        row("a1", false, false, "letter first");
        row("1a", false, false, "letter last");
        row(",1", false, false, "comma first");
        row("-1", false, false, "dash first");
        row("1,,2", false, false, "empty item");
        row("1,", true, true, "a final comma is accepted");
        row("1-2,", true, true, "a final comma after a range");
        row("5-2,", false, true, "the end is read up to the final comma");
        row("1-", false, false, "final dash");
        row("1,2-", false, false, "final dash in a later item");
        row("1,05", false, false, "leading zero of an item");
        row("1-05", false, false, "leading zero of an end");
        row("1--3", false, false, "two dashes side by side");
        row("1-2-3", false, false, "two dashes in an item");
        row("1,2-4-6", false, false, "two dashes in a later item");
        row("1-2,3-4", true, true, "a dash in each of two items");
        row("2-5", true, true, "ascending");
        row("5-2", false, true, "descending");
        row("3-3", false, true, "start and end alike");
        row("9,10-9", false, true, "the start is read from the last comma");
        row("9-10,11", true, true, "the end is read to the next comma");
        row("1-99999999999", false, true, "an end beyond the largest int reads as 0");
        row("99999999999-1", true, true, "so does a start");
        row("1-2147483647", true, true, "the largest int");
        row("1;2", false, false, "a semicolon is no separator here");
        row("\xc2\xb2", true, true, "superscript two counts as a digit");
        row("1\xef\xbc\x92", true, true, "so does a full width two");
        row("\xd9\xa3-\xd9\xa5", false, true, "Arabic digits pass, but read as 0");
        row("1\xe2\x88\x92"
            "2",
            false, false, "a minus sign is no dash");
        row("\xf0\x9d\x9f\x8f", false, false, "a digit outside the basic plane is two characters");
    }

    void validatesLists()
    {
        QFETCH(QString, text);
        QTEST(CActionUtils::ValidatePageRange(text, false), "forward");
        QTEST(CActionUtils::ValidatePageRange(text, true), "anyOrder");
    }

    void refusesEmbeddedNul()
    {
        QVERIFY(!CActionUtils::ValidatePageRange(QString("1,2").replace(1, 1, QChar(0)), true));
    }

    void validatesSplitLists_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::newRow("reverse ranges are allowed") << "1-3;5-2" << true;
        QTest::newRow("one part") << "3-3" << true;
        QTest::newRow("final commas") << "1,;2," << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("last part empty") << "1-3;" << false;
        QTest::newRow("first part empty") << ";1" << false;
        QTest::newRow("middle part empty") << "1;;2" << false;
        QTest::newRow("part of spaces") << "1; ;2" << false;
        QTest::newRow("one bad part") << "1;2-;3" << false;
    }

    void validatesSplitLists()
    {
        QFETCH(QString, text);
        QTEST(CActionUtils::ValidateSplitPageRange(text), "valid");
    }

    void listsPages_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("pageCount");
        QTest::addColumn<QString>("skip");
        QTest::addColumn<QList<int>>("pages");
        const auto row = [](const QString& text, int pageCount, const char* skip, const QList<int>& pages,
                            const char* why) { QTest::newRow(why) << text << pageCount << skip << pages; };
        row("3,1-4,4", 10, "", {1, 2, 3, 4}, "sorted, each once");
        row("4-7,1-5,2-3,6", 10, "", counted(1, 7), "overlapping ranges");
        row("1-6", 10, "odd", {2, 4, 6}, "even pages");
        row("1-6", 10, "even", {1, 3, 5}, "odd pages");
        row("1-6", 10, "odd even", {}, "neither");
        row("3,4", 10, "odd", {4}, "goes on after a skipped page");
        row("12,5-20", 10, "", counted(5, 20), "only the start of a range meets the page count");
        row("11-12,10-11", 10, "", {10, 11}, "a range that starts too late");
        row("5-2,1", 10, "", {1}, "a reversed range names nothing");
        row("1,", 10, "", {0, 1}, "an empty item is page 0");
        row("1,", 10, "even", {1}, "page 0 is even");
        row("x,2", 10, "", {0, 2}, "a word is page 0");
        row(" 2 , 3 - 4 ", 10, "", {2, 3, 4}, "spaces around numbers");
        row("-2", 10, "", {0, 1, 2}, "a missing start is 0");
        row("2-", 10, "", {}, "a missing end is 0");
        row("1-3-5", 10, "", {}, "the end is all after the first dash");
        row("99999999999", 10, "", {0}, "a number beyond the largest int is 0");
        row("2147483645-2147483647", INT_MAX, "", {INT_MAX - 2, INT_MAX - 1, INT_MAX},
            "ends at the largest int");
        row("1-2147483647", 10, "odd even", {}, "the longest range, all skipped");
        row(QString::fromUtf8("\xe2\x88\x92") + "3-2", 10, "odd", {-3, -2, -1, 0, 2},
            "a negative odd number is no odd page");
        row(QString::fromUtf8("\xe2\x88\x92") + "3-2", 10, "odd even", {-3, -1}, "nor an even one");
        row("1", 0, "", {}, "no pages");
    }

    void listsPages()
    {
        QFETCH(QString, text);
        QFETCH(int, pageCount);
        QFETCH(QString, skip);
        QList<int> pages;
        QVERIFY(
            CActionUtils::GetPageList(text, pageCount, skip.contains("odd"), skip.contains("even"), &pages));
        QTEST(pages, "pages");
    }

    void keepsWhatTheListHeld()
    {
        QList<int> pages{9, 3, 3, -1};
        QVERIFY(!CActionUtils::GetPageList("", 10, false, false, &pages));
        QCOMPARE(pages, (QList<int>{9, 3, 3, -1}));
        QVERIFY(CActionUtils::GetPageList("2-4", 10, true, false, &pages));
        QCOMPARE(pages, (QList<int>{-1, 2, 3, 3, 4, 9}));
    }

    void refusesMoreThanAListHolds()
    {
        QList<int> pages{7, 5};
        QVERIFY_EXCEPTION_THROWN(CActionUtils::GetPageList("1-2147483647", 10, false, true, &pages),
                                 std::bad_alloc);
        QCOMPARE(pages, (QList<int>{7, 5}));
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
        QTest::addColumn<QList<int>>("pages");
        QTest::addColumn<QList<int>>("runs");
        QTest::newRow("empty") << QList<int>{} << QList<int>{};
        QTest::newRow("one page") << QList<int>{4} << QList<int>{4, 1};
        QTest::newRow("no neighbours") << QList<int>{2, 4, 6} << QList<int>{6, 1, 4, 1, 2, 1};
        QTest::newRow("one run") << QList<int>{1, 2, 3, 4} << QList<int>{1, 4};
        QTest::newRow("highest run first") << QList<int>{1, 2, 3, 7, 8, 10} << QList<int>{10, 1, 7, 2, 1, 3};
        QTest::newRow("a page twice parts the run") << QList<int>{1, 2, 2, 3} << QList<int>{2, 2, 1, 2};
        QTest::newRow("ends of the range")
            << QList<int>{INT_MAX, INT_MIN} << QList<int>{INT_MIN, 1, INT_MAX, 1};
    }

    void collectsRuns()
    {
        QFETCH(QList<int>, pages);
        QList<int> runs{0};
        CActionUtils::CollectPageList(&pages, &runs);
        QCOMPARE(runs.takeFirst(), 0);
        QTEST(runs, "runs");
    }
};

QTEST_GUILESS_MAIN(TestPageRanges)
#include "TestPageRanges.moc"
