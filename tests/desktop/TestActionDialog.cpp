#include "host/desktop/presets/PresetFolder.h"
#include "support/Rows.h"
#include "support/folders/TemporaryHome.h"
#include "support/people/Mute.h"
#include "support/people/OpenedWindow.h"
#include "support/people/Person.h"

#include "pdflibrary/ViewNumbers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QToolButton>

using namespace host;
using namespace host::desktop;
using Fake = FakeQuintar;
using State = RunMachine::State;

/// The action's own dialog, opened from the window by a person who chooses in menus.
class TestActionDialog : public QObject
{
    Q_OBJECT

public:
    static void initMain() { Q_INIT_RESOURCE(quintar); }

private slots:
    void initTestCase() { muteFrameWarnings(); }
    void init()
    {
        m_home.reset();
        m_fake = std::make_unique<FakeQuintar>();
        m_folder = std::make_unique<QTemporaryDir>();
        m_fake->plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") +
                                  Fake::document(0, ",\"pageLayout\":\"TwoColumnLeft\"") + Fake::end());
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::end());
        m_window = openedWindow(*m_folder);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        bench().add({"/d"});
        QTRY_COMPARE(bench().machine().state(), State::Listed);
        bench().order().select(bench().order().shown(), bench().order().shown().value(0));
    }
    void cleanup() { m_window.reset(); }

    void changesWhatIsStored_data()
    {
        const Rows<QString, QString, QString> row; // its file, where that lies, and the option that takes it
        row("an action list", "manuals.xqq", TemporaryHome::actionList("manuals.xqq"), "--list");
        row("a favourite", "manuals.ini", TemporaryHome::favorite("manuals.ini"), "--favorite");
    }

    void changesWhatIsStored()
    {
        const auto [name, place, option] = Rows<QString, QString, QString>::current();
        QVERIFY(QFile::copy(TEST_DATA_DIR "/" + name, place));
        const QByteArray bytes = bytesOf(place);
        chooseInMenu(PresetFolder(m_folder->path()).presets().front().name);
        QTRY_VERIFY(lastTrial().contains(option + " " + QDir::cleanPath(place)));
        QTRY_COMPARE(bench().machine().state(), State::Ready);
        QVERIFY(panelTells("Open to page: 2"));
        const ChangeDraft stored = bench().draft();

        chooseInMenu("Configure the Action…", [](QDialog& dialog) {
            typePage(dialog, 2, "5");
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QVERIFY(bench().draft() == stored && panelTells("Open to page: 2"));
        QCOMPARE(bench().machine().state(), State::Ready);

        person::whenOpens("CPrefsDialog", [this](QDialog& dialog) {
            QVERIFY(!bench().machine().isEnabled(RunMachine::Command::Start));
            typePage(dialog, 2, "5");
            person::pressOk(dialog);
        });
        QTest::mouseClick(m_window->findChild<QPushButton*>("configureButton"), Qt::LeftButton);
        QVERIFY(panelTells("Open to page: 5"));
        QTRY_VERIFY(lastTrial().contains(" --set OpenToPageSpinBox=5 "));
        QVERIFY(lastTrial().contains(" --set MagnificationComboBox=2 ") && !lastTrial().contains(option));
        QCOMPARE(bytesOf(place), bytes);
        answers();
    }

    void beginsWithTheDocumentAndWhatIsToChange()
    {
        chooseBookmarks();
        const ChangeDraft draft = bench().draft();
        chooseInMenu("Configure the Action…", [](QDialog& dialog) {
            QCOMPARE(person::widget<QComboBox>(dialog, "NavigationTabComboBox")->currentText(),
                     QString("Bookmarks Panel and Page"));
            QCOMPARE(person::widget<QComboBox>(dialog, "PageLayoutComboBox")->currentIndex(), 2);
            person::pressCancel(dialog);
        });
        QCOMPARE(bench().draft(), draft);
        answers();
    }

    void beginsWithAllThatAListDoes()
    {
        const QString place = TemporaryHome::actionList("two.xqq");
        QVERIFY(QFile::copy(TEST_DATA_DIR "/manuals.xqq", place));
        QVariantMap second = storedValue(place, "ActionPrefs0").toMap();
        second["OpenToPageSpinBox"] = 4;
        second["ViewerPrefsCheckBox"] = false;
        second["CenterWinOnScreenCheckBox"] = false;
        QSettings list(place, QSettings::IniFormat);
        list.setValue("ActionName1", "Initial View");
        list.setValue("ActionPrefs1", second);
        list.sync();
        chooseInMenu("Manuals");
        chooseInMenu("Configure the Action…", [](QDialog& dialog) {
            QVERIFY(person::widget<QCheckBox>(dialog, "CenterWinOnScreenCheckBox")->isChecked());
            typePage(dialog, 4, "4");
            person::pressOk(dialog);
        });
        QTRY_VERIFY(lastTrial().contains(" --set OpenToPageSpinBox=4 "));
        QVERIFY(lastTrial().contains(" --set CenterWinOnScreenCheckBox=true "));
    }

    void storesListsAndFavouritesOnTheWay()
    {
        chooseBookmarks();
        const ChangeDraft draft = bench().draft();
        chooseInMenu("Configure the Action…", [](QDialog& dialog) {
            typePage(dialog, 1, "7");
            store(dialog, "QDtoolbarAddToActionListButton", "CSaveAsActionlistDialog",
                  "actionListNameLineEdit", "A list");
            QVERIFY(dialog.isVisible());
            person::pressCancel(dialog);
        });
        QCOMPARE(bench().draft(), draft);
        QVERIFY(panelTells("A_list.xqq"));
        answers();

        chooseInMenu("Configure the Action…", [](QDialog& dialog) {
            typePage(dialog, 1, "8");
            store(dialog, "QDtoolbarAddToCollectionsButton", "CSaveAsCollectionDialog",
                  "collectionNameLineEdit", "A favourite");
        });
        QVERIFY(panelTells("A favourite.ini") && !panelTells("Open to page: 8")); // stored, and not chosen
        for (const auto& [name, page] : {std::pair("A list", "7"), std::pair("A favourite", "8")}) {
            chooseInMenu(name);
            QVERIFY(panelTells(QString("Open to page: ") + page));
            QTRY_COMPARE(bench().machine().state(), State::Ready);
        }
        QVERIFY(lastTrial().contains("--favorite " +
                                     QDir::cleanPath(TemporaryHome::favorite("A favourite.ini"))));
        answers();
    }

private:
    static void typePage(QDialog& dialog, int before, const QString& after)
    {
        auto* page = person::widget<QSpinBox>(dialog, "OpenToPageSpinBox");
        QCOMPARE(page->value(), before);
        page->selectAll();
        QTest::keyClicks(page, after);
    }

    static void store(QDialog& dialog, const char* button, const char* further, const char* field,
                      const QString& name)
    {
        person::whenOpens(further, [field, name](QDialog& save) {
            QTest::keyClicks(person::widget<QLineEdit>(save, field), name);
            person::click(save, "saveButton");
        });
        person::click(dialog, button);
    }

    /// Opens the menu of presets by a click, and clicks on the row. \param answer to the dialog that it opens.
    void chooseInMenu(const QString& row, const person::Answer& answer = {})
    {
        bool isClicked = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            timer.stop();
            for (QAction* each : menu->actions())
                if (QString(each->text()).remove('&') == row) {
                    isClicked = true;
                    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(each).center());
                }
            menu->close();
        });
        timer.start(10);
        if (answer)
            person::whenOpens("CPrefsDialog", answer);
        QTest::mouseClick(m_window->findChild<QToolButton*>("presetsButton"), Qt::LeftButton);
        QVERIFY2(isClicked, qPrintable("no " + row));
        QTRY_VERIFY(QApplication::activeModalWidget() == nullptr);
    }

    /// The window is as before: a key opens the dialog again, and settings follow the person.
    void answers()
    {
        QTRY_COMPARE(bench().machine().state(), State::Ready);
        QVERIFY(m_window->findChild<QPushButton*>("startButton")->isEnabled());
        QApplication::setActiveWindow(m_window.get()); // as window managers do
        bool isOpened = false;
        person::whenOpens("CPrefsDialog", [&isOpened](QDialog& dialog) {
            isOpened = true;
            person::pressCancel(dialog);
        });
        QTest::keyClick(m_window.get(), Qt::Key_E, Qt::ControlModifier);
        QVERIFY(isOpened);
        QTest::mouseClick(m_window->findChild<QPushButton*>("keepAllButton"), Qt::LeftButton);
        QVERIFY(bench().draft().isEmpty());
        QTRY_COMPARE(bench().machine().state(), State::Listed);
        chooseBookmarks();
        QTRY_COMPARE(bench().machine().state(), State::Ready);
    }

    void chooseBookmarks() const
    {
        auto* panel = m_window->findChild<QComboBox*>("page-mode");
        panel->setFocus();
        QTest::keyClick(panel, Qt::Key_Down);
        QTest::keyClick(panel, Qt::Key_Down);
        QCOMPARE(panel->currentText(), QString("Bookmarks"));
    }
    bool panelTells(const QString& words) const
    {
        for (const QLabel* each : m_window->findChildren<QLabel*>())
            if (each->isVisible() && each->text().contains(words))
                return true;
        return false;
    }
    QString lastTrial() const { return m_fake->starts().filter("--dry-run").join('\n').section('\n', -1); }
    Workbench& bench() const { return m_window->workbench(); }

    TemporaryHome m_home;
    std::unique_ptr<FakeQuintar> m_fake;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(TestActionDialog)
#include "TestActionDialog.moc"
