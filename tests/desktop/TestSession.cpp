#include "pdflibrary/ViewNumbers.h"
#include "support/people/OpenedWindow.h"

#include <QApplication>
#include <QLabel>
#include <QSessionManager>
#include <QtTest>

using namespace host;
using namespace host::desktop;
using Fake = FakeQuintar;
using State = RunMachine::State;

/// What is prepared in a window is there again, whatever became of the window.
class TestSession : public QObject
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
                                  Fake::document(0) + Fake::document(1) + Fake::end());
        for (const char* command : {"try", "run"})
            m_fake->plays(command,
                          Fake::start() + Fake::changed(0) + Fake::failed(1, "signed") + Fake::end());
        open();
    }
    void cleanup() { m_window.reset(); }

    void leavesASessionAloneThatItCannotRead()
    {
        read();
        m_window.reset();
        const QDir sessions(m_folder->filePath("sessions"));
        QFile stored(sessions.filePath(sessions.entryList({"*.session"}).value(0)));
        QVERIFY(stored.open(QIODevice::ReadWrite) && stored.resize(stored.size() - 1));
        const QByteArray bytes = stored.readAll();
        open();
        QVERIFY(status().contains("left as it is"));
        read();
        m_window.reset();
        QVERIFY(stored.seek(0));
        QCOMPARE(stored.readAll(), bytes);
        QCOMPARE(sessions.entryList({"*.session"}).size(), 2);
    }

    void findsWhatWasPreparedBehindAnEmptyWindow()
    {
        read();
        {
            const std::unique_ptr<MainWindow> other = openedWindow(*m_folder);
            other->begin({});
            m_window.reset();
            QTest::qWait(20); // times of files
            other->close();
        }
        QCOMPARE(QDir(m_folder->filePath("sessions")).entryList({"*.session"}).size(), 2);
        open();
        QTRY_COMPARE(m_window->workbench().table().count(), 2);
    }

    void tellsOnceThatItCannotKeepTheSession()
    {
        m_window.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        QFile inTheWay(m_folder->filePath("sessions"));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        open();
        read();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("session: "));
        QTRY_VERIFY(status().startsWith("List and change will not be there"));
        prepare();
        m_window->workbench().start();
        m_window.reset(); // silent by now
    }

    void keepsAllAndStopsARunBeforeALogout()
    {
        read();
        prepare();
        QTRY_COMPARE(state(), State::Ready);
        m_fake->plays("run", Fake::start() + "#hear stop\n" + Fake::changed(0) +
                                 "{\"event\":\"end\",\"stopped\":true}\n");
        m_window->workbench().start();
        auto* manager = qApp->findChild<QSessionManager*>();
        QVERIFY(manager != nullptr && !manager->allowsInteraction());
        emit qApp->commitDataRequest(*manager);
        QCOMPARE(state(), State::Results);
        QCOMPARE(m_window->workbench().counts().changed, 1); // what was worked on is finished
        QVERIFY(m_window->isVisible());
        const QDir sessions(m_folder->filePath("sessions"));
        QFile stored(sessions.filePath(sessions.entryList({"*.session"}).value(0)));
        QVERIFY(stored.open(QIODevice::ReadOnly) && stored.readAll().contains("UseOutlines"));
    }

private:
    QString status() const { return m_window->findChild<QLabel*>("status")->text(); }
    State state() const { return m_window->workbench().machine().state(); }
    void prepare() const
    {
        ChangeDraft draft;
        draft.set(ViewEntry::PageMode, pdflibrary::BookmarksPanel);
        m_window->workbench().setDraft(draft);
    }
    void open()
    {
        m_window.reset();
        m_window = openedWindow(*m_folder);
        m_window->begin({});
    }
    void read()
    {
        m_window->workbench().add({"/d"});
        QTRY_COMPARE(state(), State::Listed);
    }

    std::unique_ptr<FakeQuintar> m_fake;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(TestSession)
#include "TestSession.moc"
