#include "engine/boundary/Operations.h"
#include "engine/boundary/Session.h"
#include "pdflibrary/ViewNumbers.h"
#include "support/EngineErrors.h"
#include "support/PdfBuilder.h"
#include "support/Rows.h"

#include <QtTest>

#include <cmath>
#include <functional>

using namespace engine;
using namespace engine::operations;

namespace {

using Setter = std::function<int(Session&)>;

const double letterTop = 792;

/// A session with one document, whose objects are looked at behind the operations' back.
struct Opened
{
    explicit Opened(const std::string& bytes) { LoadFromString(session, bytes, {}); }

    Document& document() { return session.document().document; }
    QByteArray entry(const char* key)
    {
        return QByteArray::fromStdString(document().catalog().getKey(key).unparse());
    }
    QByteArray changed()
    {
        QByteArrayList objects;
        for (const QPDFObjGen& object : document().changedObjects())
            objects << QByteArray::number(object.getObj());
        return objects.join(' ');
    }

    Session session;
};

/// Three pages, objects 3 to 5; further objects from 10 on.
std::string document(const std::string& catalogEntries, const std::map<int, std::string>& objects = {})
{
    PdfBuilder builder;
    builder.catalog(catalogEntries).pages(3);
    for (const auto& [number, body] : objects)
        builder.object(number, body);
    return builder.bytes();
}

/// Page, type and name of the open action's destination, and its left, top, right, bottom and zoom.
QByteArray openAction(Session& session)
{
    const int id = GetOpenActionDestination(session);
    if (id == 0)
        return "none";
    QByteArray text = QByteArray::number(GetDestPage(session, id)) + " type " +
                      QByteArray::number(GetDestType(session, id));
    if (GetDestValue(session, id, pdflibrary::DestinationForm) != GetDestType(session, id))
        text += " form " + QByteArray::number(GetDestValue(session, id, pdflibrary::DestinationForm));
    for (int key = 1; key <= 5; ++key)
        text += ' ' + QByteArray::number(GetDestValue(session, id, key));
    const std::wstring name = GetDestName(session, id);
    return name.empty() ? text : text + ' ' + QString::fromStdWString(name).toUtf8();
}

Setter destination(int page, int zoom, int type, double left = 0, double top = letterTop)
{
    return [=](Session& session) {
        return SetOpenActionDestinationFull(session, page, zoom, type, left, top, 612, 0);
    };
}

Setter preference(int option, int value)
{
    return [=](Session& session) { return SetViewerPreferences(session, option, value); };
}

Setter destinationZoom(double percent)
{
    return [=](Session& session) {
        return SetDestValue(session, GetOpenActionDestination(session), pdflibrary::DestinationZoom, percent);
    };
}

Setter pageMode(int mode)
{
    return [=](Session& session) { return SetPageMode(session, mode); };
}

Setter pageLayout(int layout)
{
    return [=](Session& session) { return SetPageLayout(session, layout); };
}

} // namespace

class TestEngineView : public QObject
{
    Q_OBJECT

private slots:
    void numbersModesAndLayouts()
    {
        const char* const modes[] = {"UseNone",    "UseOutlines", "UseThumbs",
                                     "FullScreen", "UseOC",       "UseAttachments"};
        for (int mode = 0; mode < 6; ++mode) {
            std::string entries = "/PageMode /";
            entries.append(modes[mode]).append(" /ViewerPreferences << /NonFullScreenPageMode /");
            Opened opened(document(entries.append(modes[mode]).append(" >>")));
            QCOMPARE(GetPageMode(opened.session), mode);
            QCOMPARE(GetViewerPreferences(opened.session, 7), mode == 3 ? 0 : mode);
            Opened plain(document("/PageMode /Other"));
            SetPageMode(plain.session, mode);
            QCOMPARE(plain.entry("/PageMode"), QByteArray("/") + modes[mode]);
        }
        const char* const layouts[] = {"SinglePage",     "OneColumn",   "TwoColumnLeft",
                                       "TwoColumnRight", "TwoPageLeft", "TwoPageRight"};
        for (int layout = 0; layout < 6; ++layout) {
            const std::string name = std::string("/") + layouts[layout];
            Opened opened(document("/PageLayout " + name));
            QCOMPARE(GetPageLayout(opened.session), layout);
            Opened plain(document(""));
            SetPageLayout(plain.session, layout);
            QCOMPARE(plain.entry("/PageLayout"), QByteArray::fromStdString(name));
        }
    }

    void numbersPreferences()
    {
        const char* const keys[] = {"",           "/HideToolbar",  "/HideMenubar",    "/HideWindowUI",
                                    "/FitWindow", "/CenterWindow", "/DisplayDocTitle"};
        for (int option = 1; option <= 6; ++option) {
            Opened opened(document("/ViewerPreferences << " + std::string(keys[option]) + " true >>"));
            for (int other = 1; other <= 6; ++other)
                QCOMPARE(GetViewerPreferences(opened.session, other), other == option ? 1 : 0);
            SetViewerPreferences(opened.session, option, 0);
            QCOMPARE(opened.entry("/ViewerPreferences"), QByteArray("<< ") + keys[option] + " false >>");
        }
    }

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
        Opened opened(document(entries));
        QCOMPARE(GetPageMode(opened.session), 0);
        QCOMPARE(GetPageLayout(opened.session), 6);
        for (int option = 1; option <= 7; ++option)
            QCOMPARE(GetViewerPreferences(opened.session, option), 0);
        QCOMPARE(GetOpenActionDestination(opened.session), 0);
    }

    void readsIndirectAndEscapedEntries()
    {
        Opened opened(document("/PageMode 10 0 R /PageLayout /One#43olumn /ViewerPreferences 11 0 R",
                               {{10, "/UseOutlines"}, {11, "<< /FitWindow 12 0 R >>"}, {12, "true"}}));
        QCOMPARE(GetPageMode(opened.session), 1);
        QCOMPARE(GetPageLayout(opened.session), 1);
        QCOMPARE(GetViewerPreferences(opened.session, 4), 1);
    }

    void changesOnlyWhatDiffers_data()
    {
        // value: null for nothing changed
        const Rows<std::string, Setter, QByteArray, QByteArray, QByteArray> add;
        const auto row = [&](const char* what, const char* entries, const Setter& setter, const char* key,
                             const char* value = nullptr, const char* changed = "1") {
            add(what, std::string(entries), setter, QByteArray(key), QByteArray(value),
                QByteArray(value != nullptr ? changed : ""));
        };
        row("same mode", "/PageMode /UseOC", pageMode(4), "/PageMode");
        row("default mode", "", pageMode(0), "/PageMode");
        row("default mode for a wrong one", "/PageMode /Odd", pageMode(0), "/PageMode", "/UseNone");
        row("other mode", "/PageMode 10 0 R", pageMode(5), "/PageMode", "/UseAttachments");
        row("same layout", "/PageLayout /OneColumn", pageLayout(1), "/PageLayout");
        row("no layout", "/PageLayout /OneColumn", pageLayout(6), "/PageLayout", "null");
        row("no layout where there is none", "", pageLayout(6), "/PageLayout");
        row("no layout for a wrong one", "/PageLayout 7", pageLayout(6), "/PageLayout", "null");
        row("same preference", "/ViewerPreferences << /FitWindow true >>", preference(4, 1),
            "/ViewerPreferences");
        row("default preference", "", preference(4, 0), "/ViewerPreferences");
        row("default for a wrong one", "/ViewerPreferences << /FitWindow 1 >>", preference(4, 0),
            "/ViewerPreferences", "<< /FitWindow false >>");
        row("new preferences", "", preference(1, 1), "/ViewerPreferences", "<< /HideToolbar true >>");
        row("other keys stay", "/ViewerPreferences << /Direction /R2L /Foo (x) >>", preference(7, 5),
            "/ViewerPreferences", "<< /Direction /R2L /Foo (x) /NonFullScreenPageMode /UseAttachments >>");
        row("in place", "/ViewerPreferences 11 0 R", preference(2, 1), "/ViewerPreferences", "11 0 R", "11");
        row("an array replaced", "/ViewerPreferences 12 0 R", preference(2, 1), "/ViewerPreferences",
            "<< /HideMenubar true >>");
        row("missing preferences", "/ViewerPreferences 90 0 R", preference(2, 1), "/ViewerPreferences",
            "<< /HideMenubar true >>");
        row("no mode", "/PageMode /UseOC", pageMode(6), "/PageMode", "null");
        row("no mode where there is none", "", pageMode(6), "/PageMode");
        row("no mode for a wrong one", "/PageMode 7", pageMode(6), "/PageMode", "null");
        row("preference removed", "/ViewerPreferences << /Foo 1 /FitWindow true >>", preference(4, -1),
            "/ViewerPreferences", "<< /Foo 1 >>");
        row("last preference removed", "/ViewerPreferences << /NumCopies 2 >>", preference(12, -1),
            "/ViewerPreferences", "<< >>");
        row("wrong preference removed", "/ViewerPreferences << /NumCopies -2 >>", preference(12, -1),
            "/ViewerPreferences", "<< >>");
        row("none to remove", "/ViewerPreferences << /FitWindow true >>", preference(12, -1),
            "/ViewerPreferences");
        row("no preferences to remove from", "/ViewerPreferences (none)", preference(4, -1),
            "/ViewerPreferences");
        row("left to right, which is the default", "", preference(8, 0), "/ViewerPreferences",
            "<< /Direction /L2R >>");
        row("copies", "/ViewerPreferences << /NumCopies (2) >>", preference(12, 2), "/ViewerPreferences",
            "<< /NumCopies 2 >>");
        row("zoom of an array", "/OpenAction [3 0 R /XYZ null 20 0]", destinationZoom(8.33), "/OpenAction",
            "[ 3 0 R /XYZ null 20 0.0833 ]");
        row("same zoom", "/OpenAction [3 0 R /XYZ 1 2 0.0833]", destinationZoom(8.33), "/OpenAction");
        row("zoom of a rectangle", "/OpenAction [3 0 R /FitR 1 2 3 4]", destinationZoom(50), "/OpenAction",
            "[ 3 0 R /XYZ 1 4 0.5 ]");
        row("no zoom of a rectangle", "/OpenAction [3 0 R /FitR 1 2 3 4]", destinationZoom(0), "/OpenAction",
            "[ 3 0 R /XYZ 1 4 null ]");
        row("zoom of a short array", "/OpenAction [0]", destinationZoom(50), "/OpenAction",
            "[ 0 /XYZ null null 0.5 ]");
        row("zoom of an action",
            "/OpenAction << /S /GoTo /D [3 0 R /XYZ 1 2 3] /SD [3 0 R] /Next << /S /Named >> >>",
            destinationZoom(100), "/OpenAction",
            "<< /D [ 3 0 R /XYZ 1 2 1 ] /Next << /S /Named >> /S /GoTo >>");
        row("zoom of a name", "/OpenAction /there /Dests << /there [4 0 R /XYZ 1 2 3] >>",
            destinationZoom(50), "/OpenAction", "[ 4 0 R /XYZ 1 2 0.5 ]");
    }

    void changesOnlyWhatDiffers()
    {
        const auto [entries, setter, key, value, changed] =
            Rows<std::string, Setter, QByteArray, QByteArray, QByteArray>::current();
        Opened opened(
            document(entries, {{10, "/UseThumbs"}, {11, "<< /HideToolbar true >>"}, {12, "[1 2]"}}));
        const QByteArray before = opened.entry(key);
        QCOMPARE(setter(opened.session), 1);
        QCOMPARE(opened.entry(key), value.isNull() ? before : value);
        QCOMPARE(opened.changed(), changed);
        QCOMPARE(setter(opened.session), 1);
        QCOMPARE(opened.entry(key), value.isNull() ? before : value);
    }

    void readsOpenActions_data()
    {
        const Rows<std::string, QByteArray> add;
        const auto row = [&add](const char* action, const char* expected) {
            add(action, std::string(action), QByteArray(expected));
        };
        row("[4 0 R /XYZ 10 20.5 1.5]", "2 type 1 10 20.5 0 0 150");
        row("[4 0 R /XYZ null null null]", "2 type 1 0 0 0 0 0");
        row("[4 0 R /XYZ]", "2 type 1 0 0 0 0 0");
        row("[4 0 R]", "2 type 1 form 0 0 0 0 0 0");
        row("[4 0 R /Odd 1 2 3]", "2 type 1 form 0 1 2 0 0 300");
        row("[5 0 R /Fit]", "3 type 2 0 0 0 0 0");
        row("[5 0 R /FitH 700]", "3 type 3 0 700 0 0 0");
        row("[5 0 R /FitV 30]", "3 type 4 30 0 0 0 0");
        row("[5 0 R /FitB]", "3 type 5 form 6 0 0 0 0 0");
        row("[5 0 R /FitBH 600]", "3 type 5 0 600 0 0 0");
        row("[5 0 R /FitBV 40]", "3 type 5 form 7 40 0 0 0 0");
        row("[5 0 R /FitR 1 2 3 4]", "3 type 1 form 8 1 4 3 2 0");
        row("[0 /Fit]", "1 type 2 0 0 0 0 0");
        row("[2 /Fit]", "3 type 2 0 0 0 0 0");
        row("[3 /Fit]", "none");
        row("[-1 /Fit]", "none");
        row("[null /Fit]", "none");
        row("[1 0 R /Fit]", "none");
        row("[]", "none");
        row("10 0 R", "1 type 2 0 0 0 0 0");
        row("<< /S /GoTo /D [4 0 R /Fit] >>", "2 type 2 0 0 0 0 0");
        row("11 0 R", "2 type 2 0 0 0 0 0");
        row("<< /S /JavaScript /JS (x) >>", "none");
        row("<< /S /GoTo >>", "none");
        row("<< /S /GoTo /D /old >>", "2 type 2 0 0 0 0 0 old");
        row("<< /S /GoTo /D (new) >>", "3 type 3 0 5 0 0 0 new");
        row("<< /S /GoTo /D (inside) >>", "1 type 2 0 0 0 0 0 inside");
        row("<< /S /GoTo /D (lied) >>", "1 type 4 7 0 0 0 0 lied");
        row("<< /S /GoTo /D (old) >>", "2 type 2 0 0 0 0 0 old");
        row("<< /S /GoTo /D /new >>", "3 type 3 0 5 0 0 0 new");
        row("<< /S /GoTo /D (nowhere) >>", "none");
        row("(new)", "3 type 3 0 5 0 0 0 new");
        row("<< /S /GoTo /D <FEFF00E9> >>", "1 type 2 0 0 0 0 0 \xc3\xa9");
    }

    void readsOpenActions()
    {
        const auto [action, expected] = Rows<std::string, QByteArray>::current();
        Opened opened(
            document("/OpenAction " + action + " /Dests << /old [4 0 R /Fit] >> /Names << /Dests 20 0 R >>",
                     {{10, "[12 0 R /Fit]"},
                      {11, "<< /S /GoTo /D 13 0 R >>"},
                      {12, "0"},
                      {13, "[4 0 R 14 0 R]"},
                      {14, "/Fit"},
                      {20, "<< /Kids [21 0 R 22 0 R 20 0 R 23 0 R 7] >>"},
                      {21, "<< /Limits [(a) (j)] /Names [(inside) << /D [3 0 R /Fit] >> (odd)] >>"},
                      {22, "<< /Limits [(k) (p)] /Names [(new) [5 0 R /FitH 5]] >>"},
                      {23, "<< /Limits [(y) (z)] /Names [(lied) [3 0 R /FitV 7] <FEFF00E9> [3 0 R /Fit]] "
                           "/Kids [20 0 R] >>"}}));
        QCOMPARE(openAction(opened.session), expected);
        QCOMPARE(opened.changed(), QByteArray());
    }

    void searchesADeepNameTree()
    {
        std::map<int, std::string> nodes;
        const int last = 40000;
        for (int each = 10; each < last; ++each)
            nodes[each] = "<< /Limits [(k) (m)] /Kids [" + std::to_string(each + 1) + " 0 R 10 0 R] >>";
        nodes[last] = "<< /Names [(key) [5 0 R /Fit]] >>";
        Opened opened(document("/OpenAction (key) /Names << /Dests 10 0 R >>", nodes));
        QCOMPARE(openAction(opened.session), QByteArray("3 type 2 0 0 0 0 0 key"));
    }

    void writesDestinations_data()
    {
        const Rows<Setter, QByteArray, QByteArray> row;
        row("zoom", destination(2, 150, 1, 5, 700), "[ 4 0 R /XYZ 5 700 1.5 ]", "2 type 1 5 700 0 0 150");
        row("no zoom", destination(1, 0, 1), "[ 3 0 R /XYZ 0 792 null ]", "1 type 1 0 792 0 0 0");
        row("page", destination(3, 0, 2), "[ 5 0 R /Fit ]", "3 type 2 0 0 0 0 0");
        row("width", destination(3, 75, 3), "[ 5 0 R /FitH 792 ]", "3 type 3 0 792 0 0 0");
        row("height", destination(1, 0, 4, 7.25), "[ 3 0 R /FitV 7.25 ]", "1 type 4 7.25 0 0 0 0");
        row("visible", destination(1, 0, 5, 0, 741.889763779528), "[ 3 0 R /FitBH 741.889764 ]",
            "1 type 5 0 741.89 0 0 0");
        row("box", destination(1, 0, 6), "[ 3 0 R /FitB ]", "1 type 5 form 6 0 0 0 0 0");
        row("height of the box", destination(1, 0, 7, 7.25), "[ 3 0 R /FitBV 7.25 ]",
            "1 type 5 form 7 7.25 0 0 0 0");
        row("rectangle", destination(1, 0, 8, 7.25, 1000), "[ 3 0 R /FitR 7.25 0 612 1000 ]",
            "1 type 1 form 8 7.25 1000 612 0 0");
        row("minus zero", destination(1, 33, 1, -0.0, 1e-9), "[ 3 0 R /XYZ 0 0 0.33 ]",
            "1 type 1 0 0 0 0 33");
    }

    void writesDestinations()
    {
        const auto [setter, written, read] = Rows<Setter, QByteArray, QByteArray>::current();
        for (const char* before : {"", "/OpenAction 10 0 R", "/OpenAction << /S /JavaScript /JS (x) >>"}) {
            Opened opened(document(before, {{10, "[3 0 R /XYZ 1 1 1]"}}));
            QCOMPARE(setter(opened.session), 1);
            QCOMPARE(opened.entry("/OpenAction"), written);
            QCOMPARE(openAction(opened.session), read);
            QCOMPARE(opened.changed(), QByteArray("1"));
            QCOMPARE(setter(opened.session), 1);
            QCOMPARE(opened.entry("/OpenAction"), written);
        }
    }

    void opensAtTheUpperLeftOfThePageAsItIsShown_data()
    {
        const Rows<std::string, int, QByteArray> add;
        const auto row = [&add](const char* page, int type, const char* operands) {
            add(QString("%1 type %2").arg(page).arg(type), std::string(page), type, QByteArray(operands));
        };
        row("", 1, "/XYZ 0 792 null");
        row("/Rotate 90", 1, "/XYZ 0 0 null");
        row("/Rotate 180", 1, "/XYZ 612 0 null");
        row("/Rotate 270", 1, "/XYZ 612 792 null");
        row("/Rotate 90", 3, "/FitH 0");
        row("/Rotate 90", 4, "/FitV 0");
        row("/Rotate 180", 3, "/FitH 0");
        row("/Rotate 180", 4, "/FitV 612");
        row("/Rotate 270", 3, "/FitH 612");
        row("/Rotate 270", 4, "/FitV 792");
        row("/Rotate 270", 5, "/FitBH 612");
        row("/CropBox [10 20 600 700]", 1, "/XYZ 10 700 null");
        row("/CropBox [10 20 600 700] /Rotate 90", 1, "/XYZ 10 20 null");
        row("/CropBox [10 20 600 700] /Rotate 180", 1, "/XYZ 600 20 null");
        row("/CropBox [10 20 600 700] /Rotate 270", 1, "/XYZ 600 700 null");
        row("/CropBox [10 20 600 700] /Rotate 90", 3, "/FitH 10");
        row("/CropBox [10 20 600 700] /Rotate 90", 4, "/FitV 20");
        row("/CropBox [10 20 600 700]", 3, "/FitH 700");
        row("/CropBox [-50 -50 700 900]", 1, "/XYZ 0 792 null");
        row("/CropBox [1000 1000 1200 1200] /Rotate 180", 1, "/XYZ 612 0 null");
    }

    void opensAtTheUpperLeftOfThePageAsItIsShown()
    {
        const auto [page, type, operands] = Rows<std::string, int, QByteArray>::current();
        Opened opened(PdfBuilder().catalog("").pages(1, 3, "/MediaBox [0 0 612 792] " + page).bytes());
        QCOMPARE(destination(1, 0, type)(opened.session), 1);
        QCOMPARE(opened.entry("/OpenAction"), "[ 3 0 R " + operands + " ]");
    }

    void movesAPointIntoThePage()
    {
        Opened opened(document(""));
        SetOpenActionDestinationFull(opened.session, 1, 0, 1, -7.25, 1e9, 0, 0);
        QCOMPARE(opened.entry("/OpenAction"), QByteArray("[ 3 0 R /XYZ 0 792 null ]"));
        SetOpenActionDestinationFull(opened.session, 1, 0, 1, 1e9, -1e9, 0, 0);
        QCOMPARE(opened.entry("/OpenAction"), QByteArray("[ 3 0 R /XYZ 612 0 null ]"));
    }

    void leavesAnOpenActionThatAlreadyShowsIt_data()
    {
        const Rows<std::string, Setter, bool> add;
        const auto row = [&add](const char* action, const Setter& setter, bool same) {
            add(action, std::string(action), setter, same);
        };
        row("[4 0 R /Fit]", destination(2, 0, 2), true);
        row("<< /S /GoTo /D [4 0 R /Fit] /Next << /S /URI >> >>", destination(2, 0, 2), true);
        row("(name)", destination(2, 0, 2), true);
        row("<< /S /GoTo /D (name) >>", destination(2, 0, 2), true);
        row("<< /S /GoTo /D (name)  >>", destination(1, 0, 2), false);
        row("[4 0 R /XYZ 0 792.0 0]", destination(2, 0, 1), true);
        row("[4 0 R /XYZ 0.0 792 null]", destination(2, 0, 1), true);
        row("[4 0 R /XYZ null null null]", destination(2, 0, 1), false);
        row("[4 0 R /XYZ 0 792]", destination(2, 0, 1), false);
        row("[4 0 R /XYZ 0 792 1]", destination(2, 0, 1), false);
        row("[4 0 R /FitB]", destination(2, 0, 5), false);
        row("[4 0 R /FitBH 792]", destination(2, 0, 5), true);
        row("[1 /Fit]", destination(2, 0, 2), false);
    }

    void leavesAnOpenActionThatAlreadyShowsIt()
    {
        const auto [action, setter, same] = Rows<std::string, Setter, bool>::current();
        Opened opened(
            document("/OpenAction " + action + " /Names << /Dests << /Names [(name) [4 0 R /Fit]] >> >>"));
        const QByteArray before = opened.entry("/OpenAction");
        QCOMPARE(setter(opened.session), 1);
        QCOMPARE(opened.entry("/OpenAction") == before, same);
        QCOMPARE(opened.changed(), QByteArray(same ? "" : "1"));
    }

    void refusesWhatItDoesNotKnow_data()
    {
        const Rows<Setter, ErrorCode> row;
        const double nan = std::nan("");
        const ErrorCode bad = ErrorCode::BadArgument;
        row("mode -1", pageMode(-1), bad);
        row("mode 7", pageMode(7), bad);
        row("layout -1", pageLayout(-1), bad);
        row("layout 7", pageLayout(7), bad);
        row("preference 0", preference(0, 1), bad);
        row("preference 13", preference(13, 1), bad);
        row("preference 101", preference(101, 1), bad);
        row("preference 113", preference(113, 1), bad);
        row("no copies", preference(12, 0), bad);
        row("preference value 2", preference(1, 2), bad);
        row("preference value -2", preference(6, -2), bad);
        row("full screen outside full screen", preference(7, 3), bad);
        row("mode 6 outside full screen", preference(7, 6), bad);
        row("page 0", destination(0, 0, 2), ErrorCode::UnknownPage);
        row("page 4", destination(4, 0, 2), ErrorCode::UnknownPage);
        row("type 0", destination(1, 0, 0), bad);
        row("type 9", destination(1, 0, 9), bad);
        row("negative zoom", destination(1, -5, 1), bad);
        row("left no number", destination(1, 0, 1, nan), bad);
        row("top infinite", destination(1, 0, 1, 0, HUGE_VAL), bad);
        for (const int option : {13, 100, 117, -1})
            row(QString("read preference %1").arg(option),
                Setter([=](Session& s) { return GetViewerPreferences(s, option); }), bad);
        row("another action", Setter([](Session& s) { return int(GetActionType(s, 1).size()); }), bad);
        row("zoom of what has none", destinationZoom(50), bad);
        row("left", Setter([](Session& s) { return SetDestValue(s, 1, 1, 5); }), bad);
        row("unknown catalog entry",
            Setter([](Session& s) { return SetCatalogInformation(s, L"Pages", L"x"); }), bad);
        row("name in the catalog",
            Setter([](Session& s) { return SetCatalogInformation(s, L"PageMode", L"x"); }), bad);
        row("destination 0", Setter([](Session& s) { return int(GetDestPage(s, 0)); }),
            ErrorCode::UnknownDestination);
        row("destination 7", Setter([](Session& s) { return int(GetDestType(s, 7)); }),
            ErrorCode::UnknownDestination);
        row("destination -1", Setter([](Session& s) { return int(GetDestType(s, -1)); }),
            ErrorCode::UnknownDestination);
        row("value 0", Setter([](Session& s) { return int(GetDestValue(s, 1, 0)); }), bad);
        row("value 7", Setter([](Session& s) { return int(GetDestValue(s, 1, 7)); }), bad);
        row("select page 4", Setter([](Session& s) { return int(SelectPage(s, 4)); }),
            ErrorCode::UnknownPage);
        row("box 0", Setter([](Session& s) { return int(GetPageBox(s, 0, 0)); }), bad);
        row("box 6", Setter([](Session& s) { return int(GetPageBox(s, 6, 0)); }), bad);
        row("dimension 6", Setter([](Session& s) { return int(GetPageBox(s, 1, 6)); }), bad);
        row("dimension -1", Setter([](Session& s) { return int(GetPageBox(s, 1, -1)); }), bad);
    }

    void refusesWhatItDoesNotKnow()
    {
        const auto [call, code] = Rows<Setter, ErrorCode>::current();
        Opened opened(document("/OpenAction [3 0 R /Fit]"));
        QCOMPARE(GetOpenActionDestination(opened.session), 1);
        QCOMPARE(errorOf([&, &setter = call] { setter(opened.session); }), code);
        QCOMPARE(opened.changed(), QByteArray());
        QCOMPARE(SelectedPage(opened.session), 1);
        Session empty;
        QCOMPARE(errorOf([&, &setter = call] { setter(empty); }), ErrorCode::NoDocument);
    }

    void removesAnOpenAction()
    {
        Opened opened(document("/OpenAction (anything)"));
        QCOMPARE(RemoveOpenAction(opened.session), 1);
        QCOMPARE(opened.entry("/OpenAction"), QByteArray("null"));
        QCOMPARE(opened.changed(), QByteArray("1"));
        Opened without(document(""));
        QCOMPARE(RemoveOpenAction(without.session), 1);
        QCOMPARE(without.changed(), QByteArray());
    }

    void tellsWhatTheOpenActionIs_data()
    {
        const Rows<std::string, std::wstring> row;
        row("none", "", L"");
        row("missing", "/OpenAction 90 0 R", L"");
        row("destination", "/OpenAction [3 0 R /Fit]", L"GoTo");
        row("destination of no page", "/OpenAction [90 0 R /Fit]", L"GoTo");
        row("names", "/OpenAction /there", L"GoTo");
        row("string", "/OpenAction (there)", L"GoTo");
        for (const char* type : {"GoTo", "JavaScript", "URI", "Named", "GoToR", "Launch"})
            row(type, std::string("/OpenAction << /S /") + type + " >>", QString(type).toStdWString());
        row("no action", "/OpenAction << /D [3 0 R /Fit] >>", L"Unknown");
        row("number", "/OpenAction 5", L"Unknown");
    }

    void tellsWhatTheOpenActionIs()
    {
        const auto [entries, type] = Rows<std::string, std::wstring>::current();
        Opened opened(document(entries));
        QCOMPARE(GetActionType(opened.session, 0), type);
    }

    void tellsWhatIsMissingOrInvalidFromWhatSaysNo_data()
    {
        const Rows<std::string, QByteArray> row;
        row("some", "/PageMode /UseNone /Lang (de) /ViewerPreferences << /FitWindow false /Direction /R2L >>",
            "-1 -1 -1 0 -1 -1 -1 1 -1 -1 -1 -1 0 -1 0 -1");
        row("wrong types",
            "/PageMode (UseNone) /PageLayout 3 /Lang /de /ViewerPreferences << /HideToolbar (yes) "
            "/CenterWindow "
            "1 /NonFullScreenPageMode /FullScreen /Direction (R2L) /PickTrayByPDFSize /true /NumCopies 2.0 "
            ">>",
            "-2 -1 -1 -1 -2 -1 -2 -2 -1 -1 -2 -2 -2 -2 -2 -1");
        row("unknown values",
            "/PageMode /Odd /PageLayout /Odd /ViewerPreferences << /PrintScaling /Odd /Duplex /None "
            "/NumCopies "
            "0 >>",
            "-1 -1 -1 -1 -1 -1 -1 -1 -2 -2 -1 -2 -2 -2 -1 -1");
        row("no dictionary, and nothing", "/PageMode 90 0 R /Lang () /ViewerPreferences [ /HideToolbar ]",
            "-1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 -1 0 -1");
    }

    void tellsWhatIsMissingOrInvalidFromWhatSaysNo()
    {
        const auto [entries, expected] = Rows<std::string, QByteArray>::current();
        Opened opened(document(entries));
        QByteArrayList found;
        for (int option = 1; option <= 16; ++option)
            found << QByteArray::number(GetViewerPreferences(opened.session, 100 + option));
        QCOMPARE(found.join(' '), expected);
    }

    void tellsCatalogEntriesAsTheyStand()
    {
        Opened opened(document("/PageMode /UseNone /Lang (de)"));
        QCOMPARE(GetCatalogInformation(opened.session, L"PageMode"), std::wstring(L"UseNone"));
        QCOMPARE(GetCatalogInformation(opened.session, L"Lang"), std::wstring(L"de"));
        QCOMPARE(GetCatalogInformation(opened.session, L"PageLayout"), std::wstring());
    }

    void keepsTheIdOfAMagnifiedDestination()
    {
        Opened opened(document("/OpenAction [3 0 R /XYZ 1 2 3]"));
        const int id = GetOpenActionDestination(opened.session);
        destinationZoom(33.3)(opened.session);
        QCOMPARE(GetDestValue(opened.session, id, 5), 33.3);
        QCOMPARE(GetOpenActionDestination(opened.session), id);
        destination(2, 0, 1)(opened.session);
        QVERIFY_EXCEPTION_THROWN(SetDestValue(opened.session, id, 5, 50), EngineError);
    }

    void keepsDestinationIdsWhileTheirDocumentIsOpen()
    {
        Opened opened(document("/OpenAction [3 0 R /Fit]"));
        Session& session = opened.session;
        const int first = GetOpenActionDestination(session);
        destination(2, 0, 2)(session);
        const int second = GetOpenActionDestination(session);
        QVERIFY(first != second);
        QCOMPARE(GetDestPage(session, first), 1);
        QCOMPARE(GetDestPage(session, second), 2);
        QCOMPARE(GetOpenActionDestination(session), second);
        LoadFromString(session, document("/OpenAction [5 0 R /Fit]"), {});
        QVERIFY_EXCEPTION_THROWN(GetDestPage(session, first), EngineError);
        RemoveDocument(session, 1);
        QCOMPARE(GetOpenActionDestination(session), first);
        QCOMPARE(GetDestPage(session, first), 3);
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
        row("/MediaBox [0 0 100]", 1, "0 792 612 792 612 0");
        row("/MediaBox [0 0 100 /x]", 1, "0 792 612 792 612 0");
        row("/MediaBox 10 0 R", 1, "-5 50 15 48.5 10 1.5");
        row("/MediaBox [0 0 200 300]", 2, "0 300 200 300 200 0");
        row("/CropBox [5 5 50 60]", 2, "5 60 45 55 50 5");
        row("/CropBox [5 5 50 60]", 3, "5 60 45 55 50 5");
        row("/CropBox [5 5 50 60] /TrimBox [6 6 40 50]", 4, "6 50 34 44 40 6");
        row("/CropBox [5 5 50 60] /TrimBox [6 6 40 50]", 5, "5 60 45 55 50 5");
        row("/ArtBox [7 7 8 9]", 5, "7 9 1 2 8 7");
    }

    void measuresPages()
    {
        const auto [page, box, expected] = Rows<std::string, int, QByteArray>::current();
        Opened opened(PdfBuilder().catalog("").pages(1, 3, page).object(10, "[-5 1.5 10 50]").bytes());
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
        Opened opened(
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
        Opened opened(PdfBuilder().catalog("").pages(1, 3, rotate).bytes());
        QCOMPARE(PageRotation(opened.session), expected);
    }
};

QTEST_GUILESS_MAIN(TestEngineView)
#include "TestEngineView.moc"
