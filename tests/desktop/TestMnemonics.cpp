#include "host/desktop/platform/Language.h"
#include "host/desktop/texts/ReasonTexts.h"
#include "support/Rows.h"
#include "support/people/OpenedWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QTableView>
#include <QTranslator>
#include <QtTest>

using namespace host;
using namespace host::desktop;
using Fake = FakeQuintar;
using State = RunMachine::State;

/// The keys that go with Alt: two controls with the same one would only be reached in turn.
class TestMnemonics : public QObject
{
    Q_OBJECT

public:
    static void initMain() { Q_INIT_RESOURCE(quintar); }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_fake.plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::found(1, "/d/b.pdf") +
                                 Fake::document(0) + Fake::document(1) + Fake::end());
        m_fake.plays("try", Fake::start() + Fake::changed(0) + Fake::failed(1, "signed") + Fake::end());
    }
    void cleanup()
    {
        m_window.reset();
        qDeleteAll(qApp->findChildren<QTranslator*>());
    }

    void hasNoKeyTwice_data()
    {
        const Rows<QString> row;
        for (const char* language : {"en", "de", "es", "fr", "ja"})
            row(language, language);
    }

    /// In no language and no state of the window.
    void hasNoKeyTwice()
    {
        language::speak(std::get<0>(Rows<QString>::current()));
        m_window = openedWindow(*m_folder);
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_window->begin({});
        haveNoKeyTwice();
        Workbench& bench = m_window->workbench();
        bench.add({"/d"});
        QTRY_COMPARE(bench.machine().state(), State::Listed);
        ChangeDraft draft;
        draft.setStored({"A list", {"--list", "/a.xqq"}, {}, {}});
        bench.setDraft(draft);
        haveNoKeyTwice();
        draft.set(ViewEntry::PageMode, 1);
        bench.setDraft(draft);
        m_fake.plays("run", Fake::start() + Fake::changed(0) + Fake::failed(1, "password") + "#hear stop\n" +
                                Fake::end());
        for (const auto kind : {Destination::Kind::InPlace, Destination::Kind::Folder}) {
            bench.setDestination({kind, "/out", {}});
            QTRY_COMPARE(bench.machine().state(), State::Ready);
            auto* documents = m_window->findChild<QTableView*>("documents");
            documents->setCurrentIndex(documents->model()->index(1, 0));
            haveNoKeyTwice();
            bench.start();
            haveNoKeyTwice();
            bench.pause();
            haveNoKeyTwice();
            bench.stop();
            QTRY_COMPARE(bench.machine().state(), State::Results);
            m_window->findChild<QAbstractButton*>("whyButton")->click();
            haveNoKeyTwice();
            QTest::keyClick(m_window.get(), Qt::Key_Escape);
        }
    }

private:
    void haveNoKeyTwice() const
    {
        QStringList texts;
        for (const QAction* menu : m_window->findChild<QMenuBar*>()->actions())
            texts += menu->text();
        for (const QAbstractButton* each : m_window->findChildren<QAbstractButton*>())
            if (each->isVisible() && each->isEnabled())
                texts += each->text();
        for (const QLabel* each : m_window->findChildren<QLabel*>())
            if (each->isVisible() && each->buddy() != nullptr)
                texts += each->text();
        const QString shownRemedy = m_window->findChild<QAbstractButton*>("remedyButton")->text();
        QMap<QKeySequence, QString> keys;
        for (const QString& text : texts)
            if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty()) {
                QVERIFY2(!keys.contains(key), qPrintable(keys.value(key) + " and " + text));
                keys.insert(key, text);
            }
        using reasontexts::Remedy; // any of which the current document may want
        for (int remedy = int(Remedy::Password); remedy <= int(Remedy::ShowFolder); ++remedy) {
            const QString text = reasontexts::buttonOf(Remedy(remedy));
            const QString other = keys.value(QKeySequence::mnemonic(text), shownRemedy);
            QVERIFY2(!text.isEmpty() && other == shownRemedy, qPrintable(other + " and " + text));
        }
    }

    FakeQuintar m_fake;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(TestMnemonics)
#include "TestMnemonics.moc"
