#include "host/desktop/dialogs/StartQuestion.h"
#include "host/desktop/platform/Dialogs.h"
#include "host/desktop/presets/PresetFolder.h"
#include "support/people/OpenedWindow.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTextDocument>
#include <QToolButton>
#include <QtTest>

using namespace host;
using namespace host::desktop;
using Fake = FakeQuintar;
using State = RunMachine::State;

/// The panel of the change as a person works with it, with real keys and a real wheel.
class TestPanel : public QObject
{
    Q_OBJECT

public:
    static void initMain() { Q_INIT_RESOURCE(quintar); }

private slots:
    void init()
    {
        m_fake = std::make_unique<FakeQuintar>();
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::end());
        m_folder = std::make_unique<QTemporaryDir>();
        m_window = openedWindow(*m_folder);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void cleanup() { m_window.reset(); }

    void takesTitlesAndNamesForWordsNotMarkup()
    {
        const QByteArray hostile = "<img src='file:///dev/zero'><h1>Big";
        read("/d/<h1>Big<br>two.pdf", hostile);
        unfold("Title and language");
        ChangeDraft draft;
        draft.set(ViewEntry::Title, hostile.toStdString());
        bench().setDraft(draft);
        bench().setDestination({Destination::Kind::Folder, "/o/" + hostile, {}});
        QTRY_COMPARE(state(), State::Ready);
        QVERIFY(find<QLabel>("title-now")->text().endsWith(hostile));
        QVERIFY(find<QLabel>("detail")->text().contains("<h1>Big<br>two.pdf"));
        StartQuestion question(bench(), m_window.get());
        dialogs::confirm(m_window.get(), hostile, hostile, "Yes", [] {});
        dialogs::askPassword(m_window.get(), hostile, [](const QString&) {});
        emit bench().said(hostile);
        int labels = 0;
        for (const QLabel* each : m_window->findChildren<QLabel*>()) {
            QVERIFY2(each->textFormat() == Qt::PlainText || !Qt::mightBeRichText(each->text()),
                     qPrintable(each->text()));
            labels += each->text().contains("<h1>") ? 1 : 0;
        }
        QVERIFY(labels >=
                8); // present, detail, question and its details, box and its details, password, status
        for (const QWidget* each : m_window->findChildren<QWidget*>())
            QVERIFY2(isHarmless(each->toolTip()), qPrintable(each->toolTip()));
        for (const Column column : {Column::Name, Column::Title})
            QVERIFY(isHarmless(bench().order().index(0, int(column)).data(Qt::ToolTipRole).toString()));
    }

    void showsWhatReordersAsEscapes()
    {
        ChangeDraft stored;
        stored.setStored({"a\u202eb", {}, {}, {}});
        QCOMPARE(stored.inWords(), QString("a\\u202eb"));
        read("/d/a\\u202efdp.pdf", "b\\u202e");
        QCOMPARE(bench().order().index(0, int(Column::Name)).data().toString(), QString("a\\u202efdp.pdf"));
        QCOMPARE(bench().order().index(0, int(Column::Title)).data().toString(), QString("b\\u202e"));
    }

    void takesAPageNumberKeyByKey()
    {
        read();
        choose("open-page", "Page…");
        auto* number = find<QSpinBox>("open-page-number");
        QVERIFY(number->isVisible());
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, "12");
        QTest::qWait(20);
        QVERIFY(number->isVisible());
        QCOMPARE(bench().draft().view()[ViewEntry::OpenPage], ViewValue(12));
        choose("open-page", "First");
        QVERIFY(!number->isVisible());
    }

    void waitsForALanguageThatIsTypedSlowly()
    {
        read();
        unfold("Title and language");
        choose("lang", "This text:");
        auto* text = find<QLineEdit>("lang-text");
        text->setFocus();
        QTest::keyClicks(text, "de");
        QTRY_COMPARE(state(), State::Ready);
        QTest::keyClicks(text, "-");
        QVERIFY(bench().draft().isEmpty());
        QTRY_COMPARE(state(), State::Listed);
        QVERIFY(text->isVisible() && text->hasFocus());
        QTest::keyClicks(QApplication::focusWidget(), "AT");
        QCOMPARE(bench().draft().view()[ViewEntry::Lang], ViewValue(std::string("de-AT")));
    }

    void asksForTheFolderThatIsTyped()
    {
        read();
        choose("page-mode", "Bookmarks");
        bench().setDestination({Destination::Kind::Folder, "/outX", {}});
        QTRY_COMPARE(state(), State::Ready);
        auto* folder = find<QLineEdit>("destinationFolder");
        folder->setFocus();
        QTest::keyClick(folder, Qt::Key_Left);
        QTest::keyClick(folder, Qt::Key_Delete, Qt::NoModifier);
        QCOMPARE(folder->cursorPosition(), 4);
        QTest::keyClicks(folder, "Y");
        QCOMPARE(bench().destination().folder, QString("/outY"));
        QTest::keyClick(m_window.get(), Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(m_window->findChild<StartQuestion*>() == nullptr);
        QTRY_COMPARE(state(), State::Ready);
        QVERIFY(m_fake->starts().last().contains("--output /outY/ "));
        folder->selectAll();
        QTest::keyClicks(folder, "out");
        QVERIFY(find<QLabel>("destinationNote")->text().contains("slash"));
        emit bench().failed("quintar: no such thing");
        QVERIFY(find<QLabel>("status")->text().contains("no such thing"));
        folder->selectAll();
        QTest::keyClicks(folder, "~/out");
        QTRY_COMPARE(state(), State::Ready);
        QVERIFY(m_fake->starts().last().contains("--output " + QDir::homePath() + "/out/ "));
        QVERIFY(
            find<QLabel>("status")->text().contains("1 will change")); // the trouble was with another folder
    }

    void showsTheColumnOfWhatIsChanged()
    {
        read();
        auto* list = find<QTableView>("documents");
        QVERIFY(list->isColumnHidden(int(Column::Layout)) && list->isColumnHidden(int(Column::Zoom)));
        choose("page-layout", "One column");
        QVERIFY(!list->isColumnHidden(int(Column::Layout)) && list->isColumnHidden(int(Column::Zoom)));
        list->hideColumn(int(Column::Layout));
        choose("page-mode", "Bookmarks");
        QVERIFY(list->isColumnHidden(int(Column::Layout)));
        QVERIFY(!find<QSpinBox>("open-page-number")->whatsThis().isEmpty());
    }

    void isScrolledByTheWheelNotChanged()
    {
        read();
        auto* layout = find<QComboBox>("page-layout");
        turn(layout);
        QCOMPARE(layout->currentIndex(), 0);
        QVERIFY(!layout->hasFocus());
        layout->setFocus();
        turn(layout);
        QVERIFY(layout->currentIndex() > 0);
    }

    void offersNoStartThatWouldChangeNothing()
    {
        m_fake->plays("try", Fake::start() + Fake::result(0, "unchanged") + Fake::end());
        read();
        choose("page-mode", "Bookmarks");
        QTRY_COMPARE(state(), State::Ready);
        QVERIFY(!find<QPushButton>("startButton")->isEnabled());
        m_fake->plays("try", Fake::start() + "#exit 3\n");
        choose("page-mode", "Pages");
        QTRY_COMPARE(state(), State::Listed);
        QVERIFY(find<QPushButton>("startButton")->toolTip().contains("Read the documents again"));
    }

    void asksBeforeItReplacesAPreset()
    {
        const PresetFolder presets(m_folder->filePath("views"));
        ViewChange earlier;
        earlier.set(ViewEntry::DisplayDocTitle, 1);
        QCOMPARE(presets.save("Mine", earlier), QString());
        read();
        choose("page-mode", "Bookmarks");
        dialogs::setNextAnswer({"Mine"});
        for (QAction* each : m_window->findChildren<QAction*>())
            if (each->text() == "&Save as Preset…")
                each->trigger();
        auto* box = m_window->findChild<QMessageBox*>();
        QVERIFY(box != nullptr && presets.presets().at(0).draft.view() == earlier);
        QTest::mouseClick(box->defaultButton(), Qt::LeftButton);
        QTRY_VERIFY(presets.presets().at(0).draft == bench().draft());
    }

    void keepsItsShapeWhateverTheRoomAndTheDirection()
    {
        read();
        m_window->setLayoutDirection(Qt::RightToLeft);
        QVERIFY(find<QLabel>("destinationNote")->alignment().testFlag(Qt::AlignRight));
        auto* preview = find<QWidget>("preview");
        preview->resize(390, 900);
        const QImage picture = preview->grab().toImage();
        const QImage above = picture.copy(0, 0, picture.width(), picture.height() / 6);
        QImage nothing = above;
        nothing.fill(above.pixelColor(0, 0));
        QVERIFY(above == nothing &&
                picture.copy(0, picture.height() / 3, above.width(), above.height()) != nothing);
    }

private:
    /// Nothing that Qt would take for markup, or markup of one paragraph of words.
    static bool isHarmless(const QString& tip)
    {
        return !Qt::mightBeRichText(tip) || (!tip.contains("<h1") && !tip.contains("<img"));
    }

    Workbench& bench() const { return m_window->workbench(); }
    State state() const { return bench().machine().state(); }
    template <class Widget>
    Widget* find(const QString& name) const
    {
        auto* found = m_window->findChild<Widget*>(name);
        if (found == nullptr)
            qFatal("no %s", qPrintable(name));
        return found;
    }
    void choose(const QString& box, const QString& value) const
    {
        auto* combo = find<QComboBox>(box);
        combo->setCurrentIndex(combo->findText(value));
        emit combo->activated(combo->currentIndex());
    }
    void unfold(const QString& group) const
    {
        for (auto* each : m_window->findChildren<QToolButton*>())
            if (each->text() == group)
                each->click();
    }
    static void turn(QWidget* widget)
    {
        const QPointF place = widget->rect().center();
        QWheelEvent wheel(place, widget->mapToGlobal(place.toPoint()), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &wheel);
    }
    void read(const QByteArray& file = "/d/a.pdf", const QByteArray& title = "A")
    {
        m_fake->plays("show", Fake::start() + Fake::found(0, file) +
                                  Fake::document(0).replace("Title 0", title) + Fake::end());
        bench().add({"/d"});
        QTRY_COMPARE(state(), State::Listed);
        bench().order().select(bench().order().shown(), bench().order().shown().value(0));
    }

    std::unique_ptr<FakeQuintar> m_fake;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(TestPanel)
#include "TestPanel.moc"
