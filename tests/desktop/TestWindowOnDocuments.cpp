#include "host/desktop/workbench/Workbench.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/WorkFolder.h"

#include "pdflibrary/ViewNumbers.h"

#include <QSignalSpy>
#include <QtTest>

using namespace host;
using namespace host::desktop;
using State = RunMachine::State;

namespace {

std::string manual(const std::string& entries)
{
    return PdfBuilder().catalog(entries).pages(2).bytes();
}

/// Documents in "m" with their bytes: eight to change, one that is as asked, one that is torn.
std::map<std::string, std::string> putManuals()
{
    std::map<std::string, std::string> documents;
    for (int number = 0; number < 8; ++number) {
        const std::string name = "m/part-" + std::to_string(number) + ".pdf";
        documents[name] = WorkFolder::put(name, manual(number == 0 ? "/PageMode /UseOutlines" : ""));
    }
    documents["m/n\xff.pdf"] = WorkFolder::put("m/n\xff.pdf", manual(""));
    documents["m/torn.pdf"] = WorkFolder::put("m/torn.pdf", "no document");
    return documents;
}

} // namespace

/// The real program on real documents.
class TestWindowOnDocuments : public QObject
{
    Q_OBJECT

private slots:
    void changesAndGivesBack()
    {
        const WorkFolder folder;
        auto documents = putManuals();
        Workbench bench(PROGRAM_FILE, folder.path("runs"));
        QSignalSpy failed(&bench, &Workbench::failed);
        bench.add({folder.path("m").toUtf8()});
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), State::Listed, 30000);
        QCOMPARE(bench.table().count(), 10);
        ChangeDraft draft;
        draft.set(ViewEntry::PageMode, pdflibrary::BookmarksPanel);
        bench.setDraft(draft);
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), State::Ready, 30000);
        QCOMPARE(bench.counts().willChange, 8);
        QCOMPARE(bench.counts().asAsked, 1);
        QCOMPARE(bench.counts().cannot, 1);
        for (const auto& [name, bytes] : documents)
            QVERIFY(WorkFolder::contentOf(name) == bytes);

        bench.start();
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), State::Results, 30000);
        QCOMPARE(bench.counts().changed, 8);
        QCOMPARE(bench.counts().failed, 1);
        QVERIFY(WorkFolder::contentOf("m/n\xff.pdf") != documents["m/n\xff.pdf"]);
        QCOMPARE(failed.size(), 0);

        QSignalSpy said(&bench, &Workbench::said);
        bench.undoRun(0);
        QTRY_COMPARE_WITH_TIMEOUT(said.size(), 1, 30000);
        for (const auto& [name, bytes] : documents)
            QVERIFY(WorkFolder::contentOf(name) == bytes);
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), State::Ready, 30000);
        QCOMPARE(bench.counts().willChange, 8);
    }

    void keepsThePathsInAFolder()
    {
        const WorkFolder folder;
        WorkFolder::put("m/one/a.pdf", manual(""));
        WorkFolder::put("m/two/a.pdf", manual(""));
        Workbench bench(PROGRAM_FILE, folder.path("runs"));
        bench.setDestination({Destination::Kind::Folder, folder.path("out"), {}});
        ChangeDraft draft;
        draft.set(ViewEntry::DisplayDocTitle, 1);
        bench.setDraft(draft);
        bench.add({folder.path("m").toUtf8()});
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), State::Ready, 30000);
        bench.start();
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), State::Results, 30000);
        QVERIFY(QFile::exists(folder.path("out/one/a.pdf")) && QFile::exists(folder.path("out/two/a.pdf")));
        QCOMPARE(bench.undoableRun(), -1);
    }

    void leavesAloneWhatIsNotInTheList()
    {
        const WorkFolder folder;
        WorkFolder::put("a.pdf", manual(""));
        WorkFolder::put("b.pdf", manual(""));
        Workbench bench(PROGRAM_FILE, folder.path("runs"));
        ChangeDraft draft;
        draft.set(ViewEntry::DisplayDocTitle, 1);
        bench.setDraft(draft);
        bench.add({folder.path("a.pdf").toUtf8(), folder.path("b.pdf").toUtf8()});
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), State::Ready, 30000);
        QVERIFY(QFile::remove("a.pdf"));
        WorkFolder::put("a.pdf/x.pdf", manual(""));
        bench.start();
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), State::Results, 30000);
        QVERIFY(WorkFolder::contentOf("a.pdf/x.pdf") == manual(""));
        QCOMPARE(bench.table().find(1)->state(), DocumentRecord::State::Failed);
        QCOMPARE(bench.table().find(2)->state(), DocumentRecord::State::Changed);
    }
};

QTEST_GUILESS_MAIN(TestWindowOnDocuments)
#include "TestWindowOnDocuments.moc"
