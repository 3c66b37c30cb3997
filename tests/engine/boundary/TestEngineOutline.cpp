#include "engine/boundary/Operations.h"
#include "engine/boundary/Session.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/engine/EngineErrors.h"

#include <QtTest>

using namespace engine;
using namespace engine::operations;

namespace {

using Objects = std::map<int, std::string>;

/// Three pages, objects 3 to 5; the root of the bookmarks is object 10.
std::string document(const Objects& objects)
{
    PdfBuilder builder;
    builder.catalog("/Outlines 10 0 R /Names << /Dests << /Names [ (here) [ 5 0 R /Fit ] ] >> >>").pages(3);
    for (const auto& [number, body] : objects)
        builder.object(number, body);
    return builder.bytes();
}

/// "one(two(three)four)": the bookmarks below and beside one another, a circle as "!".
QString tree(Session& session, int id)
{
    if (id == 0)
        return LastErrorCode(session) == int(ErrorCode::TooComplex) ? "!" : "";
    const auto following = [&](int (*step)(Session&, int)) {
        try {
            return tree(session, step(session, id));
        } catch (const EngineError& error) {
            return error.code() == ErrorCode::TooComplex ? QString("!") : QString("?");
        }
    };
    const QString below = following(GetFirstChildOutline);
    return QString::fromStdWString(OutlineTitle(session, id)) + (below.isEmpty() ? "" : "(" + below + ")") +
           following(GetNextOutline);
}

} // namespace

class TestEngineOutline : public QObject
{
    Q_OBJECT

private slots:
    void leadsThroughTheBookmarks_data()
    {
        const Rows<Objects, QString, int> row; // the tree, and the number of its entries
        const std::string root = "<< /First 11 0 R >>";
        row("none", {}, "", 0);
        row("no dictionary", {{10, "[ 11 0 R ]"}}, "", 0);
        row("nested",
            {{10, root},
             {11, "<< /Title (one) /First 12 0 R /Next 13 0 R >>"},
             {12, "<< /Title <feff00740077006f> >>"},
             {13, "<< /Title /three >>"}},
            "one(two)", 3);
        row("missing", {{10, root}, {11, "<< /Title (one) /First 20 0 R /Next 21 0 R >>"}}, "one", 1);
        row("its own neighbour", {{10, root}, {11, "<< /Title (one) /Next 11 0 R >>"}}, "one!", 1);
        row("its own child", {{10, root}, {11, "<< /Title (one) /First 11 0 R >>"}}, "one(!)", 1);
        row("a circle",
            {{10, root},
             {11, "<< /Title (one) /First 12 0 R >>"},
             {12, "<< /Title (two) /Next 13 0 R >>"},
             {13, "<< /Title (three) /Next 11 0 R >>"}},
            "one(twothree!)", 3);
        row("the root below", {{10, "<< /Title (root) /First 10 0 R >>"}}, "root(!)", 1);
    }

    void leadsThroughTheBookmarks()
    {
        const auto [objects, expected, count] = Rows<Objects, QString, int>::current();
        Session session;
        LoadFromString(session, document(objects), {});
        QCOMPARE(tree(session, GetFirstOutline(session)), expected);
        QCOMPARE(OutlineCount(session), count);
    }

    void tellsWhereABookmarkLeads_data()
    {
        const Rows<std::string, int, int> row; // its entries, the page, the style
        row("nowhere", "", 0, 0);
        row("a destination", "/Dest [ 4 0 R /Fit ]", 2, 0);
        row("a named one", "/Dest (here)", 3, 0);
        row("an action", "/A << /S /GoTo /D [ 4 0 R /Fit ] >>", 2, 0);
        row("another action", "/A << /S /URI /URI (x:) >>", 0, 0);
        row("no page", "/Dest [ 10 0 R /Fit ]", 0, 0);
        row("open", "/Count 2 /F 1", 0, 5);
        row("closed", "/Count -2 /F 2", 0, 2);
    }

    void tellsWhereABookmarkLeads()
    {
        const auto [entries, page, style] = Rows<std::string, int, int>::current();
        Session session;
        LoadFromString(session, document({{10, "<< /First 11 0 R >>"}, {11, "<< " + entries + " >>"}}), {});
        const int id = GetFirstOutline(session);
        QCOMPARE(GetOutlinePage(session, id), page);
        QCOMPARE(GetOutlineStyle(session, id), style);
        QCOMPARE(errorOf([&] { GetOutlinePage(session, id + 1); }), ErrorCode::BadArgument);
    }
};

QTEST_GUILESS_MAIN(TestEngineOutline)
#include "TestEngineOutline.moc"
