#include "EditInitialView/CPrefsDialog.h"
#include "EditInitialView/InitialViewSettings.h"
#include "EditInitialView/editinitialview.h"
#include "pdflibrary/TelvarPDFLibraryCPDylibCPP1311.h"

#include "support/Recorder.h"
#include "support/Rows.h"
#include "support/people/Mute.h"
#include "support/people/Person.h"

#include <QtTest>

#include <functional>

using namespace initialview;
using person::pressCancel;
using person::pressOk;

namespace {

using Prefs = QMap<QString, QVariant>;
using Visit = std::function<void(CPrefsDialog&)>;

const int document = 7;

QStringList itemsOf(const QComboBox* list)
{
    QStringList items;
    for (int row = 0; row < list->count(); ++row)
        items << list->itemText(row);
    return items;
}

} // namespace

class TestDialogProcedure : public QObject
{
    Q_OBJECT

private:
    Recorder m_recorder;
    TelvarPDFLibraryCPDylibCPP1311 m_library{Recorder::path()};
    Prefs m_prefs;

    DialogLoadStruct load()
    {
        DialogLoadStruct load{};
        load.pPDFLibrary = &m_library;
        load.nDocumentID = document;
        load.pSettings = &m_prefs;
        return load;
    }

    /// Runs the procedure; `visit` uses the dialog once it is up.
    static int run(DialogLoadStruct load, const Visit& visit, QWidget* parent = nullptr)
    {
        bool visited = false;
        person::whenOpens("CPrefsDialog", [&](QDialog& dialog) {
            visited = true;
            visit(dynamic_cast<CPrefsDialog&>(dialog));
            if (dialog.isVisible())
                dialog.reject();
        });
        const int result = CEditInitialView().ShowDialogProc(parent, &load);
        return visited ? result : -1;
    }

private slots:
    void initTestCase() { muteFrameWarnings(); }

    void init()
    {
        m_recorder.reset();
        m_prefs.clear();
    }

    void readsTheDocumentInOrder()
    {
        m_recorder.returns("GetPageMode", 4);
        m_recorder.returns("GetPageLayout", 5);
        m_recorder.returns("GetOpenActionDestination", 12);
        m_recorder.returns("GetDestType", 3);
        m_recorder.returns("GetDestPage", 70);
        m_recorder.returns("GetViewerPreferences(1)", 1);
        m_recorder.returns("GetViewerPreferences(2)", 2); // only 1 means yes
        m_recorder.returns("GetViewerPreferences(4)", 1);
        m_recorder.returns("GetViewerPreferences(5)", -1);
        m_prefs = {{key::Show, 1}, {key::PageLayout, 2}, {"CollectionName", "kept"}};
        QCOMPARE(run(load(), pressCancel), 0);
        QCOMPARE(m_recorder.takeLog(),
                 QStringList({"SelectDocument(7)", "GetPageMode()", "GetPageLayout()",
                              "GetOpenActionDestination()", "GetDestType(12)", "GetDestPage(12)",
                              "GetViewerPreferences(1)", "GetViewerPreferences(2)", "GetViewerPreferences(3)",
                              "GetViewerPreferences(4)", "GetViewerPreferences(5)", "GetPageMode()"}));
        const Prefs expected{{key::NavigationTab, 3},
                             {key::PageLayout, 5},
                             {key::Magnification, 2},
                             {key::OpenToPage, 70},
                             {key::HideToolBars, true},
                             {key::HideMenuBar, false},
                             {key::HideCtrlWindows, false},
                             {key::ResizeWinToInitPage, true},
                             {key::CenterWinOnScreen, false},
                             {key::OpenInFullScreen, false},
                             {key::LayoutAndMagn, true},
                             {key::ViewerPrefs, true},
                             {key::Show, 1},
                             {"CollectionName", "kept"}};
        QCOMPARE(m_prefs, expected);
    }

    void asksNothingOfAMissingDestination()
    {
        m_recorder.returns("GetDestType", 4);
        m_recorder.returns("GetDestPage", 9);
        QCOMPARE(run(load(), pressCancel), 0);
        QCOMPARE(m_recorder.takeLog().mid(3, 2),
                 QStringList({"GetOpenActionDestination()", "GetViewerPreferences(1)"}));
        QCOMPARE(m_prefs[key::Magnification], QVariant(0));
        QCOMPARE(m_prefs[key::OpenToPage], QVariant(1));
        QVERIFY(!m_prefs.contains(key::Show) && !m_prefs.contains(key::ActionName));
    }

    void turnsPageModesIntoRows_data()
    {
        // first: what the library answers first
        // second: and then
        const Rows<int, int, int, bool> row;
        row("page only", 0, 0, 0, false);
        row("pages", 2, 2, 2, false);
        row("full screen", 3, 3, 3, true);
        row("layers", 4, 4, 3, false);
        row("attachments", 5, 5, 4, false);
        row("unknown", 6, 6, 6, false);
        row("asked anew", 1, 3, 1, true);
    }

    void turnsPageModesIntoRows()
    {
        const auto [first, second, row, fullScreen] = Rows<int, int, int, bool>::current();
        m_recorder.returns("GetPageMode", first);
        m_recorder.returns("GetPageMode", second);
        QCOMPARE(run(load(), pressCancel), 0);
        QCOMPARE(m_prefs[key::NavigationTab].toInt(), row);
        QCOMPARE(m_prefs[key::OpenInFullScreen].toBool(), fullScreen);
    }

    void leavesTheLibraryAlone_data()
    {
        const Rows<bool, bool, int> row;
        row("told so", true, true, document);
        row("no library", false, false, document);
        row("no document", false, true, 0);
    }

    void leavesTheLibraryAlone()
    {
        const auto [skip, library, number] = Rows<bool, bool, int>::current();
        DialogLoadStruct load = this->load();
        load.bSkipDocumentRead = skip;
        load.pPDFLibrary = library ? &m_library : nullptr;
        load.nDocumentID = number;
        m_prefs = {{key::Magnification, 8}};
        QCOMPARE(run(load, pressCancel), 0);
        QCOMPARE(m_recorder.takeLog(), QStringList());
        QCOMPARE(m_prefs, Prefs({{key::Magnification, 8}}));
        QCOMPARE(run(load, pressOk), 1);
        QCOMPARE(m_prefs.size(), int(keys.size()));
        QCOMPARE(m_prefs[key::Magnification], QVariant(8));
        QCOMPARE(m_prefs[key::LayoutAndMagn], QVariant(false));
    }

    void writesTheDialogBackOnOk()
    {
        m_recorder.returns("GetPageMode", 1);
        QCOMPARE(run(load(),
                     [](CPrefsDialog& dialog) {
                         QCOMPARE(dialog.ui.NavigationTabComboBox->currentIndex(), 1);
                         dialog.ui.ShowComboBox->setCurrentIndex(1);
                         dialog.ui.OpenToPageSpinBox->setValue(33);
                         pressOk(dialog);
                     }),
                 1);
        QCOMPARE(m_prefs.size(), int(keys.size()));
        QCOMPARE(m_prefs[key::NavigationTab], QVariant(1));
        QCOMPARE(m_prefs[key::Show], QVariant(1));
        QCOMPARE(m_prefs[key::OpenToPage], QVariant(33));
        QCOMPARE(m_prefs[key::ActionName], QVariant("Initial View"));
    }

    void leavesTheDialogAsItIsForAnEmptyMap()
    {
        DialogLoadStruct load = this->load();
        load.bSkipDocumentRead = true;
        QCOMPARE(run(load, pressOk), 1);
        QCOMPARE(m_prefs.size(), int(keys.size()));
        QCOMPARE(m_prefs[key::LayoutAndMagn], QVariant(true));
        QCOMPARE(m_prefs[key::ViewerPrefs], QVariant(true));
    }

    void fillsTheListsInOrder()
    {
        m_prefs = {{key::NavigationTab, 99}, {key::PageLayout, "text"}};
        DialogLoadStruct load = this->load();
        load.bSkipDocumentRead = true;
        const auto check = [](CPrefsDialog& dialog) {
            for (const Key& key : keys)
                if (!key.rows.empty())
                    QVERIFY2(itemsOf(person::widget<QComboBox>(dialog, key.name)) ==
                                 QStringList(key.rows.begin(), key.rows.end()),
                             key.name);
            QCOMPARE(dialog.ui.NavigationTabComboBox->itemData(0), QVariant());
        };
        QCOMPARE(run(load, check), 0);
    }

    void dressesTheDialog()
    {
        QWidget parent;
        const auto image = [](const char* name) {
            return QPixmap(QString(":/Quintar/Resources/Tools/Action_IntialView%1.png").arg(name)).toImage();
        };
        QVERIFY(image("") != image("_Selected") && image("_Selected") != image("_Disabled"));
        const auto check = [&](CPrefsDialog& dialog) {
            QCOMPARE(dialog.parentWidget(), &parent);
            QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
            QVERIFY(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
            const auto drawn = [&](QIcon::Mode mode) {
                return dialog.windowIcon().pixmap(image("").size(), mode, QIcon::Off).toImage();
            };
            QCOMPARE(drawn(QIcon::Normal), image(""));
            QCOMPARE(drawn(QIcon::Selected), image("_Selected"));
            QCOMPARE(drawn(QIcon::Active), image("_Selected"));
            QCOMPARE(drawn(QIcon::Disabled), image("_Disabled"));
        };
        QCOMPARE(run(load(), check, &parent), 0);
    }

    void hidesTheAddToActionButtonWhenTold()
    {
        for (const bool hide : {false, true}) {
            DialogLoadStruct load = this->load();
            load.bHideAddToActionButton = hide;
            const auto check = [hide](CPrefsDialog& dialog) {
                const auto visible = [&](const char* name) {
                    return dialog.findChild<QToolButton*>(name)->isVisible();
                };
                QCOMPARE(visible("QDtoolbarAddToActionListButton"), !hide);
                QVERIFY(visible("QDtoolbarAddToCollectionsButton"));
                QVERIFY(visible("quintarHeaderCloseBtn"));
            };
            QCOMPARE(run(load, check), 0);
        }
    }

    void countsTheCloseButtonAsCancel()
    {
        const auto close = [](CPrefsDialog& dialog) {
            dialog.findChild<QToolButton*>("quintarHeaderCloseBtn")->click();
        };
        DialogLoadStruct load = this->load();
        load.bSkipDocumentRead = true;
        QCOMPARE(run(load, close), 0);
        QVERIFY(m_prefs.isEmpty());
    }
};

QTEST_MAIN(TestDialogProcedure)
#include "TestDialogProcedure.moc"
