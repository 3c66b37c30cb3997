#include "host/desktop/workbench/Workbench.h"
#include "support/program/FakeQuintar.h"

#include "pdflibrary/ViewNumbers.h"

#include <QSignalSpy>
#include <QtTest>

using namespace host;
using namespace host::desktop;
using State = RunMachine::State;
using Fake = FakeQuintar;

namespace {

ChangeDraft bookmarks()
{
    ChangeDraft draft;
    draft.set(ViewEntry::PageMode, pdflibrary::BookmarksPanel);
    return draft;
}

} // namespace

class TestWorkbench : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fake = std::make_unique<FakeQuintar>();
        m_reports = std::make_unique<QTemporaryDir>();
        m_bench = std::make_unique<Workbench>(Fake::program(), m_reports->path());
        m_fake->plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::found(1, "/d/b.pdf") +
                                  Fake::document(0) + Fake::document(1) + Fake::end());
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::failed(1, "signed") + Fake::end());
        m_fake->plays("run", Fake::start() + Fake::changed(0) + Fake::failed(1, "signed") + Fake::end());
    }
    void cleanup() { m_bench.reset(); }

    void readsChecksRunsAndUndoes()
    {
        read();
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/d"}));
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        QVERIFY(m_fake->starts().last().contains("--dry-run"));
        QCOMPARE(m_bench->counts().willChange, 1);
        QCOMPARE(m_bench->counts().cannot, 1);

        m_bench->start();
        QTRY_COMPARE(state(), State::Results);
        QVERIFY(m_fake->starts().last().startsWith(
            "run --no-folders --page-mode use-outlines --in-place --report " + m_reports->path()));
        QCOMPARE(m_bench->counts().changed, 1);
        QCOMPARE(m_bench->counts().failed, 1);
        QCOMPARE(m_bench->undoableRun(), 0);
        QCOMPARE(m_bench->history().runs().front().what, QString("Panel: Bookmarks"));

        m_fake->plays("undo",
                      Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::result(0, "undone") + Fake::end());
        QSignalSpy said(m_bench.get(), &Workbench::said);
        m_bench->undoRun(0);
        QTRY_COMPARE(said.size(), 1);
        QTRY_COMPARE(state(), State::Ready); // read and checked once more
        QVERIFY(!m_bench->history().canUndo(0));
        QCOMPARE(RunHistory(m_reports->path()).newestUndoable(), -1);
    }

    void appendsToSignedOnesWhenTold()
    {
        read();
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        m_bench->appendAllTheSame({2});
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::end());
        QTRY_COMPARE(state(), State::Ready);
        QTRY_VERIFY(m_fake->starts().last().contains("--signed append"));
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/d/b.pdf"}));
        QCOMPARE(m_bench->counts().willChange, 2);
    }

    void triesAPasswordOnAllThatWantOne()
    {
        m_fake->plays("show",
                      Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::failed(0, "password") + Fake::end());
        read();
        QCOMPARE(m_bench->table().find(1)->reasonCode(), QString("password"));
        QSignalSpy failed(m_bench.get(), &Workbench::failed);
        m_bench->givePassword("wrong");
        QTRY_COMPARE(failed.size(), 1); // and says so
        QCOMPARE(m_bench->table().find(1)->password, -1);
        m_fake->plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::document(0) + Fake::end());
        QSignalSpy said(m_bench.get(), &Workbench::said);
        m_bench->givePassword("secret");
        QTRY_COMPARE(said.size(), 1);
        QCOMPARE(m_fake->password(), QByteArray("secret\n"));
        QVERIFY(!m_fake->starts().join("").contains("secret"));
        QVERIFY(m_bench->table().find(1)->facts);
    }

    void saysThatNothingWasFound()
    {
        QSignalSpy failed(m_bench.get(), &Workbench::failed);
        m_fake->plays("show", Fake::start() + Fake::end());
        m_bench->add({"/empty"});
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(state(), State::Empty);
    }

    void triesWhatWasGivenOnWhatComesLater()
    {
        m_fake->plays("show",
                      Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::failed(0, "password") + Fake::end());
        read();
        QSignalSpy failed(m_bench.get(), &Workbench::failed);
        for (const char* password : {"wrong", "of others"}) {
            m_bench->givePassword(password);
            QTRY_COMPARE(failed.size(), 1);
            failed.clear();
        }
        m_fake->plays("show",
                      Fake::start() + Fake::found(0, "/d/b.pdf") + Fake::failed(0, "password") + Fake::end());
        const int starts = m_fake->starts().size();
        m_bench->add({"/d/b.pdf"});
        QTRY_COMPARE(m_fake->starts().size(), starts + 3); // without one, and with each
        QTRY_COMPARE(state(), State::Listed);
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/d/b.pdf"}));
        QCOMPARE(m_fake->password(), QByteArray("of others\n"));
        QCOMPARE(m_bench->table().find(2)->password, -1);
        QVERIFY(failed.isEmpty()); // nobody asked
        m_bench->readAgain({1, 2});
        QTRY_COMPARE(m_fake->starts().size(), starts + 4);
        QTRY_COMPARE(state(), State::Listed);
    }

    /// What has no answer is not done, and the reason is told.
    void reckonsWithBadPrograms_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::newRow("refuses") << QByteArray("#say quintar: two documents have the same result\n#exit 2\n");
        QTest::newRow("breaks off") << Fake::start() + Fake::changed(0) + "#say out of luck\n#exit 1\n";
        QTest::newRow("other version") << QByteArray("{\"event\":\"start\",\"version\":2}\n") + Fake::end();
        QTest::newRow("garbage") << Fake::start() + "Segmentation fault\n" + Fake::end();
        QTest::newRow("endless line") << Fake::start() + QByteArray(3 << 20, 'x') + "\n#wait 60000\n";
        QTest::newRow("number beyond") << Fake::start() + Fake::changed(7) + Fake::changed(-1) + "#exit 0\n";
    }
    void reckonsWithBadPrograms()
    {
        QFETCH(QByteArray, stream);
        read();
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        m_fake->plays("run", stream);
        QSignalSpy failed(m_bench.get(), &Workbench::failed);
        m_bench->start();
        QTRY_COMPARE(state(), State::Results);
        QCOMPARE(failed.size(), 1);
        const QString words = failed.front().front().toString();
        QVERIFY2(!words.isEmpty() && !words.startsWith("quintar:"), qPrintable(words));
        QVERIFY(m_bench->counts().notDone >= 1);
        QCOMPARE(m_bench->counts().changed + m_bench->counts().notDone, 2);
    }

    void pausesGoesOnAndStops()
    {
        read();
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        m_fake->plays("run", Fake::start() + "#hear pause\n#hear resume\n" + Fake::changed(0) +
                                 "#hear stop\n" + "{\"event\":\"end\",\"stopped\":true}\n");
        m_bench->start();
        m_bench->pause();
        QCOMPARE(state(), State::Paused);
        m_bench->resume();
        QTRY_COMPARE(m_bench->counts().changed, 1);
        m_bench->add({"/e"}); // waits
        m_bench->stop();
        QCOMPARE(state(), State::Stopping);
        QTRY_VERIFY(m_fake->starts().last().startsWith("show"));
        QCOMPARE(m_bench->history().runs().front().changed, 1);
    }

    /// Documents with options of their own have a child of their own, which waits as well.
    void holdsFurtherPartsWhilePaused()
    {
        read();
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        m_bench->appendAllTheSame({2});
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::end());
        QTRY_COMPARE(state(), State::Ready);
        m_fake->plays("run", Fake::start() + "#hear pause\n" + Fake::changed(0) + Fake::end());
        m_bench->start();
        m_bench->pause();
        QTRY_VERIFY(!m_bench->task()->isRunning());
        QTest::qWait(100);
        QVERIFY(!m_fake->starts().last().contains("--signed"));
        m_bench->stop();
        QCOMPARE(state(), State::Results);
        QCOMPARE(m_bench->counts().changed, 1);
        QCOMPARE(m_bench->counts().notDone, 1);
        m_fake->plays("run", Fake::start() + Fake::changed(0) + Fake::end());
        m_bench->tryAgain();
        QTRY_COMPARE(m_bench->counts().changed, 2);
    }

    void countsWhatIsUndoneAndCanBeStopped()
    {
        read();
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        m_bench->start();
        QTRY_COMPARE(state(), State::Results);
        m_fake->plays("undo", Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::found(1, "/else.pdf") +
                                  Fake::result(0, "undone") + "#hear stop\n" +
                                  "{\"event\":\"end\",\"stopped\":true}\n");
        QSignalSpy ended(m_bench.get(), &Workbench::runEnded);
        m_bench->undoRun(0);
        QTRY_COMPARE(m_bench->task()->done(), 1);
        QCOMPARE(m_bench->task()->total(), 2);
        m_bench->add({"/e"}); // waits
        m_bench->stop();
        QVERIFY(m_bench->isUndoing()); // which is what a question would be about
        QTRY_COMPARE(ended.size(), 1);
        QVERIFY(m_bench->history().canUndo(0));
        QTRY_COMPARE(m_fake->names(), QList<QByteArray>({"/e"}));
    }

    /// Nobody would learn why otherwise, and the next run would change what nobody has looked at.
    void keepsAsideWhatUndoingLeftAlone()
    {
        read();
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        m_bench->start();
        QTRY_COMPARE(state(), State::Results);
        m_fake->plays("undo", Fake::start() + Fake::found(0, "/d/a.pdf") +
                                  Fake::result(0, "left alone", ",\"reasonCode\":\"changedMeanwhile\"") +
                                  Fake::end());
        m_bench->undoRun(0);
        QTRY_COMPARE(state(), State::Ready);
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/d/b.pdf"}));
        QCOMPARE(m_bench->counts().cannot, 1);
        QCOMPARE(m_bench->counts().reasons.value("changedMeanwhile"), 1);
        m_bench->start();
        QTRY_COMPARE(state(), State::Results);
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/d/b.pdf"}));
    }

    /// What was added is not lost, however reading it ends, and whatever stands against it.
    void keepsWhatCouldNotBeAddedYet()
    {
        m_fake->plays("show", "#exit 127\n");
        QSignalSpy failed(m_bench.get(), &Workbench::failed);
        m_bench->add({"/d"});
        QTRY_COMPARE(failed.size(), 1);
        QVERIFY(failed.front().front().toString().contains("127"));
        QCOMPARE(m_bench->pending(), QVector<QByteArray>({"/d"}));
        m_bench->machine().setBusy(true);
        m_bench->add({"/e"});
        QCOMPARE(m_bench->pending().size(), 2);
        m_fake->plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") + Fake::document(0) + Fake::end());
        m_bench->machine().setBusy(false);
        QTRY_COMPARE(state(), State::Listed);
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/e", "/d"}));
        QVERIFY(m_bench->pending().isEmpty());
    }

    void bringsBackNoAnswerToAnotherChange()
    {
        read();
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        m_bench->remove({1});
        m_bench->restore({}); // leaves no step
        m_bench->undoEdit();
        QVERIFY(m_bench->table().find(1)->facts && !m_bench->table().find(1)->check);
    }

    void takesBackWhatWasDoneLast()
    {
        m_bench->restore({bookmarks(), {}}); // of an earlier session
        QVERIFY(!m_bench->edits().canUndo());
        m_fake->plays("show", Fake::start() + Fake::found(0, "/d/a.pdf") + "#wait 400\n" +
                                  Fake::found(1, "/d/b.pdf") + Fake::document(0) + Fake::document(1) +
                                  Fake::end());
        m_bench->add({"/d"});
        QTRY_VERIFY(m_bench->table().count() > 0);
        ChangeDraft named = bookmarks();
        for (const char* text : {"M", "Ma", "Manual"}) { // while it still reads
            named.set(ViewEntry::Title, text);
            m_bench->setDraft(named);
        }
        QTRY_COMPARE(state(), State::Ready);
        m_bench->setDestination({Destination::Kind::Folder, "/out", {}});
        QCOMPARE(m_bench->edits().undoText(), QString("&Undo Setting “Write to”"));
        m_bench->undoEdit();
        QCOMPARE(m_bench->destination().kind, Destination::Kind::InPlace);
        m_bench->undoEdit();
        QCOMPARE(m_bench->draft(), bookmarks());
        m_bench->redoEdit();
        QCOMPARE(m_bench->draft(), named);
        m_bench->undoEdit();
        QCOMPARE(m_bench->table().count(), 2);
        m_bench->undoEdit();
        QCOMPARE(m_bench->table().count(), 0);
        QVERIFY(!m_bench->edits().canUndo());
    }

    void letsBeUndoneWhatBrokeOff()
    {
        read();
        m_bench->setDraft(bookmarks());
        QTRY_COMPARE(state(), State::Ready);
        m_fake->plays("run", Fake::start() + "#hear stop\n#exit 1\n");
        m_bench->start();
        QFile file(newestReport());
        QVERIFY(file.open(QIODevice::WriteOnly));
        RunHistory other(m_reports->path());
        QCOMPARE(other.newestUndoable(), -1); // it is under way
        m_bench->stop();
        QTRY_COMPARE(state(), State::Results);
        QCOMPARE(m_bench->history().runs().front().changed, -1);
        QCOMPARE(m_bench->undoableRun(), 0);
    }

    void tellsWhatRunsOfAWindowThatCrashedWere()
    {
        const auto write = [this](const char* name, const QByteArray& line) {
            QFile report(m_reports->filePath(name));
            QVERIFY(report.open(QIODevice::WriteOnly) && report.write(line) == line.size() &&
                    report.flush() &&
                    report.setFileTime(QDateTime::fromSecsSinceEpoch(1), QFileDevice::FileModificationTime));
        };
        write("2026-11-24T121417.277Z.jsonl", R"({"change":{"pageMode":"UseOutlines"},"inPlace":true})");
        write("2026-11-24T121418.277Z.jsonl", R"({"change":null,"inPlace":false})");
        const RunHistory history(m_reports->path());
        QCOMPARE(history.newestUndoable(), 1); // what was written elsewhere needs no undoing
        QCOMPARE(history.runs().at(1).what, QString("Broken off: Panel: Bookmarks"));
        QVERIFY(!history.canUndo(0) && history.runs().at(0).what.contains("broken off"));
    }

    void forgetsAnEarlierCheckAtEachEdit()
    {
        read();
        m_fake->plays("try",
                      Fake::start() + "#wait 300\n" + Fake::changed(0) + Fake::changed(1) + Fake::end());
        m_bench->setDraft(bookmarks());
        QTRY_VERIFY(m_bench->task() != nullptr);
        m_fake->plays("try", Fake::start() + Fake::result(0, "unchanged") + Fake::result(1, "unchanged") +
                                 Fake::end());
        ChangeDraft other = bookmarks();
        other.set(ViewEntry::PageLayout, 1);
        m_bench->setDraft(other);
        QTRY_COMPARE(state(), State::Ready);
        QTest::qWait(400);
        QCOMPARE(m_bench->counts().asAsked, 2);
    }

    void isForTheSelectedOnesOnlyWhenThereAreSeveral()
    {
        read();
        m_bench->order().select({1}, 1);
        QTRY_COMPARE(m_bench->targets().size(), 2);
        m_bench->setScope(Workbench::Scope::Selected);
        QCOMPARE(m_bench->targets(), Workbench::Ids({1}));
        m_bench->setDraft(bookmarks());
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::end());
        QTRY_COMPARE(state(), State::Ready);
        QCOMPARE(m_fake->names(), QList<QByteArray>({"/d/a.pdf"}));
    }

    /// Also if others are shown while results are looked at.
    void countsAllThatAChangeIsFor()
    {
        read();
        DocumentFilter filter;
        filter.setSearch("a.pdf");
        m_bench->order().setFilter(filter);
        m_bench->setDraft(bookmarks());
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::end());
        m_fake->plays("run", Fake::start() + Fake::changed(0) + Fake::end());
        QTRY_COMPARE(state(), State::Ready);
        m_bench->start();
        QTRY_COMPARE(state(), State::Results);
        m_bench->order().setFilter({});
        QTRY_COMPARE(m_bench->targets().size(), 2);
        ChangeDraft other;
        other.set(ViewEntry::PageLayout, 1);
        m_fake->plays("try", Fake::start() + Fake::changed(0) + Fake::changed(1) + Fake::end());
        m_bench->setDraft(other);
        QTRY_COMPARE(state(), State::Ready);
        QCOMPARE(m_bench->counts().willChange, 2);
    }

    void keepsThePlaceInTheListWhenRowsGo()
    {
        read();
        m_bench->order().select({1}, 1);
        m_bench->remove({1});
        QCOMPARE(m_bench->order().current(), 2);
        m_bench->undoEdit();
        QCOMPARE(m_bench->order().selected(), Workbench::Ids({1}));
        m_bench->order().select({2}, 2);
        m_bench->remove({2});
        QCOMPARE(m_bench->order().current(), 1);
    }

private:
    /// Of the start that is the newest, once there is one.
    QString newestReport() const
    {
        const auto isRun = [this] { return m_fake->starts().last().contains("--report"); };
        return QTest::qWaitFor(isRun) ? m_fake->starts().last().section("--report ", 1).section(' ', 0, 0)
                                      : QString();
    }
    State state() const { return m_bench->machine().state(); }
    void read()
    {
        m_bench->add({"/d"});
        QTRY_COMPARE(state(), State::Listed);
    }

    std::unique_ptr<FakeQuintar> m_fake;
    std::unique_ptr<QTemporaryDir> m_reports;
    std::unique_ptr<Workbench> m_bench;
};

QTEST_GUILESS_MAIN(TestWorkbench)
#include "TestWorkbench.moc"
