#include "InitialViewSettings.h"
#include "editinitialview.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"
#include "shared/CErrorHandler.h"
#include "support/Recorder.h"
#include "support/Rows.h"

#include <QtTest>

using Settings = QMap<QString, QVariant>;

namespace {

QStringList exceptionRecords;

} // namespace

// Takes the place of the library's log entry point.
void StoreErrorToLog(const char* text)
{
    exceptionRecords.append(QString::fromUtf8(text));
}

namespace {

const char failureMessage[] = "Error occurred while saving initial view data";

Settings everythingOn()
{
    return {
        {"LayoutAndMagnCheckBox", true},
        {"NavigationTabComboBox", 3},
        {"PageLayoutComboBox", 5},
        {"MagnificationComboBox", 6},
        {"OpenToPageSpinBox", 7},
        {"ViewerPrefsCheckBox", true},
        {"HideToobarsCheckBox", true},
        {"HideMenuBarCheckBox", false},
        {"HideCtrlWindowsCheckBox", true},
        {"CenterWinOnScreenCheckBox", 1},
        {"ResizeWinToInitPageCheckBox", 0},
        {"OpenInFullScreenCheckBox", true},
        {"ShowComboBox", 1},
        {"ActionName", "something else"},
    };
}

const QStringList everythingsCalls{
    "SetPageMode(4)",
    "SetViewerPreferences(7, 4)",
    "SetPageLayout(5)",
    "SelectedPage()",
    "PageCount()",
    "SelectPage(7)",
    "GetPageBox(1, 0)",
    "GetPageBox(1, 1)",
    "GetPageBox(1, 4)",
    "GetPageBox(1, 5)",
    "SetOpenActionDestinationFull(7, 50, 1, -1.5, 792, 612.25, 3)",
    "SelectPage(4)",
    "SetViewerPreferences(1, 1)",
    "SetViewerPreferences(2, 0)",
    "SetViewerPreferences(3, 1)",
    "SetViewerPreferences(4, 0)",
    "SetViewerPreferences(5, 1)",
    "SetPageMode(3)",
    "SetViewerPreferences(6, 1)",
};

/// A library that records, with a document of ten pages of which the fourth is selected, and the action.
struct Fixture
{
    Fixture()
    {
        recorder.returns("PageCount", 10);
        recorder.returns("SelectedPage", 4);
        recorder.returns("GetPageBox(1, 0)", -1.5);
        recorder.returns("GetPageBox(1, 1)", 792);
        recorder.returns("GetPageBox(1, 4)", 612.25);
        recorder.returns("GetPageBox(1, 5)", 3);
        recorder.takeLog();
        exceptionRecords.clear();
    }

    int work(Settings settings)
    {
        const Settings before = settings;
        WorkProcInfoStruct info{&library, &errors, {}, &settings};
        const int result = action.WorkProc(&info);
        settingsKept = settings == before;
        return result;
    }

    Recorder recorder;
    TelvarPDFLibraryCPDylibCPP1311 library{Recorder::path()};
    CErrorHandler errors;
    CEditInitialView action;
    bool settingsKept = false;
};

/// The call with the name out of what one work call did.
QString callNamed(const QStringList& calls, const QString& name)
{
    const QStringList named = calls.filter(name + '(');
    return named.size() == 1 ? named.first() : QString("%1 calls of %2").arg(named.size()).arg(name);
}

} // namespace

class TestWorkProcedure : public QObject
{
    Q_OBJECT

private slots:
    void doesWhatEverySettingSays()
    {
        using namespace initialview;
        for (const Key& key : keys) {
            if (key.type == ValueType::Text)
                continue;
            const auto callsFor = [&key](int number) {
                Fixture fixture;
                Settings settings{{key::LayoutAndMagn, true}, {key::ViewerPrefs, true}, {key::OpenToPage, 2}};
                settings[key.name] = key.type == ValueType::Flag ? QVariant(number != 0) : QVariant(number);
                fixture.work(settings);
                return fixture.recorder.takeLog();
            };
            QVERIFY2(callsFor(key.lowest) != callsFor(key.lowest + 1), key.name);
        }
    }

    void makesTheCallsInOrder_data()
    {
        const Rows<Settings, QStringList> row;

        Settings settings = everythingOn();
        row("everything on", settings, everythingsCalls);
        settings["OpenInFullScreenCheckBox"] = false;
        QStringList calls = everythingsCalls;
        calls.removeAll("SetPageMode(3)");
        row("no full screen", settings, calls);

        settings = everythingOn();
        settings["ViewerPrefsCheckBox"] = false;
        row("layout only", settings, QStringList(everythingsCalls.mid(0, 12)));
        settings = everythingOn();
        settings.remove("LayoutAndMagnCheckBox");
        row("preferences only", settings, QStringList(everythingsCalls.mid(12)));
        row("preferences, nothing else stored", {{"ViewerPrefsCheckBox", true}},
            {"SetViewerPreferences(1, 0)", "SetViewerPreferences(2, 0)", "SetViewerPreferences(3, 0)",
             "SetViewerPreferences(4, 0)", "SetViewerPreferences(5, 0)", "SetViewerPreferences(6, 0)"});
        row("layout, nothing else stored", {{"LayoutAndMagnCheckBox", true}},
            {"SetPageMode(0)", "SetViewerPreferences(7, 0)", "SetPageLayout(0)", "SelectedPage()",
             "PageCount()", "SelectPage(0)", "GetPageBox(1, 0)", "GetPageBox(1, 1)", "GetPageBox(1, 4)",
             "GetPageBox(1, 5)", "SetOpenActionDestinationFull(0, 0, 1, -1.5, 792, 612.25, 3)",
             "SelectPage(4)"});
        row("nothing stored", {}, {});
        settings = everythingOn();
        settings["LayoutAndMagnCheckBox"] = settings["ViewerPrefsCheckBox"] = false;
        row("both groups off", settings, {});
    }

    void makesTheCallsInOrder()
    {
        const auto [settings, calls] = Rows<Settings, QStringList>::current();
        Fixture fixture;
        QCOMPARE(fixture.work(settings), 0);
        QCOMPARE(fixture.recorder.takeLog(), calls);
        QVERIFY(fixture.settingsKept);
        QCOMPARE(fixture.errors.GetCount(), 0L);
        QVERIFY(exceptionRecords.isEmpty());
    }

    void readsEachKeyWithItsOwnConversion()
    {
        const auto makes = [](const char* key, const QVariant& stored, const QString& call) {
            Settings settings = everythingOn();
            settings[key] = stored;
            Fixture fixture;
            return fixture.work(settings) == 0 && fixture.recorder.takeLog().contains(call);
        };
        // A text "true" is a true flag, but the number 0.
        for (const auto& [flag, call] : {std::pair{"LayoutAndMagnCheckBox", "SetPageLayout(5)"},
                                         {"ViewerPrefsCheckBox", "SetViewerPreferences(6, 1)"},
                                         {"OpenInFullScreenCheckBox", "SetPageMode(3)"}}) {
            for (const QVariant& yes : {QVariant("true"), QVariant("no matter"), QVariant(-2)})
                QVERIFY2(makes(flag, yes, call), flag);
            for (const QVariant& no : {QVariant("false"), QVariant("0"), QVariant(""), QVariant(0.0)})
                QVERIFY2(!makes(flag, no, call), flag);
        }
        for (const auto& [key, call] : {std::pair{"HideToobarsCheckBox", "SetViewerPreferences(1, %1)"},
                                        {"HideMenuBarCheckBox", "SetViewerPreferences(2, %1)"},
                                        {"HideCtrlWindowsCheckBox", "SetViewerPreferences(3, %1)"},
                                        {"ResizeWinToInitPageCheckBox", "SetViewerPreferences(4, %1)"},
                                        {"CenterWinOnScreenCheckBox", "SetViewerPreferences(5, %1)"},
                                        {"ShowComboBox", "SetViewerPreferences(6, %1)"},
                                        {"PageLayoutComboBox", "SetPageLayout(%1)"},
                                        {"NavigationTabComboBox", "SetViewerPreferences(7, %1)"}})
            for (const auto& [stored, number] : {std::pair<QVariant, int>{"true", 0},
                                                 {true, 1},
                                                 {" 2", 2},
                                                 {1.5, 2},
                                                 {-3, -3},
                                                 {INT_MAX, INT_MAX},
                                                 {INT_MIN, INT_MIN}})
                QVERIFY2(makes(key, stored, QString(call).arg(number)), key);
    }

    void turnsNavigationRowsIntoPageModes()
    {
        const QList<QPair<int, int>> rows{{-1, -1}, {0, 0}, {1, 1}, {2, 2}, {3, 4}, {4, 5}, {5, 5}, {99, 99}};
        for (const auto& [row, mode] : rows) {
            Fixture fixture;
            fixture.work({{"LayoutAndMagnCheckBox", true}, {"NavigationTabComboBox", row}});
            const QStringList calls = fixture.recorder.takeLog().mid(0, 2);
            QCOMPARE(calls, (QStringList{QString("SetPageMode(%1)").arg(mode),
                                         QString("SetViewerPreferences(7, %1)").arg(mode)}));
        }
    }

    void turnsMagnificationIntoZoomAndType_data()
    {
        const Rows<QVariant, int, int> add;
        const int zooms[] = {0, 0, 0, 0, 0, 25, 50, 75, 100, 200, 400, 800, 1600};
        for (int row = 0; row < 13; ++row)
            add(QString::asprintf("row %d", row), row, zooms[row], (row < 5 ? row + 1 : 1));
        add("below the table", -1, 0, 0);
        add("lowest", INT_MIN, 0, INT_MIN + 1);
        add("above the table", 13, 100, 1);
        add("highest", INT_MAX, 100, 1);
        add("text", "7", 75, 1);
        add("text with a fraction is no row", "6.5", 0, 1);
        add("text true is row 0", "true", 0, 1);
        add("flag is row 1", true, 0, 2);
        add("rounded up to row 5", 4.5, 12, 1);
        add("just row 7", 7.49, 87, 1);
        // Its low 32 bits are row 5; the number itself is far above.
        add("row 5 modulo 2^32", 4294967301.0, 100, 1);
    }

    void turnsMagnificationIntoZoomAndType()
    {
        const auto [stored, zoom, type] = Rows<QVariant, int, int>::current();
        Fixture fixture;
        fixture.work(
            {{"LayoutAndMagnCheckBox", true}, {"MagnificationComboBox", stored}, {"OpenToPageSpinBox", 2}});
        QCOMPARE(
            callNamed(fixture.recorder.takeLog(), "SetOpenActionDestinationFull"),
            QString("SetOpenActionDestinationFull(2, %1, %2, -1.5, 792, 612.25, 3)").arg(zoom).arg(type));
    }

    void opensAtTheFirstPageWhereTheWantedOneIsMissing()
    {
        const QList<QPair<int, int>> pages{{10, 10}, {11, 1}, {INT_MAX, 1}, {1, 1}, {0, 0}, {-5, -5}};
        for (const auto& [wanted, target] : pages) {
            Fixture fixture;
            fixture.work({{"LayoutAndMagnCheckBox", true}, {"OpenToPageSpinBox", wanted}});
            const QStringList calls = fixture.recorder.takeLog();
            QCOMPARE(calls.filter("SelectPage("),
                     (QStringList{QString("SelectPage(%1)").arg(target), "SelectPage(4)"}));
            QVERIFY(calls.contains(
                QString("SetOpenActionDestinationFull(%1, 0, 1, -1.5, 792, 612.25, 3)").arg(target)));
        }
    }

    void failsWhereACallThrows()
    {
        for (int step = 0; step < everythingsCalls.size(); ++step) {
            Fixture fixture;
            fixture.errors.StoreError("earlier");
            fixture.recorder.throws(qPrintable(everythingsCalls[step]));
            QCOMPARE(fixture.work(everythingOn()), 1);
            QCOMPARE(fixture.recorder.takeLog(), QStringList(everythingsCalls.mid(0, step + 1)));
            QCOMPARE(fixture.errors.GetCount(), 2L);
            QCOMPARE(fixture.errors.GetLast(), QString(failureMessage));

            QCOMPARE(exceptionRecords.size(), 1);
            const QRegularExpression record("editinitialview.cpp\nFunction: WorkProc\nLine: [1-9][0-9]*\n$");
            QVERIFY2(record.match(exceptionRecords.first()).hasMatch(), qPrintable(exceptionRecords.first()));
        }
    }

    void doesNotNoticeWhatTheLibraryReports()
    {
        Fixture fixture;
        for (const char* call : {"SetPageMode", "SetViewerPreferences", "SetPageLayout", "SelectPage",
                                 "SetOpenActionDestinationFull"})
            fixture.recorder.returns(call, -1);
        QCOMPARE(fixture.work(everythingOn()), 0);
        QCOMPARE(fixture.recorder.takeLog(), everythingsCalls);
        QCOMPARE(fixture.errors.GetCount(), 0L);
    }

    void endsWellWithoutALibrary()
    {
        TelvarPDFLibraryCPDylibCPP1311 library(L"/nowhere");
        Settings settings = everythingOn();
        CErrorHandler errors;
        WorkProcInfoStruct info{&library, &errors, {}, &settings};
        QCOMPARE(CEditInitialView().WorkProc(&info), 0);
    }
};

QTEST_GUILESS_MAIN(TestWorkProcedure)
#include "TestWorkProcedure.moc"
