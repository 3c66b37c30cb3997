#include "host/desktop/dialogs/HistoryDialog.h"
#include "host/desktop/dialogs/StartQuestion.h"
#include "host/desktop/platform/Dialogs.h"
#include "host/desktop/platform/DroppedNames.h"
#include "host/desktop/presets/PresetFolder.h"
#include "host/desktop/texts/ViewTexts.h"
#include "support/people/OpenedWindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QHeaderView>
#include <QMimeData>
#include <QTextBrowser>
#include <QtTest>

using namespace host;
using namespace host::desktop;
using Fake = FakeQuintar;
using State = RunMachine::State;

/// Finds widgets as a person or a screen reader does: by their names.
class TestMainWindow : public QObject
{
    Q_OBJECT

public:
    static void initMain() { Q_INIT_RESOURCE(quintar); }

private slots:
    void init()
    {
        m_fake = std::make_unique<FakeQuintar>();
        m_folder = std::make_unique<QTemporaryDir>();
        m_fake->plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::found(1, "/d/b.pdf") +
                                  Fake::document(0) + Fake::document(1, ",\"pageLayout\":\"OneColumn\"") +
                                  Fake::end());
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::failed(1, "signed") + Fake::end());
        m_fake->plays("run", Fake::start() + Fake::changed(0) + Fake::failed(1, "signed") + Fake::end());
        open();
    }
    void cleanup() { m_window.reset(); }

    void explainsItselfWhileItIsEmpty()
    {
        QVERIFY(button("Add Files…")->isVisible() && button("Add Folder…")->isVisible());
        dialogs::setNextAnswer({"/d"});
        click("Add Folder…");
        QTRY_COMPARE(state(), State::Listed);
        QVERIFY(!button("Add Folder…")->isVisible());
    }

    void offersEveryEntryAndItsValues()
    {
        for (const viewentries::Description& entry : viewentries::all()) {
            QVERIFY2(m_window->findChild<QWidget*>(entry.option) != nullptr, entry.option);
            const auto values = viewtexts::choices(entry.entry);
            if (entry.kind == viewentries::Kind::Flag)
                QVERIFY2(values.size() == 2, entry.option);
            for (const viewentries::Name& name : entry.names)
                QVERIFY2(std::ranges::count(values, ViewValue(name.number)) == 1, name.name);
        }
    }

    void takesWhatIsDroppedAndPasted()
    {
        QMimeData data;
        data.setData(
            "text/uri-list",
            "# from elsewhere\r\nfile:///d/b%FF%20c.pdf\r\nhttp://x/y.pdf\r\nfile://host/e\r\nfile:/f\r\n");
        QCOMPARE(droppednames::of(data), QVector<QByteArray>({"/d/b\xff c.pdf", "/e", "/f"}));
        QDragEnterEvent enter(QPoint(5, 5), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(m_window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                        Qt::NoModifier);
        QApplication::sendEvent(m_window.get(), &drop);
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        QTRY_COMPARE(state(), State::Listed);
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/d/b\xff c.pdf", "/e", "/f"}));

        QApplication::clipboard()->setText("\"/p/one two.pdf\"\nnot a path\n");
        m_fake->plays("show",
                      Fake::start() + Fake::found(0, "/p/one two.pdf") + Fake::document(0) + Fake::end());
        QTest::keyClick(m_window.get(), Qt::Key_V, Qt::ControlModifier);
        QTRY_COMPARE(m_window->workbench().table().count(), 3);
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/p/one two.pdf"}));
    }

    void showsWhatWouldChangeAsksAndRuns()
    {
        read();
        QCOMPARE(find<QComboBox>("Layout")->accessibleDescription(),
                 QString("different: Not set (1), One column (1)"));
        QVERIFY(!button("Start…")->isEnabled());
        choose("Panel", "Bookmarks");
        QTRY_VERIFY(button("Start…")->isEnabled());
        QCOMPARE(cell(0, Column::Panel), QString("Not set, will be Bookmarks"));
        QCOMPARE(status(), QString("1 will change  ·  1 cannot be changed (1 signed)"));
        click("Start…");
        auto* question = m_window->findChild<StartQuestion*>();
        QVERIFY(question->isVisible());
        QCOMPARE(StartQuestion::question(m_window->workbench()),
                 QString("%Ln document(s) will be changed in place.").replace("%Ln", "1"));
        QCOMPARE(m_fake->starts().filter("--report").size(), 0);
        QTest::keyClick(question, Qt::Key_Return);
        QTRY_COMPARE(state(), State::Results);
        QCOMPARE(status(), QString("1 changed  ·  1 failed (1 signed)"));
        click("Show 1 Failed");
        QTRY_COMPARE(list()->model()->rowCount(), 1);
        QCOMPARE(m_window->focusWidget(), list());
        QTRY_VERIFY(button("Append All the Same")->isVisible());
        m_fake->plays("run", Fake::start() + Fake::changed(0) + Fake::end());
        click("Append All the Same");
        QTRY_VERIFY(!m_fake->starts().filter("--signed append").isEmpty());
        QTRY_COMPARE(state(), State::Results);
        QVERIFY(button("Save Report…")->isVisible() && button("Undo This Run…")->isVisible());
        const RunHistory& history = m_window->workbench().history();
        QCOMPARE(history.rowCount(), 1); // both are undone together
        QCOMPARE(history.runs().front().reports.size(), 2);
    }

    void showsAllAgainAfterItShowedWhy()
    {
        read();
        choose("Panel", "Bookmarks");
        QTRY_COMPARE(state(), State::Ready);
        for (const bool isByKey : {true, false}) {
            click("Show Why");
            QTRY_COMPARE(list()->model()->rowCount(), 1);
            QCOMPARE(find<QComboBox>("Show")->currentText(), QString("Failed or cannot be changed"));
            QTRY_VERIFY(!button("Show Why")->isVisible());
            if (isByKey)
                QTest::keyClick(list(), Qt::Key_Escape);
            else
                click("Show All");
            QTRY_COMPARE(list()->model()->rowCount(), 2);
            QVERIFY(!button("Show All")->isVisible());
            QTRY_VERIFY(button("Show Why")->isVisible());
        }
    }

    void saysWhatIsNotKnownAfterAStop()
    {
        const QByteArray stopped = "#hear stop\n{\"event\":\"end\",\"stopped\":true}\n";
        read();
        m_fake->plays("try", Fake::start() + stopped);
        choose("Panel", "Bookmarks");
        QTRY_VERIFY(!m_fake->starts().filter("--dry-run").isEmpty());
        m_window->workbench().stop();
        QTRY_VERIFY(status().startsWith("What would change is not known."));
        m_fake->plays("show", Fake::start() + Fake::found(0, "/e/c.pdf") + stopped);
        m_window->workbench().add({"/e"});
        QTRY_COMPARE(list()->model()->rowCount(), 3);
        QTest::keyClick(m_window.get(), Qt::Key_Period, Qt::ControlModifier);
        QTRY_VERIFY(status().startsWith("Reading was stopped."));
    }

    void savesAReport()
    {
        run();
        const QString file = m_folder->filePath("report.tsv");
        dialogs::setNextAnswer({file});
        click("Save Report…");
        QFile report(file);
        QVERIFY(report.open(QIODevice::ReadOnly));
        QVERIFY(report.readAll().contains("/d/a.pdf\tchanged\tPanel: Not set → Bookmarks\t\t\n"));
    }

    void undoesARunAfterAsking()
    {
        run();
        list()->setFocus();
        list()->setCurrentIndex(list()->model()->index(1, 0));
        QTest::keyClick(list(), Qt::Key_Delete);
        QCOMPARE(list()->model()->rowCount(), 1);
        QCOMPARE(state(), State::Results);
        m_fake->plays("undo",
                      Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::result(0, "undone") + Fake::end());
        dialogs::setNextAnswer({"yes"});
        click("Undo This Run…");
        QTRY_COMPARE(m_fake->starts().filter(QRegularExpression("^undo ")).size(), 1);
        QTRY_VERIFY(!m_window->workbench().machine().isWriting());
    }

    void undoesAnEarlierRun()
    {
        run();
        run("Attachments");
        const auto& runs = m_window->workbench().history().runs();
        const QString earlier = runs.at(1).reports.value(0);
        m_fake->plays("undo",
                      Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::result(0, "undone") + Fake::end());
        const auto buttonFor = [this](int row) {
            action("Earlier Runs…")->trigger();
            auto* table = find<HistoryDialog>("Earlier Runs")->findChild<QTableView*>();
            const bool isNewest = table->currentIndex().row() == 0;
            table->setCurrentIndex(table->model()->index(row, 0));
            return isNewest ? table->window()->findChild<QPushButton*>("undoRunButton") : nullptr;
        };
        dialogs::setNextAnswer({"yes"});
        QTest::mouseClick(buttonFor(1), Qt::LeftButton);
        QTRY_VERIFY(runs.at(1).isUndone && m_window->findChild<HistoryDialog*>() == nullptr);
        QVERIFY(!runs.at(0).isUndone);
        const QStringList undone = m_fake->starts().filter(QRegularExpression("^undo "));
        QVERIFY2(undone.size() == 1 && undone.first().contains(earlier), qPrintable(undone.join('\n')));
        QVERIFY(!buttonFor(1)->isEnabled());
    }

    void keepsKeyboardAndNames()
    {
        read();
        list()->setFocus();
        list()->setCurrentIndex(list()->model()->index(0, 0));
        QTest::keyClick(list(), Qt::Key_Delete);
        QCOMPARE(m_window->workbench().table().count(), 1);
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(m_window->workbench().table().count(), 2);
        QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), find<QLineEdit>("Search"));
        QTest::keyClicks(find<QLineEdit>("Search"), "b.pdf");
        QTRY_COMPARE(list()->model()->rowCount(), 1);
        QTest::keyClick(find<QLineEdit>("Search"), Qt::Key_Escape);
        QTRY_COMPARE(list()->model()->rowCount(), 2);
        QTest::keyClick(m_window.get(), Qt::Key_F6);
        for (QWidget* each : m_window->findChildren<QWidget*>())
            if (each->isVisible() && (each->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
                !each->inherits("QMenuBar"))
                QVERIFY2(!nameOf(each).isEmpty(), each->metaObject()->className());
    }

    void tellsScreenReadersWhatStandsThere()
    {
        m_fake->plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") +
                                  Fake::document(0).replace("\"bookmarks\":3", "\"bookmarks\":0") +
                                  Fake::end());
        read();
        choose("Panel", "Bookmarks");
        QTRY_COMPARE(state(), State::Ready);
        for (QComboBox* each :
             m_window->findChildren<QComboBox*>()) // whose name is their value, for Qt on X11
            QVERIFY2(!QAccessible::queryAccessibleInterface(each)->relations(QAccessible::Label).isEmpty(),
                     qPrintable(each->objectName()));
        for (const char* name : {"About the current document", "Status"})
            QCOMPARE(find<QLabel>(name)->accessibleDescription(), find<QLabel>(name)->text());
        QStringList stops;
        for (QWidget* each = find<QComboBox>("Change for"); stops.value(0) != "Write to";
             each = each->nextInFocusChain())
            if (each->isVisible() && (each->focusPolicy() & Qt::TabFocus) == Qt::TabFocus)
                stops.prepend(nameOf(each));
        const int shown = stops.indexOf(QRegularExpression("^Show them: .*"));
        QVERIFY2(shown > 0 && stops.indexOf("Panel") > shown, qPrintable(stops.join("; ")));
    }

    void choosesSortsAndMovesColumnsByKeys()
    {
        read();
        QHeaderView* header = list()->horizontalHeader();
        QVERIFY(header->isSectionHidden(int(Column::Folder)));
        typeInMenu({Qt::Key_V, Qt::Key_C, Qt::Key_Return}); // the name always stays
        QVERIFY(!header->isSectionHidden(int(Column::Folder)) && !header->isSectionHidden(0));
        typeInMenu({Qt::Key_V, Qt::Key_S, Qt::Key_D});
        QVERIFY(cell(0, Column::Name).startsWith("b.pdf"));
        typeInMenu({Qt::Key_V, Qt::Key_S, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
        QCOMPARE(header->sortIndicatorSection(), int(Column::Title));
        list()->setFocus();
        list()->setCurrentIndex(list()->model()->index(0, int(Column::Title)));
        header->setSectionHidden(int(Column::Folder), true);
        QTest::keyClick(list(), Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(header->visualIndex(int(Column::Title)), 0);
        QTest::keyClick(list(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(header->visualIndex(int(Column::Title)), 1);
    }

    void takesTheViewOfARowAndKeepsPresets()
    {
        read();
        list()->setCurrentIndex(list()->model()->index(1, 0));
        QTest::keyClick(m_window.get(), Qt::Key_L, Qt::ControlModifier);
        QTRY_COMPARE(find<QComboBox>("Layout")->currentText(), QString("One column"));
        const PresetFolder presets(m_folder->filePath("views"));
        QCOMPARE(presets.save("a/b & c", m_window->workbench().draft().view()), QString());
        QCOMPARE(presets.presets().at(0).name, QString("a/b & c"));
        QCOMPARE(presets.presets().at(0).draft, m_window->workbench().draft());
        QTest::keyClick(m_window.get(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(QApplication::clipboard()->text().startsWith(
            "quintar run --page-mode unset --page-layout one-column"));
    }

    void writesToAFolder()
    {
        m_fake->plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::found(1, "/d/e/b.pdf") +
                                  Fake::document(0) + Fake::document(1) + Fake::end());
        read();
        QVERIFY(!m_window->findChild<QAbstractButton*>("keepAllButton")->isEnabled());
        QVERIFY(!action("Keep All")->isEnabled());
        choose("Panel", "Bookmarks");
        QVERIFY(action("Keep All")->isEnabled());
        QTest::keyClick(find<QComboBox>("Write to"), Qt::Key_Down); // which may only pass by
        QVERIFY(qApp->activeModalWidget() == nullptr);
        dialogs::setNextAnswer({"/out"});
        click("Choose the folder for the results");
        QTRY_VERIFY(!m_fake->starts().filter("--output /out/ --base /d/ ").isEmpty());
        QTRY_COMPARE(state(), State::Ready);
        QVERIFY(!button("Show Results")->isVisible());
        m_window->workbench().start();
        QTRY_VERIFY(button("Show Results")->isVisible());
        QCOMPARE(status(), QString("1 written  ·  1 failed (1 signed)"));
        QCOMPARE(cell(0, Column::Panel), QString("Not set, in the result Bookmarks"));
        list()->setCurrentIndex(list()->model()->index(0, 0));
        QVERIFY(find<QLabel>("About the current document")->text().contains("result written, /out/a.pdf"));
        QDesktopServices::setUrlHandler("file", this, "open");
        click("Show Results");
        QDesktopServices::unsetUrlHandler("file");
        QCOMPARE(m_opened, QUrl("file:///out"));
        click("Try Failed Again");
        QTRY_COMPARE(m_fake->names(), QList<QByteArray>({"/d/e/b.pdf"}));
        QVERIFY(m_fake->starts().last().contains("--base /d/ ")); // not the folder of what failed
        QTRY_COMPARE(state(), State::Results);
        m_window->workbench().setDestination({Destination::Kind::Folder, "/d/", {}});
        QTRY_VERIFY(status().contains("lie in this folder"));
        m_window->workbench().setDestination({Destination::Kind::Folder, "/out", {}});
        QTRY_COMPARE(state(), State::Ready);
    }

    void asksBeforeItClosesARunAndKeepsTheRest()
    {
        read();
        choose("Panel", "Bookmarks");
        QTRY_COMPARE(state(), State::Ready);
        m_fake->plays("run", Fake::start() + "#hear stop\n" + "{\"event\":\"end\",\"stopped\":true}\n");
        m_window->workbench().start();
        dialogs::setNextAnswer({"yes"});
        m_window->close();
        QVERIFY(m_window->isVisible());
        QTRY_VERIFY(!m_window->isVisible());
        list()->horizontalHeader()->moveSection(0, 2);
        m_window->close();

        open();
        QTRY_COMPARE(m_window->workbench().table().count(), 2);
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/d/a.pdf", "/d/b.pdf"}));
        QTRY_COMPARE(state(), State::Ready);
        QCOMPARE(find<QComboBox>("Panel")->currentText(), QString("Bookmarks"));
        QVERIFY(!m_window->workbench().edits().canUndo());
        QCOMPARE(list()->horizontalHeader()->visualIndex(0), 2);
    }

    void explainsEverySetting()
    {
        for (const viewentries::Description& each : viewentries::all())
            QVERIFY2(!viewtexts::helpOf(each.entry).isEmpty(), each.option);
        QTest::keyClick(m_window.get(), Qt::Key_F1);
        auto* text = m_window->findChild<QTextBrowser*>();
        QVERIFY(text->isVisible() && text->toPlainText().contains("Which viewers follow"));
    }

public:
    Q_INVOKABLE void open(const QUrl& url) { m_opened = url; }

private:
    static QString nameOf(const QWidget* widget)
    {
        if (!widget->accessibleName().isEmpty())
            return widget->accessibleName();
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        return face != nullptr ? face->text(QAccessible::Name).remove('&') : QString();
    }
    template <class Widget>
    Widget* find(const QString& name) const
    {
        for (Widget* each : m_window->findChildren<Widget*>())
            if (nameOf(each) == name)
                return each;
        qFatal("no %s", qPrintable(name));
    }
    QAbstractButton* button(const QString& name) const { return find<QAbstractButton>(name); }
    void click(const QString& name) const { QTest::mouseClick(button(name), Qt::LeftButton); }
    QAction* action(const QString& name) const
    {
        for (QAction* each : m_window->findChildren<QAction*>())
            if (each->text().remove('&') == name)
                return each;
        qFatal("no %s", qPrintable(name));
    }
    void typeInMenu(const QVector<Qt::Key>& keys) const
    {
        QTest::keyClick(m_window.get(), keys.front(), Qt::AltModifier);
        for (const Qt::Key key : keys.mid(1))
            QTest::keyClick(QApplication::activePopupWidget(), key);
        QVERIFY(QApplication::activePopupWidget() == nullptr);
    }
    QTableView* list() const { return find<QTableView>("Documents"); }
    QString status() const { return find<QLabel>("Status")->text().replace("%Ln", "1"); }
    QString cell(int row, Column column) const
    {
        return list()->model()->index(row, int(column)).data(Qt::AccessibleTextRole).toString();
    }
    void choose(const QString& box, const QString& value) const
    {
        auto* combo = find<QComboBox>(box);
        combo->setCurrentIndex(combo->findText(value));
        emit combo->activated(combo->currentIndex());
    }
    State state() const { return const_cast<MainWindow&>(*m_window).workbench().machine().state(); }

    void open()
    {
        m_window.reset();
        m_window = openedWindow(*m_folder);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_window->begin({});
    }
    void read()
    {
        m_window->workbench().add({"/d"});
        QTRY_COMPARE(state(), State::Listed);
    }
    void run(const QString& panel = "Bookmarks")
    {
        if (state() == State::Empty)
            read();
        choose("Panel", panel);
        QTRY_COMPARE(state(), State::Ready);
        m_window->workbench().start();
        QTRY_COMPARE(state(), State::Results);
    }

    std::unique_ptr<FakeQuintar> m_fake;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
    QUrl m_opened;
};

QTEST_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
