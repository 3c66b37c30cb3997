#include "support/Rows.h"
#include "support/engine/EngineErrors.h"
#include "support/engine/OpenedDocument.h"

#include <QtTest>

#include <cmath>

using namespace engine;
using namespace engine::operations;

class TestEngineView : public QObject
{
    Q_OBJECT

    static std::string bytesOf(const std::string& entries, const std::map<int, std::string>& objects = {})
    {
        return OpenedDocument::bytes(entries, objects);
    }

private slots:
    void readsWhatIsMissingOrWrongAsAbsent_data()
    {
        const Rows<std::string> row;
        row("nothing", "");
        row("wrong types", "/PageMode (UseOC) /PageLayout 3 /ViewerPreferences [ << "
                           "/HideToolbar true >> ] /OpenAction (none)");
        row("unknown values",
            std::string("/PageMode /UseBookmarks /PageLayout /Single /ViewerPreferences << /HideToolbar 1 "
                        "/HideMenubar (true) /NonFullScreenPageMode true >> /OpenAction << /S /URI /D [3 0 R "
                        "/Fit] >>"));
        row("missing objects",
            std::string("/PageMode 90 0 R /PageLayout 90 0 R /ViewerPreferences 90 0 R /OpenAction 90 0 R"));
    }

    void readsWhatIsMissingOrWrongAsAbsent()
    {
        const auto [entries] = Rows<std::string>::current();
        OpenedDocument opened(bytesOf(entries));
        QCOMPARE(GetPageMode(opened.session), 0);
        QCOMPARE(GetPageLayout(opened.session), 6);
        for (int option = 1; option <= 7; ++option)
            QCOMPARE(GetViewerPreferences(opened.session, option), 0);
        QCOMPARE(GetOpenActionDestination(opened.session), 0);
    }

    void readsIndirectAndEscapedEntries()
    {
        OpenedDocument opened(bytesOf("/PageMode 10 0 R /PageLayout /One#43olumn /ViewerPreferences 11 0 R",
                                      {{10, "/UseOutlines"}, {11, "<< /FitWindow 12 0 R >>"}, {12, "true"}}));
        QCOMPARE(GetPageMode(opened.session), 1);
        QCOMPARE(GetPageLayout(opened.session), 1);
        QCOMPARE(GetViewerPreferences(opened.session, 4), 1);
    }

    void changesOnlyWhatDiffers_data()
    {
        // value: null for nothing changed
        const Rows<std::string, Operation, QByteArray, QByteArray, QByteArray> add;
        const auto row = [&](const char* what, const char* entries, const Operation& setter, const char* key,
                             const char* value = nullptr, const char* changed = "1") {
            add(what, std::string(entries), setter, QByteArray(key), QByteArray(value),
                QByteArray(value != nullptr ? changed : ""));
        };
        row("same mode", "/PageMode /UseOC", call(SetPageMode, 4), "/PageMode");
        row("default mode", "", call(SetPageMode, 0), "/PageMode");
        row("default mode for a wrong one", "/PageMode /Odd", call(SetPageMode, 0), "/PageMode", "/UseNone");
        row("other mode", "/PageMode 10 0 R", call(SetPageMode, 5), "/PageMode", "/UseAttachments");
        row("no layout", "/PageLayout /OneColumn", call(SetPageLayout, 6), "/PageLayout", "null");
        row("no layout for a wrong one", "/PageLayout 7", call(SetPageLayout, 6), "/PageLayout", "null");
        row("same preference", "/ViewerPreferences << /FitWindow true >>", call(SetViewerPreferences, 4, 1),
            "/ViewerPreferences");
        row("default preference", "", call(SetViewerPreferences, 4, 0), "/ViewerPreferences");
        row("default for a wrong one", "/ViewerPreferences << /FitWindow 1 >>",
            call(SetViewerPreferences, 4, 0), "/ViewerPreferences", "<< /FitWindow false >>");
        row("no mode where there is none", "", call(SetPageMode, 6), "/PageMode");
        row("no mode for a wrong one", "/PageMode 7", call(SetPageMode, 6), "/PageMode", "null");
        row("none to remove", "/ViewerPreferences << /FitWindow true >>", call(SetViewerPreferences, 12, -1),
            "/ViewerPreferences");
        row("no preferences to remove from", "/ViewerPreferences (none)", call(SetViewerPreferences, 4, -1),
            "/ViewerPreferences");
        row("left to right, which is the default", "", call(SetViewerPreferences, 8, 0), "/ViewerPreferences",
            "<< /Direction /L2R >>");
        row("copies", "/ViewerPreferences << /NumCopies (2) >>", call(SetViewerPreferences, 12, 2),
            "/ViewerPreferences", "<< /NumCopies 2 >>");
        row("open action removed", "/OpenAction (anything)", call(RemoveOpenAction), "/OpenAction", "null");
        row("no open action to remove", "", call(RemoveOpenAction), "/OpenAction");
        row("zoom of an array", "/OpenAction [3 0 R /XYZ null 20 0]", magnified(8.33), "/OpenAction",
            "[ 3 0 R /XYZ null 20 0.0833 ]");
        row("same zoom", "/OpenAction [3 0 R /XYZ 1 2 0.0833]", magnified(8.33), "/OpenAction");
        row("zoom of a rectangle", "/OpenAction [3 0 R /FitR 1 2 3 4]", magnified(50), "/OpenAction",
            "[ 3 0 R /XYZ 1 4 0.5 ]");
        row("no zoom of a rectangle", "/OpenAction [3 0 R /FitR 1 2 3 4]", magnified(0), "/OpenAction",
            "[ 3 0 R /XYZ 1 4 null ]");
        row("zoom of a short array", "/OpenAction [0]", magnified(50), "/OpenAction",
            "[ 0 /XYZ null null 0.5 ]");
        row("zoom of an action",
            "/OpenAction << /S /GoTo /D [3 0 R /XYZ 1 2 3] /SD [3 0 R] /Next << /S /Named >> >>",
            magnified(100), "/OpenAction", "<< /D [ 3 0 R /XYZ 1 2 1 ] /Next << /S /Named >> /S /GoTo >>");
        row("zoom of a name", "/OpenAction /there /Dests << /there [4 0 R /XYZ 1 2 3] >>", magnified(50),
            "/OpenAction", "[ 4 0 R /XYZ 1 2 0.5 ]");
    }

    void changesOnlyWhatDiffers()
    {
        const auto [entries, setter, key, value, changed] =
            Rows<std::string, Operation, QByteArray, QByteArray, QByteArray>::current();
        OpenedDocument opened(
            bytesOf(entries, {{10, "/UseThumbs"}, {11, "<< /HideToolbar true >>"}, {12, "[1 2]"}}));
        const QByteArray before = opened.entry(key);
        QCOMPARE(setter(opened.session), 1);
        QCOMPARE(opened.entry(key), value.isNull() ? before : value);
        QCOMPARE(opened.changed(), changed);
        QCOMPARE(setter(opened.session), 1);
        QCOMPARE(opened.entry(key), value.isNull() ? before : value);
    }

    void refusesWhatItDoesNotKnow_data()
    {
        const Rows<Operation, ErrorCode> row;
        const auto refused = [&row](ErrorCode code, auto operation, auto... arguments) {
            row("", call(operation, arguments...), code);
        };
        const ErrorCode bad = ErrorCode::BadArgument;
        for (const int number : {-1, 7}) {
            refused(bad, SetPageMode, number);
            refused(bad, SetPageLayout, number);
        }
        for (const int option : {0, 13, 101, 113})
            refused(bad, SetViewerPreferences, option, 1);
        const std::pair<int, int> preferences[] = {{12, 0}, {1, 2}, {6, -2}, {7, 3}, {7, 6}};
        for (const auto& [option, value] : preferences)
            refused(bad, SetViewerPreferences, option, value);
        for (const int option : {13, 100, 117, -1})
            refused(bad, GetViewerPreferences, option);
        for (const int page : {0, 4})
            row("", openAt(page, 0, 2), ErrorCode::UnknownPage);
        for (const int type : {0, 9})
            row("", openAt(1, 0, type), bad);
        row("", openAt(1, -5, 1), bad);
        row("", openAt(1, 0, 1, std::nan("")), bad);
        row("", openAt(1, 0, 1, 0, HUGE_VAL), bad);
        row("", openAt(1, 0, 8, -2147483648.0), bad);
        row("", magnified(50), bad); // its type has none
        row(
            "", [](Session& s) { return int(GetActionType(s, 1).size()); }, bad);
        refused(bad, SetDestValue, 1, 1, 5);
        refused(bad, SetCatalogInformation, L"Pages", L"x");
        refused(bad, SetCatalogInformation, L"PageMode", L"x");
        for (const int id : {0, 7, -1})
            refused(ErrorCode::UnknownDestination, GetDestType, id);
        for (const int value : {0, 7})
            refused(bad, GetDestValue, 1, value);
        refused(ErrorCode::UnknownPage, SelectPage, 4);
        for (const int box : {0, 6})
            refused(bad, GetPageBox, box, 0);
        for (const int dimension : {-1, 6})
            refused(bad, GetPageBox, 1, dimension);
    }

    void refusesWhatItDoesNotKnow()
    {
        const auto [call, code] = Rows<Operation, ErrorCode>::current();
        OpenedDocument opened(bytesOf("/OpenAction [3 0 R /Fit]"));
        QCOMPARE(GetOpenActionDestination(opened.session), 1);
        QCOMPARE(errorOf([&, &setter = call] { setter(opened.session); }), code);
        QCOMPARE(opened.changed(), QByteArray());
        QCOMPARE(SelectedPage(opened.session), 1);
        Session empty;
        QCOMPARE(errorOf([&, &setter = call] { setter(empty); }), ErrorCode::NoDocument);
    }

    void tellsWhatIsMissingOrInvalidFromWhatSaysNo_data()
    {
        const Rows<std::string, QByteArray> row;
        row("some", "/PageMode /UseNone /Lang (de) /ViewerPreferences << /FitWindow false /Direction /R2L >>",
            "-1 -1 -1 0 -1 -1 -1 1 -1 -1 -1 -1 0 -1 0 -1");
        row("wrong types",
            "/PageMode (UseNone) /PageLayout 3 /Lang /de /ViewerPreferences << /HideToolbar (yes) "
            "/CenterWindow 1 /NonFullScreenPageMode /FullScreen /Direction (R2L) /PickTrayByPDFSize /true "
            "/NumCopies 2.0 >>",
            "-2 -1 -1 -1 -2 -1 -2 -2 -1 -1 -2 -2 -2 -2 -2 -1");
        row("unknown values",
            "/PageMode /Odd /PageLayout /Odd /ViewerPreferences << /PrintScaling /Odd /Duplex /None "
            "/NumCopies 0 >>",
            "-1 -1 -1 -1 -1 -1 -1 -1 -2 -2 -1 -2 -2 -2 -1 -1");
        row("no dictionary, and nothing", "/PageMode 90 0 R /Lang () /ViewerPreferences [ /HideToolbar ]",
            "-1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 0 -1");
    }

    void tellsWhatIsMissingOrInvalidFromWhatSaysNo()
    {
        const auto [entries, expected] = Rows<std::string, QByteArray>::current();
        OpenedDocument opened(bytesOf(entries));
        QByteArrayList found;
        for (int option = 1; option <= 16; ++option)
            found << QByteArray::number(GetViewerPreferences(opened.session, 100 + option));
        QCOMPARE(found.join(' '), expected);
    }

    void tellsCatalogEntriesAsTheyStand()
    {
        OpenedDocument opened(bytesOf("/PageMode /UseNone /Lang (de)"));
        QCOMPARE(GetCatalogInformation(opened.session, L"PageMode"), std::wstring(L"UseNone"));
        QCOMPARE(GetCatalogInformation(opened.session, L"Lang"), std::wstring(L"de"));
        QCOMPARE(GetCatalogInformation(opened.session, L"PageLayout"), std::wstring());
    }

    void measuresPages_data()
    {
        // expected: left top width height right bottom
        const Rows<std::string, int, QByteArray> add;
        const auto row = [&add](const char* page, int box, const char* expected) {
            add(QString("%1 box %2").arg(page).arg(box), std::string(page), box, QByteArray(expected));
        };
        row("", 1, "0 792 612 792 612 0");
        row("/MediaBox [10 20 110 220]", 1, "10 220 100 200 110 20");
        row("/MediaBox [110 220 10 20]", 1, "10 220 100 200 110 20");
        row("/MediaBox [0 0 612 99999999999999999999.0]", 1, "0 2.14748e+09 612 2.14748e+09 612 0");
        row("/MediaBox [0 0 100 /x]", 1, "0 792 612 792 612 0");
        row("/MediaBox 10 0 R", 1, "-5 50 15 48.5 10 1.5");
        row("/CropBox [5 5 50 60]", 2, "5 60 45 55 50 5");
        row("/CropBox [5 5 50 60]", 3, "5 60 45 55 50 5");
        row("/CropBox [5 5 50 60] /TrimBox [6 6 40 50]", 4, "6 50 34 44 40 6");
        row("/CropBox [5 5 50 60] /TrimBox [6 6 40 50]", 5, "5 60 45 55 50 5");
        row("/ArtBox [7 7 8 9]", 5, "7 9 1 2 8 7");
    }

    void measuresPages()
    {
        const auto [page, box, expected] = Rows<std::string, int, QByteArray>::current();
        OpenedDocument opened(
            PdfBuilder().catalog("").pages(1, 3, page).object(10, "[-5 1.5 10 50]").bytes());
        QByteArrayList found;
        for (int dimension = 0; dimension < 6; ++dimension)
            found << QByteArray::number(GetPageBox(opened.session, box, dimension));
        QCOMPARE(found.join(' '), expected);
        if (box == 1) {
            QCOMPARE(QByteArray::number(PageWidth(opened.session)), found[2]);
            QCOMPARE(QByteArray::number(PageHeight(opened.session)), found[3]);
        }
    }

    void takesAnUnstatedSizeForLetter()
    {
        OpenedDocument opened(
            PdfBuilder().catalog("").object(2, "<< /Kids [3 0 R] /Count 1 >>").object(3, "<< >>").bytes());
        QCOMPARE(PageWidth(opened.session), 612.0);
        QCOMPARE(PageHeight(opened.session), 792.0);
    }

    void rotatesPages_data()
    {
        const Rows<std::string, int> row;
        row("none", "", 0);
        row("right", "/Rotate 90", 90);
        row("left", "/Rotate -90", 270);
        row("more than once round", "/Rotate 630", 270);
        row("slanted", "/Rotate 45", 0);
        row("no number", "/Rotate /Left", 0);
    }

    void rotatesPages()
    {
        const auto [rotate, expected] = Rows<std::string, int>::current();
        OpenedDocument opened(PdfBuilder().catalog("").pages(1, 3, rotate).bytes());
        QCOMPARE(PageRotation(opened.session), expected);
    }
};

QTEST_GUILESS_MAIN(TestEngineView)
#include "TestEngineView.moc"
