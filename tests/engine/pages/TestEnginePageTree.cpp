#include "engine/document/Document.h"
#include "engine/files/ByteSource.h"
#include "engine/files/EngineError.h"
#include "engine/pages/PageTree.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"

#include <QtTest>

using namespace engine;

namespace {

struct Opened
{
    explicit Opened(const PdfBuilder& builder)
        : document(ByteSource::fromBytes(builder.bytes()), {}, {}), pages(document)
    {}

    QByteArray objectOfPage(int number) { return QByteArray::number(pages.page(number).page.getObjectID()); }

    int numberOf(int object)
    {
        return pages.numberOf(document.fetched(document.pdf().getObjectByID(object, 0)));
    }

    Document document;
    PageTree pages;
};

PdfBuilder tree(const std::map<int, std::string>& objects)
{
    PdfBuilder builder;
    builder.catalog("");
    for (const auto& [number, body] : objects)
        builder.object(number, body);
    return builder;
}

std::string reference(int object)
{
    return std::to_string(object) + " 0 R";
}

std::string node(int count, const std::string& kids, const std::string& entries = "")
{
    return "<< /Type /Pages /Count " + std::to_string(count) + " /Kids [" + kids + "] " + entries + " >>";
}

const char* const page = "<< /Type /Page >>";

const int firstPage = 1000; // page n is object 1000 + n
const char* const unreadable = "<< /Type (";

struct Pages
{
    int real;
    int stated; ///< By their node's count.
};

/// A root that states `total` pages, above nodes 3, 4, ...; a node of one page is that page.
PdfBuilder nested(int total, const std::vector<Pages>& nodes)
{
    PdfBuilder builder;
    builder.catalog("");
    std::string list;
    int last = firstPage;
    for (std::size_t each = 0; each < nodes.size(); ++each) {
        const int number = 3 + static_cast<int>(each);
        std::string kids;
        for (const int end = last + nodes[each].real; last < end;) {
            kids += reference(++last) + " ";
            const int parent = nodes[each].stated == 1 ? 2 : number;
            builder.object(last, "<< /Type /Page /Parent " + reference(parent) + " >>");
        }
        if (nodes[each].stated != 1)
            builder.object(number, node(nodes[each].stated, kids, "/Parent 2 0 R"));
        list += nodes[each].stated == 1 ? kids : reference(number) + " ";
    }
    return builder.object(2, node(total, list));
}

std::vector<Pages> nodesOf(int size, int count)
{
    return std::vector<Pages>(static_cast<std::size_t>(count), {size, size});
}

std::vector<Pages> joined(std::vector<Pages> nodes, const std::vector<Pages>& further)
{
    nodes.insert(nodes.end(), further.begin(), further.end());
    return nodes;
}

} // namespace

Q_DECLARE_METATYPE(std::string)

class TestEnginePageTree : public QObject
{
    Q_OBJECT

private slots:
    void findsThePagesOfRealTrees_data()
    {
        QTest::addColumn<std::string>("root");
        QTest::addColumn<QByteArray>("expected"); // the pages' object numbers
        QTest::newRow("flat") << node(2, "10 0 R 11 0 R") << QByteArray("10 11");
        QTest::newRow("nested") << node(3, "20 0 R 12 0 R") << QByteArray("10 11 12");
        QTest::newRow("count too high") << node(9, "10 0 R 11 0 R") << QByteArray("10 11");
        QTest::newRow("count in the millions") << node(90000000, "10 0 R 11 0 R") << QByteArray("10 11");
        QTest::newRow("count too low") << node(1, "10 0 R 11 0 R") << QByteArray("10 11");
        QTest::newRow("count negative") << node(-2, "10 0 R 11 0 R") << QByteArray("10 11");
        QTest::newRow("no count") << std::string("<< /Type /Pages /Kids [10 0 R] >>") << QByteArray("10");
        QTest::newRow("count no number")
            << std::string("<< /Count /Two /Kids [10 0 R 11 0 R] >>") << QByteArray("10 11");
        QTest::newRow("indirect kids")
            << std::string("<< /Type /Pages /Count 2 /Kids 30 0 R >>") << QByteArray("10 11");
        QTest::newRow("null and missing kids") << node(4, "null 10 0 R 99 0 R 11 0 R") << QByteArray("10 11");
        QTest::newRow("kids that are no dictionaries")
            << node(4, "7 10 0 R (x) [11 0 R]") << QByteArray("10");
        QTest::newRow("odd type") << node(2, "13 0 R 14 0 R") << QByteArray("13 14");
        QTest::newRow("empty node") << node(1, "21 0 R 10 0 R 22 0 R") << QByteArray("10");
        QTest::newRow("page listed twice") << node(3, "10 0 R 11 0 R 10 0 R") << QByteArray("10 11 10");
        QTest::newRow("node listed twice") << node(5, "20 0 R 12 0 R 20 0 R") << QByteArray("10 11 12");
        QTest::newRow("loop to the root") << node(2, "10 0 R 2 0 R 11 0 R") << QByteArray("10 11");
        QTest::newRow("loop below") << node(2, "23 0 R 11 0 R") << QByteArray("10 11");
        QTest::newRow("a page as the root") << std::string(page) << QByteArray("2");
        QTest::newRow("some dictionary as the root") << std::string("<< /S /JavaScript >>") << QByteArray();
        QTest::newRow("no root") << std::string("null") << QByteArray();
    }

    void findsThePagesOfRealTrees()
    {
        QFETCH(std::string, root);
        QFETCH(QByteArray, expected);
        Opened opened(tree({{2, root},
                            {10, page},
                            {11, page},
                            {12, page},
                            {13, "<< /Type /Template >>"},
                            {14, "<< >>"},
                            {20, node(2, "10 0 R 11 0 R")},
                            {21, node(0, "")},
                            {22, "<< /Type /Pages /Count 0 >>"},
                            {23, node(1, "23 0 R 10 0 R")},
                            {30, "[10 0 R 11 0 R]"}}));
        QByteArrayList found;
        for (int number = 1; number <= opened.pages.pageCount(); ++number)
            found << opened.objectOfPage(number);
        QCOMPARE(found.join(' '), expected);
        QCOMPARE(opened.pages.hasPages(), !expected.isEmpty());
        for (const int unknown : {0, -1, static_cast<int>(found.size()) + 1, INT_MAX, INT_MIN})
            QVERIFY_EXCEPTION_THROWN(opened.pages.page(unknown), EngineError);
    }

    void numbersAPageByItsFirstPlace()
    {
        Opened opened(tree({{2, node(4, "10 0 R 11 0 R 10 0 R 11 0 R")}, {10, page}, {11, page}}));
        QCOMPARE(opened.pages.numberOf(opened.document.pdf().getObjectByID(10, 0)), 1);
        QCOMPARE(opened.pages.numberOf(opened.document.pdf().getObjectByID(11, 0)), 2);
        QCOMPARE(opened.pages.numberOf(opened.document.pdf().getObjectByID(2, 0)), 0);
        QCOMPARE(opened.pages.numberOf(opened.document.catalog()), 0);
        QCOMPARE(opened.pages.numberOf(QPDFObjectHandle::newDictionary()), 0);
    }

    void readsOnlyTheWayToAPage_data()
    {
        const Rows<int, int, int> row; // and the first and the last node that are read
        row("first", 1, 0, 0);
        row("last of a node", 100, 0, 0);
        row("first of a node", 101, 0, 1);
        row("late", 19801, 198, 199);
        row("last", 20000, 199, 199);
    }

    void readsOnlyTheWayToAPage()
    {
        const auto [number, firstNode, lastNode] = Rows<int, int, int>::current();
        PdfBuilder builder = nested(20000, nodesOf(100, 200));
        for (int page = 1; page <= 20000; ++page)
            if (page != number)
                builder.object(firstPage + page, unreadable);
        for (int each = 1; each < 200; ++each) // the first is always looked at
            if (each < firstNode || each > lastNode)
                builder.object(3 + each, unreadable);
        Opened opened(builder);
        QCOMPARE(opened.pages.pageCount(), 20000);
        QCOMPARE(opened.objectOfPage(number), QByteArray::number(firstPage + number));
        QCOMPARE(opened.pages.numberOf(opened.pages.page(number).page), number);
    }

    void countsWithoutOverlooking_data()
    {
        const Rows<std::vector<Pages>, int> row; // and what the root says
        const std::vector<Pages> regular = nodesOf(10, 30);
        std::vector<Pages> any;
        for (const int size : {3, 80, 7, 0, 60, 1, 49, 1, 1, 98})
            any.push_back({size, size});
        row("one size", regular, 300);
        row("the last is smaller", joined(nodesOf(13, 23), nodesOf(1, 1)), 300);
        row("two sizes", joined(nodesOf(8, 20), nodesOf(7, 20)), 300);
        row("pages moved",
            joined(joined(nodesOf(10, 5), nodesOf(7, 1)), joined(nodesOf(10, 23), nodesOf(13, 1))), 300);
        row("any sizes", any, 300);
        row("pages beside nodes", joined(nodesOf(1, 50), nodesOf(25, 10)), 300);
        for (const int total : {310, 290}) {
            row(QString("one size, %1").arg(total), regular, total);
            row(QString("any sizes, %1").arg(total), any, total);
            row(QString("flat, %1").arg(total), nodesOf(1, 300), total);
        }
        row("a node too high", joined(joined(nodesOf(10, 5), {{10, 14}}), nodesOf(10, 24)), 300);
        row("a node has lost pages", joined(joined(nodesOf(31, 4), nodesOf(21, 1)), nodesOf(31, 5)), 310);
        row("a node of two, and an empty one", joined(joined(nodesOf(2, 1), nodesOf(1, 298)), {{0, 0}}), 300);
        row("the first too high", joined({{10, 14}}, nodesOf(10, 29)), 304);
    }

    void countsWithoutOverlooking()
    {
        const auto [nodes, total] = Rows<std::vector<Pages>, int>::current();
        const PdfBuilder builder = nested(total, nodes);
        for (const int number :
             {1, 2, 7, 50, 83, 84, 120, 149, 150, 151, 200, 201, 202, 254, 290, 291, 300}) {
            Opened opened(builder);
            QVERIFY(opened.pages.hasPages());
            QCOMPARE(opened.pages.pageCount(), 300);
            QCOMPARE(opened.objectOfPage(number), QByteArray::number(firstPage + number));
            Opened again(builder);
            QVERIFY(again.pages.hasPages());
            QCOMPARE(again.numberOf(firstPage + number), number);
        }
    }

    void believesAVeryLargeTreeUntilAPageIsMissing()
    {
        Opened opened(nested(10600, nodesOf(100, 105)));
        QCOMPARE(opened.pages.pageCount(), 10600);
        QCOMPARE(opened.objectOfPage(5000), QByteArray::number(firstPage + 5000));
        QCOMPARE(opened.pages.pageCount(), 10600);
        QVERIFY_EXCEPTION_THROWN(opened.pages.requirePage(10550), EngineError);
        QCOMPARE(opened.pages.pageCount(), 10500);
        QCOMPARE(opened.objectOfPage(10500), QByteArray::number(firstPage + 10500));
        QCOMPARE(Opened(nested(90000, nodesOf(100, 105))).pages.pageCount(), 10500); // more than objects
    }

    void walksALargeTreeThatLies()
    {
        // 300 pages, but the last node claims two that it has not, and the first hides two.
        std::string kids;
        PdfBuilder builder;
        builder.catalog("");
        for (int number = 10; number < 308; ++number) {
            builder.object(number, page);
            kids += reference(number) + " ";
        }
        builder.object(308, page).object(309, page);
        builder.object(3, node(296, kids)).object(4, node(4, "308 0 R 309 0 R null null"));
        Opened opened(builder.object(2, node(300, "3 0 R 4 0 R")));
        QCOMPARE(opened.objectOfPage(300), QByteArray("309"));
        QCOMPARE(opened.pages.pageCount(), 300);
        QCOMPARE(opened.objectOfPage(298), QByteArray("307"));
    }

    void trustsNoPromiseOfPages()
    {
        std::string nulls;
        for (int kid = 0; kid < 1000; ++kid)
            nulls += "null ";
        QVERIFY(!Opened(tree({{2, node(1000, nulls)}})).pages.hasPages());
        Opened circle(tree({{2, node(1000, "3 0 R")}, {3, node(1000, "2 0 R")}}));
        QVERIFY(!circle.pages.hasPages());
        QCOMPARE(circle.pages.pageCount(), 0);
    }

    void goesDownAnyNumberOfLevels_data()
    {
        QTest::addColumn<int>("levels");
        QTest::addColumn<int>("pagesPerLevel");
        QTest::newRow("walked: one page at the end") << 100000 << 0;
        QTest::newRow("descended: a page in every level") << 20000 << 1;
    }

    void goesDownAnyNumberOfLevels()
    {
        QFETCH(int, levels);
        QFETCH(int, pagesPerLevel);
        PdfBuilder builder;
        builder.catalog("");
        const int last = 2 + levels;
        for (int level = 2; level < last; ++level) {
            const int count = 1 + pagesPerLevel * (last - level);
            builder.object(level, node(count,
                                       (pagesPerLevel != 0 ? reference(last + 1) + " " : std::string()) +
                                           reference(level + 1),
                                       level == 2 ? "/Rotate 90" : "/Parent " + reference(level - 1)));
        }
        builder.object(last, "<< /Type /Page /Parent " + reference(last - 1) + " >>").object(last + 1, page);
        Opened opened(builder);
        const int count = opened.pages.pageCount();
        QCOMPARE(count, 1 + pagesPerLevel * levels);
        QCOMPARE(opened.objectOfPage(count), QByteArray::number(last));
        QCOMPARE(opened.pages.numberOf(opened.document.pdf().getObjectByID(last, 0)), count);
        const auto isInteger = [](Document&, QPDFObjectHandle value) { return value.isInteger(); };
        QCOMPARE(opened.pages.page(count).inherited(opened.document, "/Rotate", isInteger).getIntValueAsInt(),
                 90);
    }

    void inheritsByTheWayDownAndNotByParent()
    {
        Opened opened(tree({{2, node(2, "3 0 R 5 0 R", "/Rotate 180")},
                            {3, node(1, "4 0 R", "/Rotate 90")},
                            {4, "<< /Type /Page /Parent 2 0 R >>"},
                            {5, "<< /Type /Page /Parent 5 0 R /Rotate /Wrong >>"}}));
        const auto isInteger = [](Document&, QPDFObjectHandle value) { return value.isInteger(); };
        QCOMPARE(opened.pages.page(1).inherited(opened.document, "/Rotate", isInteger).getIntValueAsInt(),
                 90);
        QCOMPARE(opened.pages.page(2).inherited(opened.document, "/Rotate", isInteger).getIntValueAsInt(),
                 180);
        QVERIFY(opened.pages.page(2).inherited(opened.document, "/MediaBox", isInteger).isNull());
    }

    void makesADirectPageAnObject_data()
    {
        QTest::addColumn<std::string>("root");
        QTest::addColumn<int>("holder");
        const std::string kids = "10 0 R << /Type /Page /Marked true >>";
        QTest::newRow("kids in the node") << node(2, kids) << 2;
        QTest::newRow("kids of their own") << std::string("<< /Type /Pages /Count 2 /Kids 30 0 R >>") << 30;
        QTest::newRow("direct node") << node(3, "10 0 R " + node(1, "<< /Type /Page /Marked true >>")) << 2;
    }

    void makesADirectPageAnObject()
    {
        QFETCH(std::string, root);
        QFETCH(int, holder);
        Opened opened(tree({{2, root}, {10, page}, {30, "[10 0 R << /Type /Page /Marked true >>]"}}));
        QCOMPARE(opened.pages.reference(1).getObjectID(), 10);
        QVERIFY(opened.document.changedObjects().empty());
        QPDFObjectHandle made = opened.pages.reference(2);
        QVERIFY(made.isIndirect() && made.getKey("/Marked").getBoolValue());
        const std::set<QPDFObjGen> changed{QPDFObjGen(holder, 0), made.getObjGen()};
        QVERIFY(opened.document.changedObjects() == changed);
        QCOMPARE(opened.pages.numberOf(made), 2);
        QCOMPARE(opened.pages.reference(2).getObjectID(), made.getObjectID());
    }
};

QTEST_GUILESS_MAIN(TestEnginePageTree)
#include "TestEnginePageTree.moc"
