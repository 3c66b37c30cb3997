#include "host/desktop/change/ChangeWarnings.h"
#include "host/desktop/change/RunOrder.h"
#include "host/desktop/preview/PreviewScene.h"
#include "host/desktop/workbench/RunMachine.h"
#include "host/terminal/TerminalText.h"

#include "pdflibrary/ViewNumbers.h"

#include <QJsonDocument>
#include <QProcess>
#include <QtTest>

using namespace host;
using namespace host::desktop;

namespace {

DocumentFacts facts(const char* json)
{
    return DocumentFacts::fromJson(QJsonDocument::fromJson(json).object());
}

/// A list of documents that are read, one of each.
void fill(DocumentTable& table, const QVector<const char*>& documents)
{
    for (const char* json : documents) {
        const DocumentTable::Ids ids = table.append({"/d/" + QByteArray::number(table.count()) + ".pdf"});
        table.change(ids.front(), [json](DocumentRecord& record) {
            record.facts = std::make_shared<DocumentFacts>(facts(json));
        });
    }
    table.flush();
}

QStringList warnings(const DocumentTable& table, const ChangeDraft& draft)
{
    DocumentTable::Ids all;
    for (const DocumentRecord& record : table.records())
        all.append(record.id);
    QStringList texts;
    for (const ChangeWarning& each : changewarnings::of(draft, SelectionSummary::of(table, all)))
        texts += each.text;
    return texts;
}

QStringList warnings(const DocumentTable& table, ViewEntry entry, const ViewValue& value)
{
    ChangeDraft draft;
    draft.set(entry, value);
    return warnings(table, draft);
}

} // namespace

class TestChange : public QObject
{
    Q_OBJECT

private slots:
    void tellsWhatDocumentsHaveInCommon()
    {
        DocumentTable table;
        fill(table, {R"({"pages":8,"pageMode":"UseNone","title":"A"})", R"({"pages":3,"pageMode":"UseNone"})",
                     R"({"pages":9,"pageMode":"UseOutlines","title":"B"})"});
        table.append({"/d/unread.pdf"});
        const SelectionSummary summary = SelectionSummary::of(table, {1, 2, 3, 4});
        QCOMPARE(summary.documents, 4);
        QCOMPARE(summary.known, 3);
        QCOMPARE(summary.shortest, 3);
        QCOMPARE(summary.withoutTitle, 1);
        QCOMPARE(summary.textOf(ViewEntry::PageMode), QString("different: None (2), Bookmarks (1)"));
        QCOMPARE(summary.textOf(ViewEntry::PageLayout), QString("now Not set"));
        QCOMPARE(SelectionSummary::of(table, {4}).textOf(ViewEntry::PageMode), QString());
    }

    void warnsWhereItWillDisappoint()
    {
        DocumentTable table;
        fill(table, {R"({"pages":8,"bookmarks":0,"title":"A"})", R"({"pages":3,"bookmarks":4})"});
        QVERIFY(warnings(table, ViewEntry::PageMode, pdflibrary::BookmarksPanel)
                    .join("")
                    .contains("no bookmarks"));
        QVERIFY(warnings(table, ViewEntry::DisplayDocTitle, 1).join("").contains("no title"));
        QVERIFY(warnings(table, ViewEntry::OpenPage, 4).join("").contains("shortest"));
        QVERIFY(warnings(table, ViewEntry::HideToolbar, 1).join("").contains("Browsers"));
        QCOMPARE(warnings(table, ViewEntry::OpenPage, 3), QStringList());
        QCOMPARE(warnings(table, ViewEntry::PageLayout, 1), QStringList());
        ChangeDraft stored;
        stored.setStored({"A list", {}, {}, {}});
        QCOMPARE(warnings(table, stored), QStringList());
        StoredChoice choice = *stored.stored();
        choice.view.set(ViewEntry::PageMode, pdflibrary::FullScreen);
        stored.setStored(choice);
        QVERIFY(warnings(table, stored).value(0).contains("Full screen"));
    }

    void warnsOfSignaturesUntilItIsToldToAppend()
    {
        DocumentTable table;
        fill(table, {R"({"pages":8,"signatures":1})", R"({"pages":8,"signatures":1,"certified":true})"});
        const auto tell = [&table](DocumentRecord::Signed how) {
            table.changeAll([how](DocumentRecord& record) { record.howSigned = how; });
            return warnings(table, ViewEntry::PageLayout, 1);
        };
        QVERIFY(tell(DocumentRecord::Signed::Refuse).value(0).contains("signed"));
        const SelectionSummary summary = SelectionSummary::of(table, {1, 2});
        QCOMPARE(summary.signedDocuments, 2);
        QVERIFY(tell(DocumentRecord::Signed::Append).value(0).contains("signed"));
        QCOMPARE(SelectionSummary::of(table, {1, 2}).signedDocuments, 1);
        QCOMPARE(tell(DocumentRecord::Signed::AppendCertified), QStringList());
    }

    void becomesTheProgramsOptions()
    {
        RunOrder order;
        order.draft.set(ViewEntry::PageMode, pdflibrary::BookmarksPanel);
        order.draft.set(ViewEntry::Title, FileNameAsTitle());
        order.draft.setKeepsTitles(true);
        QCOMPARE(order.arguments("/d"), QStringList({"--page-mode", "use-outlines", "--title-from-file-name",
                                                     "--title-if-missing", "--in-place"}));
        order.draft.set(ViewEntry::Title, std::nullopt);
        order.destination = {Destination::Kind::Folder, "/out", {}};
        QCOMPARE(order.arguments("/d"),
                 QStringList({"--page-mode", "use-outlines", "--output", "/out/", "--base", "/d"}));
        QCOMPARE(order.resultOf("/d/e/b.pdf", "/d/"), QByteArray("/out/e/b.pdf"));
        order.destination = {Destination::Kind::Suffix, {}, "new"};
        QCOMPARE(order.resultOf("/d/e/b.PDF", "/d/"), QByteArray("/d/e/b-new.PDF"));
        QCOMPARE(order.resultOf("/d.e/b", "/d/"), QByteArray("/d.e/b-new"));
        order.destination = {Destination::Kind::Folder, "/out", {}};
        for (const char* suffix : {"", "a/b", "-a", "a.pdf"})
            QVERIFY(!Destination({Destination::Kind::Suffix, {}, suffix}).problem().isEmpty());
        DocumentTable table;
        table.append({"/d/it's.pdf", "/d/e/b.pdf", "/d/\xff/a.pdf"});
        QCOMPARE(RunOrder::commonFolder(table, {3}), QString("/d/"));
        QCOMPARE(
            order.commandLine(table, {1, 2}),
            QString(
                R"(quintar run --page-mode use-outlines --output /out/ --base /d/ '/d/it'\''s.pdf' /d/e/b.pdf)"));
    }

    /// By a shell, over documents whose names are printed one a line.
    void copiesACommandThatNamesTheSame()
    {
        QVector<QByteArray> paths;
        for (int place = 0; place < 30; ++place)
            paths += "/d/$it's `" + QByteArray::number(place) + "`.pdf";
        paths += {"/d/\xff'.pdf", "/d/a\nb.pdf", "/d/\x1b[201~\r.pdf", "/d/\xe2\x80\xae.pdf"};
        DocumentTable table;
        const DocumentTable::Ids ids = table.append(paths);
        table.change(ids.at(3), [](DocumentRecord& record) { record.password = 0; });
        RunOrder order;
        order.draft.set(ViewEntry::PageMode, pdflibrary::BookmarksPanel);
        const QString command = order.commandLine(table, ids);
        for (const QChar each : command) // a terminal would take it for a key, or show something else
            QVERIFY(each == '\n' || !misleads(each.unicode()));
        QProcess shell;
        shell.start("bash", {"-c", "quintar() { [[ \" $* \" == *' --files-from - '* ]] && cat; "
                                   "for each; do [[ $each == /* ]] && printf '%s\\0' \"$each\"; done; }\n" +
                                       command});
        QVERIFY(shell.waitForFinished());
        QByteArray told = shell.readAllStandardOutput().replace(".pdf\n", QByteArray(".pdf\0", 5));
        QList<QByteArray> names = told.split('\0');
        names.removeAll(QByteArray());
        QCOMPARE(QSet<QByteArray>(names.begin(), names.end()), QSet<QByteArray>(paths.begin(), paths.end()));
        QCOMPARE(names.size(), paths.size());
    }

    void takesTheViewOfADocumentButNotItsTitle()
    {
        const ViewChange like =
            ChangeDraft::like(facts(R"({"title":"A","lang":"en","pageMode":"UseThumbs","openAction":null})"));
        QVERIFY(!like[ViewEntry::Title] && !like[ViewEntry::Lang] && !like[ViewEntry::Zoom]);
        QCOMPARE(*like[ViewEntry::PageMode], ViewValue(pdflibrary::PagesPanel));
        QCOMPARE(*like[ViewEntry::OpenPage], ViewValue(Unset()));
        QVERIFY(like.contradiction().empty());
    }

    void drawsBeforeAndAfter()
    {
        DocumentRecord record = DocumentRecord::of(1, "/d/a.pdf");
        record.facts = std::make_shared<DocumentFacts>(facts(
            R"({"pages":8,"title":"Lathe","pageLayout":"TwoPageRight","openAction":{"page":4,"type":"FitH"}})"));
        record.check = std::make_shared<Outcome>(Outcome::fromJson(
            QJsonDocument::fromJson(
                R"({"status":"changed","before":{"viewerPreferences":{"DisplayDocTitle":null},"pageMode":null},
                "after":{"viewerPreferences":{"DisplayDocTitle":true},"pageMode":"UseOutlines"}})")
                .object(),
            true));
        const PreviewScene before = PreviewScene::before(record, {});
        const PreviewScene after = PreviewScene::after(record, {});
        QCOMPARE(before.titleBar, QString("a.pdf"));
        QCOMPARE(after.titleBar, QString("Lathe"));
        QCOMPARE(after.panel, PreviewScene::Panel::Bookmarks);
        QCOMPARE(after.fit, PreviewScene::Fit::Width);
        QCOMPARE(after.firstRow(), std::pair(4, 5));
    }

    /// Nothing may write while another thing does, and each state must be left again.
    void allowsWhatTheStateAllows()
    {
        using Step = RunMachine::Step;
        using Command = RunMachine::Command;
        using State = RunMachine::State;
        RunMachine machine;
        QVERIFY(!machine.isEnabled(Command::Start));
        for (const Step step : {Step::Added, Step::Read, Step::Edited, Step::Checked})
            QVERIFY(machine.handle(step));
        QVERIFY(machine.isEnabled(Command::Start) && machine.isEnabled(Command::UndoRun));
        machine.setBusy(true);
        QVERIFY(!machine.isEnabled(Command::Start) && !machine.isEnabled(Command::Remove));
        machine.setBusy(false);
        QVERIFY(machine.handle(Step::Started));
        for (const Command command : {Command::Add, Command::Remove, Command::Edit, Command::Start,
                                      Command::UndoRun, Command::TryAgain})
            QVERIFY(!machine.reasonAgainst(command).isEmpty());
        QVERIFY(!machine.handle(Step::Undo) && !machine.handle(Step::Edited) &&
                !machine.handle(Step::Emptied));
        QVERIFY(machine.handle(Step::Paused) && machine.handle(Step::Stopped));
        QVERIFY(machine.isWriting() && machine.handle(Step::Ended));
        QCOMPARE(machine.state(), State::Results);
        QVERIFY(machine.isEnabled(Command::TryAgain) && machine.handle(Step::Undo) && machine.isWriting());
        QVERIFY(machine.handle(Step::Undone));
    }
};

QTEST_GUILESS_MAIN(TestChange)
#include "TestChange.moc"
