// Configuring starts from a document and ends with what was changed.
#include "support/people/ConfigureFixture.h"

#include <QComboBox>
#include <QJsonDocument>

using namespace initialview;

class TestConfigureDocument : public QObject, ConfigureFixture
{
    Q_OBJECT

private slots:
    void init() { begin(); }

    void startsAsTheDocumentOpens()
    {
        const CommandRun run = configure({path("a.pdf"), "--all"});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.out, QByteArray("--set LayoutAndMagnCheckBox=true --set NavigationTabComboBox=2 "
                                     "--set PageLayoutComboBox=5 --set MagnificationComboBox=2 "
                                     "--set OpenToPageSpinBox=2 --set ViewerPrefsCheckBox=true "
                                     "--set HideToobarsCheckBox=false --set HideMenuBarCheckBox=true "
                                     "--set HideCtrlWindowsCheckBox=false "
                                     "--set ResizeWinToInitPageCheckBox=false "
                                     "--set CenterWinOnScreenCheckBox=true "
                                     "--set OpenInFullScreenCheckBox=false --set ShowComboBox=0\n"));
    }

    void tellsWhatTheWindowCannotShow()
    {
        putDocument("/OpenAction [ 4 0 R /XYZ 0 792 1.5 ] /ViewerPreferences << /DisplayDocTitle true >>");
        const CommandRun run = configure({path("a.pdf")}, [](QDialog& dialog) {
            QCOMPARE(person::widget<QComboBox>(dialog, key::Magnification)->currentText(), QString());
            QCOMPARE(person::widget<QComboBox>(dialog, key::Show)->currentText(), QString("Document Title"));
            person::pressOk(dialog);
        });
        QCOMPARE(run.status, 0);
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.contains("a.pdf: the window has no row for its magnification, 150%"), run.err);
        QVERIFY2(run.err.contains("nothing was changed in the window"), run.err);
    }

    void notesWhatItMakes_data()
    {
        const Rows<QStringList, QByteArray> row;
        row("words of a change", {}, "it stays unless a magnification");
        row("whole settings", {"--all"}, "the settings that OK makes replace it");
        row("a list", {"-o", path("s.xqq")}, "the settings that OK makes replace it");
        row("a view", {"--all", "-o", path("s.json")}, "it stays unless a magnification");
    }

    void notesWhatItMakes()
    {
        const auto [words, note] = Rows<QStringList, QByteArray>::current();
        putDocument("/OpenAction << /S /JavaScript /JS (app.beep\\(\\)) >>");
        const CommandRun run = configure(QStringList{path("a.pdf")} + words);
        QVERIFY2(run.err.contains("an action (JavaScript) that the window cannot show; " + note), run.err);
        if (words.contains(path("s.json")))
            QVERIFY(!bytesOf(path("s.json")).contains("openAction"));
    }

    // Run, the words make the document open as the window said.
    void printsWhatWasChanged_data()
    {
        const Rows<std::string, Map, QByteArray> row;
        row("one thing", "", {{key::NavigationTab, 1}}, "--page-mode use-outlines");
        row("page and magnification", "", {{key::OpenToPage, 3}, {key::Magnification, 7}},
            "--open-page 3 --zoom 75%");
        row("magnification of the page", "/OpenAction [ 4 0 R /FitH 792 ]", {{key::Magnification, 1}},
            "--zoom fit-page");
        row("page of the magnification", "/OpenAction << /S /GoTo /D [ 4 0 R /FitV 0 ] >>",
            {{key::OpenToPage, 1}}, "--open-page 1");
        row("a script gives way", "/OpenAction << /S /JavaScript /JS (app.beep\\(\\)) >>",
            {{key::Magnification, 0}}, "--zoom default");
        row("title and layout",
            "/PageLayout /TwoPageRight /ViewerPreferences << /DisplayDocTitle true /HideMenubar true >>",
            {{key::PageLayout, 6}, {key::Show, 0}}, "--page-layout unset --display-doc-title no");
        row("full screen", "/PageMode /UseThumbs", {{key::OpenInFullScreen, true}},
            "--page-mode full-screen --non-full-screen-page-mode use-thumbs");
        row("no full screen", "/PageMode /FullScreen /ViewerPreferences << /NonFullScreenPageMode /UseOC >>",
            {{key::OpenInFullScreen, false}, {key::HideToolBars, true}},
            "--page-mode use-oc --hide-toolbar yes");
    }

    void printsWhatWasChanged()
    {
        const auto [view, choices, words] = Rows<std::string, Map, QByteArray>::current();
        putDocument(view);
        const CommandRun run = configure({path("a.pdf")}, choices);
        QCOMPARE(run.status, 0);
        QCOMPARE(run.out, words + "\n");
        const CommandRun said = configure({path("a.pdf"), "--all"}, choices);

        const QStringList change = QString(words).split(' ');
        const ProgramRun made(PROGRAM_FILE, QStringList{"run", "--in-place", path("a.pdf")} + change);
        QVERIFY2(made.status == 0, made.err);
        QCOMPARE(configure({path("a.pdf"), "--all"}).out, said.out);
    }

    // Whatever a document holds, the window does not change it by itself.
    void leavesTheCorpusAlone()
    {
        const QString corpus = qEnvironmentVariable("QUINTAR_CORPUS");
        if (corpus.isEmpty())
            QSKIP("QUINTAR_CORPUS names no folder");
        int shown = 0;
        for (const QFileInfo& each : QDir(corpus).entryInfoList({"*.pdf"}, QDir::Files)) {
            if (ProgramRun(PROGRAM_FILE, {"show", each.filePath()}).status != 0)
                continue;
            const CommandRun run = configure({each.filePath()});
            QVERIFY2(run.status == 0 && run.out.isEmpty(), qPrintable(each.fileName() + ": " + run.out));
            ++shown;
        }
        QVERIFY(shown > 0);
    }

    void storesAView_data()
    {
        const Rows<QStringList, QByteArray> row;
        const QByteArray preferences = R"("viewerPreferences":{"HideToolbar":false,"HideMenubar":%1,
            "HideWindowUI":false,"FitWindow":false,"CenterWindow":%1,"DisplayDocTitle":false}})";
        const auto all = [&preferences](const char* flag) {
            return QByteArray(preferences).replace("%1", flag);
        };
        row("what was changed", {path("a.pdf")}, R"({"openAction":{"page":3}})");
        row("everything", {path("a.pdf"), "--all"},
            R"({"pageMode":"UseThumbs","pageLayout":"TwoPageRight",
                "openAction":{"page":3,"type":"FitH","zoom":null},)" +
                all("true"));
        row("of no document", {},
            R"({"pageMode":"UseNone","pageLayout":"SinglePage",
                "openAction":{"page":3,"type":"XYZ","zoom":null},)" +
                all("false"));
    }

    void storesAView()
    {
        const auto [words, json] = Rows<QStringList, QByteArray>::current();
        const CommandRun run =
            configure(words + QStringList{"-o", path("view.json")}, {{key::OpenToPage, 3}});
        QCOMPARE(run.err, "quintar: stored: " + path("view.json").toUtf8() + "\n");
        QCOMPARE(run.status, 0);
        QCOMPARE(QJsonDocument::fromJson(bytesOf(path("view.json"))), QJsonDocument::fromJson(json));
        const ProgramRun made(PROGRAM_FILE,
                              {"run", "--view", path("view.json"), "-n", "--in-place", path("a.pdf")});
        QVERIFY2(made.status == 0, made.err);
    }

    void storesNoViewThatChangesNothing()
    {
        const CommandRun run = configure({path("a.pdf"), "-o", path("view.json")});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains("nothing was changed in the window: no view was written"), run.err);
        QVERIFY(!QFile::exists(path("view.json")));
    }
};

QTEST_MAIN(TestConfigureDocument)
#include "TestConfigureDocument.moc"
