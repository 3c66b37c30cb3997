// Which calls a change makes, for documents that answer as the rows say. "GetPageMode=1" is an answer.
#include "host/change/ViewJson.h"
#include "host/change/ViewValues.h"
#include "host/document/ViewChanger.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "support/Recorder.h"
#include "support/Rows.h"

#include <QJsonDocument>
#include <QRegularExpression>

using namespace host;

namespace {

const QString packet =
    "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
    "<rdf:Description xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:title><rdf:Alt>"
    "<rdf:li xml:lang='x-default'>Old</rdf:li></rdf:Alt></dc:title></rdf:Description></rdf:RDF>";

ViewChange changeOf(const QByteArray& json)
{
    return viewjson::parse(QJsonDocument::fromJson(json).object());
}

void answer(Recorder& recorder, const QString& call, const QString& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber)
        recorder.returns(qPrintable(call), number);
    else
        recorder.returns(qPrintable(call), value.toStdWString());
}

/// A document of eight pages without any entry.
void answerAsEmpty(Recorder& recorder)
{
    for (const char* setter :
         {"SetPageMode", "SetPageLayout", "SetViewerPreferences", "SetCatalogInformation", "SetInformation",
          "SetDocumentMetadata", "RemoveOpenAction", "SetOpenActionDestinationFull", "SetDestValue",
          "SelectPage"})
        recorder.returns(setter, 1);
    recorder.returns("PageCount", 8);
    recorder.returns("SelectedPage", 3);
    recorder.returns("GetPageLayout", 6);
    recorder.returns("GetViewerPreferences", -1);
    recorder.returns("GetPageBox(1, 1)", 792);
    recorder.returns("GetPageBox(1, 4)", 612);
}

/// The calls that change something.
QStringList changes(const QStringList& log)
{
    const QRegularExpression change("^(Set|Remove|SelectPage)");
    QStringList found;
    for (QString call : log.filter(change))
        found += call.remove(QRegularExpression("buffer \\d+ "));
    return found;
}

QString inWords(const std::vector<ViewDifference>& differences)
{
    QStringList lines;
    for (const ViewDifference& each : differences)
        lines +=
            QString::fromStdString(viewentries::label(each.entry) + ": " + each.before + " -> " + each.after);
    return lines.join("; ");
}

} // namespace

class TestViewChanger : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatDiffers_data()
    {
        const Rows<QStringList, QByteArray, QStringList, QString> row;
        const QStringList destination{"GetOpenActionDestination=5", "GetDestPage=2", "GetDestValue(5, 6)=1",
                                      "GetDestValue(5, 5)=150"};
        const QStringList rectangle{"GetOpenActionDestination=5", "GetDestPage=2",
                                    "GetDestValue(5, 6)=8",       "GetDestValue(5, 1)=10",
                                    "GetDestValue(5, 2)=40",      "GetDestValue(5, 3)=30",
                                    "GetDestValue(5, 4)=20"};
        const auto form = [](int number) {
            return QStringList{"GetOpenActionDestination=5", "GetDestPage=2",
                               QString("GetDestValue(5, 6)=%1").arg(number)};
        };
        const QStringList script{"GetActionType=JavaScript"};
        const auto at = [](const char* operands) {
            return QString("SetOpenActionDestinationFull(%1, 0, 792, 612, 0)").arg(operands);
        };
        const auto around = [](int page, const QString& call) {
            return QStringList{QString("SelectPage(%1)").arg(page), call, "SelectPage(3)"};
        };

        row("page mode", {}, R"({"pageMode":"UseOutlines"})", {"SetPageMode(1)"},
            "page mode: unset -> use-outlines");
        row("page mode there", {"GetViewerPreferences(113)=1"}, R"({"pageMode":"UseOutlines"})", {}, "");
        row("page mode that is the default", {}, R"({"pageMode":"UseNone"})", {}, "");
        row("explicit page mode", {"GetViewerPreferences(113)=0"}, R"({"pageMode":null})", {"SetPageMode(6)"},
            "page mode: use-none -> unset");
        row("no page mode", {}, R"({"pageMode":null})", {}, "");
        row("page layout", {"GetViewerPreferences(114)=0"}, R"({"pageLayout":"TwoPageRight"})",
            {"SetPageLayout(5)"}, "page layout: single-page -> two-page-right");
        row("page layout unset", {"GetViewerPreferences(114)=0"}, R"({"pageLayout":null})",
            {"SetPageLayout(6)"}, "page layout: single-page -> unset");
        row("preference", {"GetViewerPreferences(106)=0"},
            R"({"viewerPreferences":{"DisplayDocTitle":true}})", {"SetViewerPreferences(6, 1)"},
            "display doc title: no -> yes");
        row("preference that is the default", {}, R"({"viewerPreferences":{"HideToolbar":false}})", {}, "");
        row("preference unset", {"GetViewerPreferences(101)=0"},
            R"({"viewerPreferences":{"HideToolbar":null}})", {"SetViewerPreferences(1, -1)"},
            "hide toolbar: no -> unset");
        row("further preferences", {"GetViewerPreferences(112)=2"},
            R"({"viewerPreferences":{"Direction":"R2L","PrintScaling":"None","Duplex":"DuplexFlipLongEdge",
                "PickTrayByPDFSize":true,"NumCopies":3,"NonFullScreenPageMode":"UseThumbs"}})",
            {"SetViewerPreferences(7, 2)", "SetViewerPreferences(8, 1)", "SetViewerPreferences(9, 0)",
             "SetViewerPreferences(10, 2)", "SetViewerPreferences(11, 1)", "SetViewerPreferences(12, 3)"},
            "non full screen page mode: unset -> use-thumbs; direction: unset -> r2l; print scaling: unset "
            "-> none; "
            "duplex: unset -> duplex-flip-long-edge; pick tray by pdf size: unset -> yes; num copies: 2 -> "
            "3");
        row("language", {"GetCatalogInformation=de"}, R"({"lang":"en-GB"})",
            {"SetCatalogInformation(L\"Lang\", L\"en-GB\")"}, "lang: de -> en-GB");

        row("page of none", {}, R"({"openAction":{"page":"last"}})", around(8, at("8, 0, 1")),
            "open page: unset -> 8; zoom: unset -> default");
        row("page keeps the zoom", destination, R"({"openAction":{"page":4}})", around(4, at("4, 150, 1")),
            "open page: 2 -> 4");
        row("page there", destination, R"({"openAction":{"page":2}})", {}, "");
        row("zoom of none", {}, R"({"openAction":{"type":"Fit"}})", around(1, at("1, 0, 2")),
            "open page: unset -> 1; zoom: unset -> fit-page");
        row("zoom keeps the page", destination, R"({"openAction":{"type":"FitH"}})", around(2, at("2, 0, 3")),
            "zoom: 150% -> fit-width");
        row("zoom keeps the place", destination, R"({"openAction":{"zoom":8.33}})",
            {"SetDestValue(5, 5, 8.33)"}, "zoom: 150% -> 8.33%");
        row("fraction of a percent", destination, R"({"openAction":{"page":3,"zoom":8.33}})",
            around(3, at("3, 0, 1")) + QStringList{"SetDestValue(5, 5, 8.33)"},
            "open page: 2 -> 3; zoom: 150% -> 8.33%");
        row("invalid page mode", {"GetViewerPreferences(113)=-2"}, R"({"pageMode":"UseNone"})",
            {"SetPageMode(0)"}, "page mode: invalid -> use-none");
        row("invalid page layout unset", {"GetViewerPreferences(114)=-2"}, R"({"pageLayout":null})",
            {"SetPageLayout(6)"}, "page layout: invalid -> unset");
        row("invalid preferences",
            {"GetViewerPreferences(101)=-2", "GetViewerPreferences(102)=-2", "GetViewerPreferences(112)=-2"},
            R"({"viewerPreferences":{"HideToolbar":false,"HideMenubar":null,"NumCopies":null}})",
            {"SetViewerPreferences(1, 0)", "SetViewerPreferences(2, -1)", "SetViewerPreferences(12, -1)"},
            "hide toolbar: invalid -> no; hide menubar: invalid -> unset; num copies: invalid -> unset");
        row("invalid language", {"GetViewerPreferences(115)=-2"}, R"({"lang":null})",
            {"SetCatalogInformation(L\"Lang\", null)"}, "lang: invalid -> unset");
        row("empty language", {"GetViewerPreferences(115)=0"}, R"({"lang":null})",
            {"SetCatalogInformation(L\"Lang\", null)"}, "lang: empty -> unset");
        row("invalid title", {"GetViewerPreferences(116)=-2"}, R"({"title":"New","titleIfMissing":true})",
            {"SetInformation(1, L\"New\")"}, "title: invalid -> New");
        row("empty title", {"GetViewerPreferences(116)=0"}, R"({"title":null})", {"SetInformation(1, null)"},
            "title: empty -> unset");

        row("box", form(6), R"({"openAction":{"type":"FitBH"}})", around(2, at("2, 0, 5")),
            "zoom: fit-box -> fit-visible");
        row("box of another page", form(6), R"({"openAction":{"page":3}})", around(3, at("3, 0, 6")),
            "open page: 2 -> 3");
        row("box there", form(7), R"({"openAction":{"type":"FitBV"}})", {}, "");
        row("rectangle", rectangle, R"({"openAction":{"zoom":null}})", {"SetDestValue(5, 5, 0)"},
            "zoom: fit-rectangle 10 20 30 40 -> default");
        row("rectangle of another page", rectangle, R"({"openAction":{"page":3}})",
            around(3, "SetOpenActionDestinationFull(3, 0, 8, 10, 40, 30, 20)"), "open page: 2 -> 3");
        row("rectangle there", rectangle,
            R"({"openAction":{"page":2,"type":"FitR","zoom":null,"rectangle":[10,20,30,40]}})", {}, "");
        row("rectangle of another document", {},
            R"({"openAction":{"page":2,"type":"FitR","rectangle":[1,2,3,4]}})",
            around(2, "SetOpenActionDestinationFull(2, 0, 8, 1, 4, 3, 2)"),
            "open page: unset -> 2; zoom: unset -> fit-rectangle 1 2 3 4");
        row("unknown type", form(0), R"({"openAction":{"type":"XYZ"}})", {"SetDestValue(5, 5, 0)"},
            "zoom: unknown -> default");
        row("unknown type on another page", form(0), R"({"openAction":{"page":3}})", around(3, at("3, 0, 1")),
            "open page: 2 -> 3; zoom: unknown -> default");
        row("negative zoom", form(1) + QStringList{"GetDestValue(5, 5)=-100"},
            R"({"openAction":{"zoom":null}})", {"SetDestValue(5, 5, 0)"}, "zoom: -100% -> default");
        row("zoom beyond whole numbers", {}, R"({"openAction":{"zoom":2e11}})",
            around(1, at("1, 0, 1")) + QStringList{"SetDestValue(0, 5, 2e+11)"},
            "open page: unset -> 1; zoom: unset -> 2e+11%");

        row("no open action", destination, R"({"openAction":null})", {"RemoveOpenAction()"},
            "open page: 2 -> unset");
        row("no open action there", {}, R"({"openAction":null})", {}, "");
        row("no script", script, R"({"openAction":null})", {"RemoveOpenAction()"},
            "open page: JavaScript -> unset");
        row("script replaced", script, R"({"openAction":{"page":1}})", around(1, at("1, 0, 1")),
            "open page: JavaScript -> 1; zoom: unset -> default");
        row("script left alone", script, R"({"pageMode":"UseThumbs"})", {"SetPageMode(2)"},
            "page mode: unset -> use-thumbs");

        row("title", {"GetInformation=Old"}, R"({"title":"New"})", {"SetInformation(1, L\"New\")"},
            "title: Old -> New");
        row("title there", {"GetInformation=New"}, R"({"title":"New"})", {}, "");
        row("empty title there", {"GetViewerPreferences(116)=0"}, R"({"title":""})", {}, "");
        row("empty texts of none", {}, R"({"title":"","lang":""})", {}, "");
        row("title unset", {"GetInformation=Old"}, R"({"title":null})", {"SetInformation(1, null)"},
            "title: Old -> unset");
        row("title from the file's name", {}, R"({"titleFromFileName":true})",
            {"SetInformation(1, L\"my manual\")"}, "title: unset -> my manual");
        row("title if missing", {"GetInformation=Old"}, R"({"title":"New","titleIfMissing":true})", {}, "");
        row("title in metadata alone", {"GetDocumentMetadata=" + packet},
            R"({"title":"New","titleIfMissing":true})", {}, "");
    }

    void writesWhatDiffers()
    {
        const auto [answers, json, calls, told] =
            Rows<QStringList, QByteArray, QStringList, QString>::current();
        Recorder recorder;
        for (const QString& each : answers)
            answer(recorder, each.section('=', 0, 0), each.section('=', 1));
        answerAsEmpty(recorder); // of several answers the first one counts first
        TelvarPDFLibraryCPDylibCPP1311 library(Recorder::path());
        const ViewChange change = changeOf(json);
        ViewChanger changer(library, change);
        QCOMPARE(changer.apply("folder/my manual.PDF").text, std::string());
        QCOMPARE(changes(recorder.takeLog()), calls);
        QCOMPARE(inWords(changer.differences()), told);
    }

    void changesBothTitles()
    {
        Recorder recorder;
        answerAsEmpty(recorder);
        recorder.returns("GetInformation", std::wstring(L"New"));
        recorder.returns("GetDocumentMetadata", packet.toStdWString());
        TelvarPDFLibraryCPDylibCPP1311 library(Recorder::path());
        const ViewChange change = changeOf(R"({"title":"New"})");
        ViewChanger changer(library, change);
        QCOMPARE(changer.apply("a.pdf").text, std::string());
        const QStringList calls = changes(recorder.takeLog());
        QVERIFY2(calls.size() == 1 && calls[0].contains(">New</rdf:li>"), qPrintable(calls.join("\n")));
        QCOMPARE(inWords(changer.differences()), QString("title: Old -> New"));
    }

    void failsWithTheReason_data()
    {
        const Rows<QStringList, QByteArray, std::string> row;
        row("page beyond the end", {}, R"({"openAction":{"page":9}})",
            "it has 8 pages, so it cannot open at page 9");
        row("one page", {"PageCount=1"}, R"({"openAction":{"page":2}})",
            "it has 1 page, so it cannot open at page 2");
        row("refused", {"SetPageLayout=0", "LastErrorCode=0", "LastErrorCode=4"},
            R"({"pageLayout":"OneColumn"})",
            "its page layout cannot be changed: a number or text is outside what the function takes");
        row("unread", {"LastErrorCode=1"}, R"({"lang":"en"})",
            "its lang cannot be read: this function is not available here");
        row("other metadata", {"GetDocumentMetadata=<x/>"}, R"({"title":"New"})",
            "the title in its XMP metadata cannot be changed");
    }

    void failsWithTheReason()
    {
        const auto [answers, json, reason] = Rows<QStringList, QByteArray, std::string>::current();
        Recorder recorder;
        for (const QString& each : answers)
            answer(recorder, each.section('=', 0, 0), each.section('=', 1));
        answerAsEmpty(recorder);
        TelvarPDFLibraryCPDylibCPP1311 library(Recorder::path());
        const ViewChange change = changeOf(json);
        QCOMPARE(ViewChanger(library, change).apply("a.pdf").text, reason);
    }

    void notesMissingTitles()
    {
        Recorder recorder;
        answerAsEmpty(recorder);
        TelvarPDFLibraryCPDylibCPP1311 library(Recorder::path());
        const ViewChange change = changeOf(R"({"viewerPreferences":{"DisplayDocTitle":true}})");
        ViewChanger changer(library, change);
        changer.apply("a.pdf");
        QCOMPARE(changer.notes().size(), std::size_t(1));
        recorder.returns("GetInformation", std::wstring(L"Title"));
        changer.apply("a.pdf");
        QVERIFY(changer.notes().empty());
    }

    void readsADocumentAsAChange()
    {
        Recorder recorder;
        answerAsEmpty(recorder);
        recorder.returns("GetViewerPreferences(113)", 1);
        recorder.returns("GetViewerPreferences(114)", -2);
        TelvarPDFLibraryCPDylibCPP1311 library(Recorder::path());
        const ViewChange change = PresentView(library).asChange();
        QVERIFY(change[ViewEntry::PageMode] == ViewValue(1) &&
                change[ViewEntry::PageLayout] == ViewValue(Unset()) &&
                change[ViewEntry::OpenPage] == ViewValue(Unset()));
        QVERIFY(!change[ViewEntry::Zoom] && !change[ViewEntry::Title] && !change[ViewEntry::Lang]);
        QVERIFY(change.contradiction().empty());
        // What can be given to no page becomes what viewers make of it.
        recorder.returns("GetOpenActionDestination", 5);
        recorder.returns("GetDestPage", 1);
        QVERIFY(PresentView(library).asChange()[ViewEntry::Zoom] == ViewValue(Magnification()));
        recorder.returns("GetDestValue(5, 6)", 1);
        recorder.returns("GetDestValue(5, 5)", -200);
        QVERIFY(PresentView(library).asChange()[ViewEntry::Zoom] == ViewValue(Magnification()));
    }

    void leavesOutActionsOfOtherDocuments()
    {
        Recorder recorder;
        answerAsEmpty(recorder);
        TelvarPDFLibraryCPDylibCPP1311 library(Recorder::path());
        const ViewChange change = changeOf(R"({"pageMode":"UseOC","openAction":{"action":"JavaScript"}})");
        ViewChanger changer(library, change);
        QVERIFY(!changer.apply("a.pdf"));
        QCOMPARE(inWords(changer.differences()), QString("page mode: unset -> use-oc"));
        QCOMPARE(changer.leftOut().text,
                 std::string("it does not open with an action (JavaScript), which cannot be given to it"));
        recorder.returns("GetActionType", std::wstring(L"JavaScript"));
        QVERIFY(PresentView(library).asChange()[ViewEntry::OpenPage] == ViewValue(OtherAction{"JavaScript"}));
        changer.apply("a.pdf");
        QVERIFY(!changer.leftOut());
    }

    void makesTitlesOfFileNames()
    {
        QCOMPARE(titleFromFileName("a/b/Manual 2.PDF"), std::string("Manual 2"));
        QCOMPARE(titleFromFileName("report.pdf.pdf"), std::string("report.pdf"));
        QCOMPARE(titleFromFileName(".pdf"), std::string(".pdf"));
        QCOMPARE(titleFromFileName("h\xf4tel.pdf"), std::string("h\xef\xbf\xbdtel"));
    }
};

QTEST_GUILESS_MAIN(TestViewChanger)
#include "TestViewChanger.moc"
