#include "host/desktop/documents/EditHistory.h"
#include "host/desktop/rows/DocumentOrder.h"
#include "host/desktop/rows/RowTexts.h"
#include "host/desktop/texts/ReasonTexts.h"

#include <QJsonDocument>
#include <QtTest>

#include <set>

using namespace host;
using namespace host::desktop;
using Ids = DocumentTable::Ids;

namespace {

DocumentFacts facts(const char* json)
{
    return DocumentFacts::fromJson(QJsonDocument::fromJson(json).object());
}

void read(DocumentTable& table, DocumentId id, const char* json)
{
    table.change(
        id, [json](DocumentRecord& record) { record.facts = std::make_shared<DocumentFacts>(facts(json)); });
    table.flush();
}

QStringList namesOf(const DocumentOrder& order)
{
    QStringList names;
    for (int row = 0; row < order.rowCount(); ++row)
        names += order.index(row, 0).data().toString();
    return names;
}

} // namespace

class TestDocumentOrder : public QObject
{
    Q_OBJECT

private slots:
    void tellsEveryEntryInAColumn()
    {
        std::set<ViewEntry> told;
        for (int column = 0; column < columnCount; ++column)
            for (const ViewEntry entry : columns::describe(column).entries)
                told.insert(entry);
        for (const viewentries::Description& each : viewentries::all())
            QVERIFY2(told.contains(each.entry), each.option);
    }

    void takesEachDocumentOnce()
    {
        DocumentTable table;
        QCOMPARE(table.append({"/a/x.pdf", "/a/y.pdf", "/a/x.pdf"}), Ids({1, 2}));
        QCOMPARE(table.append({"/a/y.pdf", "/b\xff/y.pdf"}), Ids({3}));
        QCOMPARE(table.find(3)->name, QString("y.pdf"));
    }

    void sortsAsPeopleDoAndKeepsTheSelection()
    {
        DocumentTable table;
        DocumentOrder order(table);
        table.append({"/d/manual-10.pdf", "/d/Apple.pdf", "/d/manual-9.pdf", "/d/zebra.pdf"});
        order.select({1, 4}, 1);
        order.sort(int(Column::Name), Qt::AscendingOrder);
        QCOMPARE(namesOf(order), QStringList({"Apple.pdf", "manual-9.pdf", "manual-10.pdf", "zebra.pdf"}));
        QCOMPARE(order.selected(), Ids({1, 4}));
        QCOMPARE(order.current(), 1);

        DocumentFilter filter;
        filter.setSearch("MANUAL 1");
        order.setFilter(filter);
        QCOMPARE(namesOf(order), QStringList({"manual-10.pdf"}));
        QCOMPARE(order.selected(), Ids({1}));
        QCOMPARE(order.current(), 1);
        filter.setSearch("9");
        order.setFilter(filter);
        QCOMPARE(order.selected(), Ids());
        order.setFilter({});
        QCOMPARE(order.selected(), Ids({1, 4}));
        QCOMPARE(order.current(), 1);
        order.setFilter(filter);
        order.select({3}, 3); // as a person does, who means no others
        order.setFilter({});
        QCOMPARE(order.selected(), Ids({3}));
    }

    void leavesNewRowsAtTheEndUntilItIsQuiet()
    {
        DocumentTable table;
        DocumentOrder order(table);
        table.append({"/d/b.pdf"});
        order.sort(int(Column::Name), Qt::AscendingOrder);
        table.append({"/d/a.pdf"});
        QCOMPARE(namesOf(order), QStringList({"b.pdf", "a.pdf"}));
        order.settle();
        QCOMPARE(namesOf(order), QStringList({"a.pdf", "b.pdf"}));
    }

    void filtersInWords_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("accepted");
        using Kind = DocumentFilter::Kind;
        const auto row = [](const char* name, Kind kind, const char* json, bool accepted) {
            QTest::newRow(name) << int(kind) << QByteArray(json) << accepted;
        };
        row("shows no title", Kind::NoTitleShown, R"({"title":"T"})", true);
        row("shows its title", Kind::NoTitleShown,
            R"({"title":"T","viewerPreferences":{"DisplayDocTitle":true}})", false);
        row("not read is of no kind", Kind::NoTitleShown, "", false);
        row("blank title", Kind::NoTitle, R"({"title":" \n"})", true);
        row("bookmarks hidden", Kind::BookmarksNotShown, R"({"bookmarks":3,"pageMode":"UseNone"})", true);
        row("bookmarks shown", Kind::BookmarksNotShown, R"({"bookmarks":3,"pageMode":"UseOutlines"})", false);
        row("none to show", Kind::BookmarksNotShown, R"({"bookmarks":0})", false);
        row("opens at page 5", Kind::OpensAtPage, R"({"openAction":{"page":5,"type":"Fit"}})", true);
        row("opens at its first", Kind::OpensAtPage, R"({"openAction":{"page":1,"type":"Fit"}})", false);
        row("runs a script", Kind::OpensAtPage, R"({"openAction":{"action":"JavaScript"}})", true);
        row("signed", Kind::Signed, R"({"signatures":2})", true);
        row("encrypted", Kind::Encrypted, R"({"encrypted":true})", true);
    }
    void filtersInWords()
    {
        QFETCH(int, kind);
        QFETCH(QByteArray, json);
        DocumentRecord record = DocumentRecord::of(1, "/d/a.pdf");
        if (!json.isEmpty())
            record.facts = std::make_shared<DocumentFacts>(facts(json));
        DocumentFilter filter;
        filter.setKind(static_cast<DocumentFilter::Kind>(kind));
        QTEST(filter.accepts(record), "accepted");
    }

    void tellsWhatChangesInWordsToo()
    {
        DocumentRecord record = DocumentRecord::of(1, "/d/a.pdf");
        record.facts = std::make_shared<DocumentFacts>(facts(R"({"pages":8,"pageMode":"UseThumbs"})"));
        QCOMPARE(rowtexts::cell(record, Column::Panel), (CellText{"Pages", "", false}));
        record.check = std::make_shared<Outcome>(Outcome::fromJson(
            QJsonDocument::fromJson(
                R"({"status":"changed","before":{"pageMode":"UseThumbs"},"after":{"pageMode":"UseOutlines"}})")
                .object(),
            true));
        QCOMPARE(rowtexts::cell(record, Column::Panel), (CellText{"Pages", "Bookmarks", false}));
        QCOMPARE(rowtexts::spoken(record, Column::Panel), QString("Pages, will be Bookmarks"));
        QCOMPARE(rowtexts::spoken(record, Column::Name), QString("a.pdf, will change"));
        record.isAside = true;
        QCOMPARE(rowtexts::cell(record, Column::Panel).after, QString());
        QVERIFY(reasontexts::textOf("internal", "no such thing").endsWith("(No such thing)"));
        QVERIFY(!reasontexts::textOf("damaged", "no such thing").contains("such"));
    }

    void leavesOutWhatItDoesNotUnderstand()
    {
        const DocumentFacts strange =
            facts(R"({"pages":2,"pageMode":"Sideways","pageLayout":"OneColumn","viewerPreferences":7})");
        QVERIFY(!strange.view.view[ViewEntry::PageMode]);
        QCOMPARE(strange.view.textOf(ViewEntry::PageLayout), QString("One column"));
        QCOMPARE(facts(R"({"openAction":{"action":"JavaScript"}})").view.textOf(ViewEntry::OpenPage),
                 QString("Runs a script"));
    }

    void takesRemovingBackWithAllThatIsKnown()
    {
        DocumentTable table;
        DocumentOrder order(table);
        EditHistory history(table);
        history.beginAdding();
        history.added(table.append({"/d/a.pdf", "/d/b.pdf"}));
        read(table, 1, R"({"pages":8})");
        history.remove({1});
        QCOMPARE(namesOf(order), QStringList({"b.pdf"}));
        history.undo();
        QCOMPARE(order.rowCount(), 2);
        QCOMPARE(table.find(1)->facts->pages, 8);
        history.undo();
        QCOMPARE(table.count(), 0);
        history.redo();
        history.redo();
        QCOMPARE(namesOf(order), QStringList({"b.pdf"}));
        QVERIFY(!history.canRedo());
    }
};

QTEST_GUILESS_MAIN(TestDocumentOrder)
#include "TestDocumentOrder.moc"
