#include "support/Rows.h"
#include "support/engine/EngineErrors.h"
#include "support/engine/OpenedDocument.h"

#include <QtTest>

using namespace engine;
using namespace engine::operations;

namespace {

/// Page, type, form if it is another, left, top, right, bottom, zoom and name of the open action's destination.
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

} // namespace

class TestEngineOpenAction : public QObject
{
    Q_OBJECT

    static std::string bytesOf(const std::string& entries, const std::map<int, std::string>& objects = {})
    {
        return OpenedDocument::bytes(entries, objects);
    }

private slots:
    void readsOpenActions_data()
    {
        const Rows<std::string, QByteArray> add;
        const auto row = [&add](const char* action, const char* expected) {
            add(action, std::string(action), QByteArray(expected));
        };
        row("[4 0 R /XYZ 10 20.5 1.5]", "2 type 1 10 20.5 0 0 150");
        row("[4 0 R /XYZ 1 -99999999999999999999.0 99999999999999999999.5]",
            "2 type 1 1 -2.14748e+09 0 0 2.14748e+11");
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
        row("[2 /Fit]", "3 type 2 0 0 0 0 0");
        row("[3 /Fit]", "none");
        row("[-1 /Fit]", "none");
        row("[1 0 R /Fit]", "none");
        row("[]", "none");
        row("10 0 R", "1 type 2 0 0 0 0 0");
        row("11 0 R", "2 type 2 0 0 0 0 0");
        row("<< /S /JavaScript /JS (x) >>", "none");
        row("<< /S /GoTo /D /old >>", "2 type 2 0 0 0 0 0 old");
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
        OpenedDocument opened(
            bytesOf("/OpenAction " + action + " /Dests << /old [4 0 R /Fit] >> /Names << /Dests 20 0 R >>",
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

    void tellsWhatTheOpenActionIs()
    {
        const std::pair<std::string, std::wstring> actions[] = {{"", L""},
                                                                {"90 0 R", L""},
                                                                {"[3 0 R /Fit]", L"GoTo"},
                                                                {"[90 0 R /Fit]", L"GoTo"},
                                                                {"/there", L"GoTo"},
                                                                {"(there)", L"GoTo"},
                                                                {"<< /S /URI >>", L"URI"},
                                                                {"<< /S /Launch >>", L"Launch"},
                                                                {"<< /D [3 0 R /Fit] >>", L"Unknown"},
                                                                {"5", L"Unknown"}};
        for (const auto& [action, type] : actions) {
            OpenedDocument opened(bytesOf(action.empty() ? "" : "/OpenAction " + action));
            QCOMPARE(GetActionType(opened.session, 0), type);
        }
    }

    void searchesADeepNameTree()
    {
        std::map<int, std::string> nodes;
        const int last = 40000;
        for (int each = 10; each < last; ++each)
            nodes[each] = "<< /Limits [(k) (m)] /Kids [" + std::to_string(each + 1) + " 0 R 10 0 R] >>";
        nodes[last] = "<< /Names [(key) [5 0 R /Fit]] >>";
        OpenedDocument opened(bytesOf("/OpenAction (key) /Names << /Dests 10 0 R >>", nodes));
        QCOMPARE(openAction(opened.session), QByteArray("3 type 2 0 0 0 0 0 key"));
    }

    void writesDestinations_data()
    {
        const Rows<Operation, QByteArray, QByteArray> row;
        row("zoom", openAt(2, 150, 1, 5, 700), "[ 4 0 R /XYZ 5 700 1.5 ]", "2 type 1 5 700 0 0 150");
        row("no zoom", openAt(1, 0, 1), "[ 3 0 R /XYZ 0 792 null ]", "1 type 1 0 792 0 0 0");
        row("page", openAt(3, 0, 2), "[ 5 0 R /Fit ]", "3 type 2 0 0 0 0 0");
        row("width", openAt(3, 75, 3), "[ 5 0 R /FitH 792 ]", "3 type 3 0 792 0 0 0");
        row("height", openAt(1, 0, 4, 7.25), "[ 3 0 R /FitV 7.25 ]", "1 type 4 7.25 0 0 0 0");
        row("visible", openAt(1, 0, 5, 0, 741.889763779528), "[ 3 0 R /FitBH 741.889764 ]",
            "1 type 5 0 741.89 0 0 0");
        row("box", openAt(1, 0, 6), "[ 3 0 R /FitB ]", "1 type 5 form 6 0 0 0 0 0");
        row("height of the box", openAt(1, 0, 7, 7.25), "[ 3 0 R /FitBV 7.25 ]",
            "1 type 5 form 7 7.25 0 0 0 0");
        row("rectangle", openAt(1, 0, 8, 7.25, 1000), "[ 3 0 R /FitR 7.25 0 612 1000 ]",
            "1 type 1 form 8 7.25 1000 612 0 0");
        row("minus zero", openAt(1, 33, 1, -0.0, 1e-9), "[ 3 0 R /XYZ 0 0 0.33 ]", "1 type 1 0 0 0 0 33");
    }

    void writesDestinations()
    {
        const auto [setter, written, read] = Rows<Operation, QByteArray, QByteArray>::current();
        const QByteArray rest = "<< /D " + written + " /Next << /S /Named >> /S /GoTo >>";
        const std::pair<std::string, QByteArray> before[] = {
            {"", written},
            {"/OpenAction 10 0 R", written},
            {"/OpenAction << /S /JavaScript /JS (x) /Next << /S /Named >> >>", written},
            {"/OpenAction 11 0 R", rest},
            {"/OpenAction << /S /GoTo /D (nowhere) /Next << /S /Named >> >>", rest}};
        for (const auto& [entry, after] : before) {
            OpenedDocument opened(
                bytesOf(entry, {{10, "[3 0 R /XYZ 1 1 1]"},
                                {11, "<< /S /GoTo /D 10 0 R /SD [3 0 R] /Next << /S /Named >> >>"}}));
            QCOMPARE(setter(opened.session), 1);
            QCOMPARE(opened.entry("/OpenAction"), after);
            QCOMPARE(openAction(opened.session), read);
            QCOMPARE(opened.changed(), QByteArray("1"));
            QCOMPARE(setter(opened.session), 1);
            QCOMPARE(opened.entry("/OpenAction"), after);
        }
    }

    void opensAtTheUpperLeftOfThePageAsItIsShown_data()
    {
        const Rows<std::string, int, QByteArray> add;
        const auto row = [&add](const char* page, int type, const char* operands) {
            add(QString("%1 type %2").arg(page).arg(type), std::string(page), type, QByteArray(operands));
        };
        row("", 1, "/XYZ 0 792 null");
        row("/Rotate 180", 3, "/FitH 0");
        row("/Rotate 180", 4, "/FitV 612");
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
        OpenedDocument opened(
            PdfBuilder().catalog("").pages(1, 3, "/MediaBox [0 0 612 792] " + page).bytes());
        QCOMPARE(openAt(1, 0, type)(opened.session), 1);
        QCOMPARE(opened.entry("/OpenAction"), "[ 3 0 R " + operands + " ]");
    }

    void movesAPointIntoThePage()
    {
        OpenedDocument opened(bytesOf(""));
        SetOpenActionDestinationFull(opened.session, 1, 0, 1, -7.25, 1e9, 0, 0);
        QCOMPARE(opened.entry("/OpenAction"), QByteArray("[ 3 0 R /XYZ 0 792 null ]"));
        SetOpenActionDestinationFull(opened.session, 1, 0, 1, 1e9, -1e9, 0, 0);
        QCOMPARE(opened.entry("/OpenAction"), QByteArray("[ 3 0 R /XYZ 612 0 null ]"));
    }

    void leavesAnOpenActionThatAlreadyShowsIt_data()
    {
        const Rows<std::string, Operation, bool> add;
        const auto row = [&add](const char* action, const Operation& setter, bool same) {
            add(action, std::string(action), setter, same);
        };
        row("[4 0 R /Fit]", openAt(2, 0, 2), true);
        row("<< /S /GoTo /D [4 0 R /Fit] /Next << /S /URI >> >>", openAt(2, 0, 2), true);
        row("(name)", openAt(2, 0, 2), true);
        row("<< /S /GoTo /D (name)  >>", openAt(1, 0, 2), false);
        row("[4 0 R /XYZ 0 792.0 0]", openAt(2, 0, 1), true);
        row("[4 0 R /XYZ 0.0 792 null]", openAt(2, 0, 1), true);
        row("[4 0 R /XYZ null null null]", openAt(2, 0, 1), false);
        row("[4 0 R /XYZ 0 792]", openAt(2, 0, 1), false);
        row("[4 0 R /XYZ 0 792 1]", openAt(2, 0, 1), false);
        row("[4 0 R /FitB]", openAt(2, 0, 5), false);
        row("[4 0 R /FitBH 792]", openAt(2, 0, 5), true);
        row("[1 /Fit]", openAt(2, 0, 2), false);
    }

    void leavesAnOpenActionThatAlreadyShowsIt()
    {
        const auto [action, setter, same] = Rows<std::string, Operation, bool>::current();
        OpenedDocument opened(
            bytesOf("/OpenAction " + action + " /Names << /Dests << /Names [(name) [4 0 R /Fit]] >> >>"));
        const QByteArray before = opened.entry("/OpenAction");
        QCOMPARE(setter(opened.session), 1);
        QCOMPARE(opened.entry("/OpenAction") == before, same);
        QCOMPARE(opened.changed(), QByteArray(same ? "" : "1"));
    }

    void keepsTheIdOfAMagnifiedDestination()
    {
        OpenedDocument opened(bytesOf("/OpenAction [3 0 R /XYZ 1 2 3]"));
        const int id = GetOpenActionDestination(opened.session);
        magnified(33.3)(opened.session);
        QCOMPARE(GetDestValue(opened.session, id, 5), 33.3);
        QCOMPARE(GetOpenActionDestination(opened.session), id);
        openAt(2, 0, 1)(opened.session);
        QVERIFY_EXCEPTION_THROWN(SetDestValue(opened.session, id, 5, 50), EngineError);
    }

    void keepsDestinationIdsWhileTheirDocumentIsOpen()
    {
        OpenedDocument opened(bytesOf("/OpenAction [3 0 R /Fit]"));
        Session& session = opened.session;
        const int first = GetOpenActionDestination(session);
        openAt(2, 0, 2)(session);
        const int second = GetOpenActionDestination(session);
        QVERIFY(first != second);
        QCOMPARE(GetDestPage(session, first), 1);
        QCOMPARE(GetDestPage(session, second), 2);
        QCOMPARE(GetOpenActionDestination(session), second);
        LoadFromString(session, bytesOf("/OpenAction [5 0 R /Fit]"), {});
        QVERIFY_EXCEPTION_THROWN(GetDestPage(session, first), EngineError);
        RemoveDocument(session, 1);
        QCOMPARE(GetOpenActionDestination(session), first);
        QCOMPARE(GetDestPage(session, first), 3);
    }
};

QTEST_GUILESS_MAIN(TestEngineOpenAction)
#include "TestEngineOpenAction.moc"
