// What people mistype, and the answer that leads them on.
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/TemporaryHome.h"
#include "support/folders/WorkFolder.h"
#include "support/program/ProgramRun.h"

#include <QtTest>

class TestMistakes : public QObject
{
    Q_OBJECT

private slots:
    void areAnswered_data()
    {
        const Rows<QString, QByteArray> add;
        const auto row = [&add](const char* words, const char* answer) { add(words, words, answer); };
        row("rnu a.pdf", "unknown command \"rnu\"; did you mean \"run\"?");
        row("list", "unknown command \"list\"; did you mean \"lists\"?");
        row("config a.pdf", "did you mean \"configure\"?");
        row("help shwo", "did you mean \"show\"?");
        row("a.pdf", "\"a.pdf\" is no command; \"quintar show a.pdf\" tells how it opens");
        row("--page-mode none a.pdf", "options stand behind a command");
        row("-V", "did you mean \"--version\"?");
        row("revert report", "did you mean \"undo\"?");
        row("help run show", "help tells about one command");
        row("run --ouput x a.pdf", "unknown option --ouput; did you mean \"--output\"?");
        row("run --inplace a.pdf", "did you mean \"--in-place\"?");
        row("run --favourite x a.pdf", "did you mean \"--favorite\"?");
        row("run -report x a.pdf", "unknown option -r; did you mean \"--report\"?");
        row("run -x a.pdf", "unknown option -x; \"quintar run --help-all\" lists the options");
        // Without this answer the document would be changed, in place, to a title of "-n".
        row("run --title -n --in-place a.pdf", "the option --title needs a value, and \"-n\" is an option");
        row("run --title -nq --in-place a.pdf", "\"--title=-nq\" would make it the value");
        row("run --title --in a.pdf -n", "\"--in\" is an option");
        row("run --hide-toolbar --in-place a.pdf", "needs a value, and \"--in-place\" is an option\n");
        row("run \u2013-page-mode none --in-place a.pdf", "begins with a dash that is no hyphen");
        row("run --title-from-file-name --title-if-empty --in-place a.pdf",
            "did you mean \"--title-if-missing\"?");
        row("run --wombat a.pdf", "unknown option --wombat; \"quintar run --help-all\" lists the options");
        row("run --re x a.pdf", "--re may be one of --replace, --rewrite, --report, --resume");
        row("run --in-place=yes a.pdf", "the option --in-place takes no value");
        row("run a.pdf --jobs", "the option --jobs needs a value");
        row("run a.pdf -nj", "the option -j needs a value");
        row("run --jobs many --in-place a.pdf --list x",
            "--jobs takes a number from 1 to 1024, not \"many\"");
        row("run --signed apend --in-place a.pdf --list x", "did you mean \"append\"?");
        row("run --signed yes --in-place a.pdf --list x", "did you mean \"append\"?");
        row("run -n --in-place a.pdf", "which settings?");
        row("run -n a.pdf --list x", "where to?");
        row("run --in-place -n --set ShowCombo=1 a.pdf",
            "unknown setting \"ShowCombo\"; did you mean \"ShowComboBox\"?");
        row("run --in-place -n --set HideToolbarsCheckBox=1 a.pdf", "did you mean \"HideToobarsCheckBox\"?");
        row("run --in-place -n --set ShowComboBox=DocumentTitel a.pdf", "did you mean \"Document Title\"?");
        row("run --in-place -n --list Manual a.pdf", "did you mean \"manuals\"?");
        row("run --in-place -n --page-mode bookmrks a.pdf",
            "--page-mode cannot be \"bookmrks\"; did you mean \"bookmarks\"?");
        row("run --in-place -n --page-mod bookmarks --zoom fitwidht a.pdf", "did you mean \"fit-width\"?");
        row("run --in-place -n --open-page first a.pdf",
            "did you mean \"1\"?\nit takes a page's number from 1");
        row("run --in-place -n --page-layout continuous a.pdf", "did you mean \"one-column\"?");
        row("run --in-place -n --direction right-to-left a.pdf", "did you mean \"r2l\"?");
        row("run --in-place -n --hide-toolbar true a.pdf", "did you mean \"yes\"?");
        row("run --in-place -n --set HideToobarsCheckBox=yess a.pdf", "did you mean \"yes\"?");
        row("run --in-place -n --set ShowComboBox=Titel a.pdf", "did you mean \"Document Title\"?");
        row("run --in-place -n --lang en_GB a.pdf", "did you mean \"en-GB\"?");
        row("run --in-place -n --zoom 1,5% a.pdf", "a percentage from 1% to 6400%");
        row("run --in-place -n --page-mode none --list manuals a.pdf", "settings come from one source");
        row("run --in-place -n --open-page unset --zoom 100% a.pdf", "excludes --zoom");
        row("run --in-place -n --title-if-missing a.pdf", "goes with --title");
        row("run --in-place -n --title x --title-from-file-name a.pdf", "exclude each other");
        row("run --in-place -n --view a.pdf a.pdf",
            "is not a JSON object; \"--like a.pdf\" takes a document");
        row("run --in-place -n --view nmaed.json a.pdf", "did you mean \"named.json\"?");
        row("run --in-place -n --view missing.json a.pdf",
            "the view missing.json: titleIfMissing goes with title or titleFromFileName");
        row("run --in-place -n --page-mode none --files-from lits.txt", "did you mean \"list.txt\"?");
        row("run --in-place -n --zoom 7000% a.pdf", "did you mean \"6400%\"?");
        row("run --in-place -n --like folder a.pdf", "folder: it is a folder; one document is wanted");
        row("run --in-place -n --view {\"pageMode\":null} a.pdf", "--view takes the name of a file");
        row("run --in-place -n --like no.pdf a.pdf", "no.pdf: no such file");
        row("run --in-place -n --like round.pdf a.pdf", "round.pdf: too many levels of symbolic links");
        row("run --in-place -n --like manul.pdf a.pdf", "did you mean \"manual.pdf\"?");
        row("run --in-place -n --page-mode none a.pdf a.pdf", "a.pdf is named twice");
        row("run --bookmarks -o x a.pdf", "did you mean \"--page-mode bookmarks\"?");
        row("run --page-mode none --suffix a/b a.pdf", "--suffix takes a text for file names");
        row("run --page-mode none --suffix new.pdf a.pdf", "between \"manual-\" and \".pdf\"");
        row("run --page-mode none --suffix -new a.pdf", "between \"manual-\" and \".pdf\"");
        row("run --page-mode none -o b.txt a.pdf", "\"b.txt/\" names a folder to be made");
        row("run --page-mode none -o x.pdf a.pdf b.pdf", "-o x.pdf takes one document, not 2");
        row("run --page-mode none --in-place -", "from standard input goes to -o FILE.pdf or -o -");
        row("run --page-mode none -o - --report - -", "standard output takes one of them");
        row("run --page-mode none -o - --files-from - -", "standard input is named more than once");
        row("run --title-from-file-name -o - -", "standard input has no name");
        row("run --view named.json -o - -",
            "the view named.json: a document from standard input has no name");
        row("check --view named.json -", "standard input has no name");
        row("run --like manual.pdf -o manual.pdf a.pdf", "would overwrite what this run reads, manual.pdf");
        row("run --page-mode none --suffix x --in-place a.pdf",
            "-o, --suffix and --in-place exclude each other");
        row("show --jsn a.pdf", "did you mean \"--json\"?");
        row("show", "which documents?");
        row("show --in-place a.pdf",
            "unknown option --in-place; \"quintar run\" has it, \"quintar show\" does not");
        row("check --page-mode none -n a.pdf", "\"quintar run\" has it, \"quintar check\" does not");
        row("configure --output-file x", "did you mean \"--output\"?");
        row("lists manuals", "lists takes no names: manuals");
    }

    void areAnswered()
    {
        const auto [words, answer] = Rows<QString, QByteArray>::current();
        const ProgramRun run(PROGRAM_FILE, words.split(' '), m_folder.path());
        QCOMPARE(run.status, 2);
        QVERIFY2(run.err.contains(answer), run.err);
    }

    void initTestCase()
    {
        WorkFolder::put("a.pdf", PdfBuilder::simple());
        WorkFolder::put("manual.pdf", PdfBuilder::simple());
        WorkFolder::put("folder/a.pdf", PdfBuilder::simple());
        WorkFolder::put("list.txt", "a.pdf\n");
        QVERIFY(QFile::link("round.pdf", "round.pdf"));
        WorkFolder::put("missing.json", R"({"titleIfMissing":true})");
        WorkFolder::put("named.json", R"({"titleFromFileName":true})");
        QVERIFY(QFile::copy(TEST_DATA_DIR "/manuals.xqq", TemporaryHome::actionList("manuals.xqq")));
    }

    void shortOptionsStandForLongOnes()
    {
        const QStringList settings{"--set", "ViewerPrefsCheckBox=1", "--set", "HideMenuBarCheckBox=1"};
        const ProgramRun dry(PROGRAM_FILE, QStringList{"run", "-nqj2", "-o", "out", "a.pdf"} + settings,
                             m_folder.path());
        QCOMPARE(dry.status, 0);
        QCOMPARE(dry.out + dry.err, QByteArray());
        QVERIFY(!QFile::exists("out"));
    }

    // A nightly job mails what is printed.
    void quietMeansNoNotes()
    {
        QVERIFY(QDir(m_folder.path()).mkpath("empty"));
        const QStringList words{"run", "--in-place", "empty", "--set", "LayoutAndMagnCheckBox=0"};
        const ProgramRun loud(PROGRAM_FILE, words, m_folder.path());
        QCOMPARE(loud.err.count("note: "), 2);
        for (const QStringList& each : {words, QStringList{"check", "empty", "--page-mode", "none"}}) {
            const ProgramRun quiet(PROGRAM_FILE, each + QStringList{"-q"}, m_folder.path());
            QCOMPARE(quiet.status, 0);
            QCOMPARE(quiet.out + quiet.err, QByteArray());
        }
    }

    void helpIsFoundInManyWays()
    {
        const auto out = [this](const QStringList& words) {
            const ProgramRun run(PROGRAM_FILE, words, m_folder.path());
            return run.status == 0 ? run.out : QByteArray();
        };
        QVERIFY(out({"run", "--help"}).startsWith("quintar run "));
        QCOMPARE(out({"help", "run"}), out({"run", "-h"}));
        QCOMPARE(out({"help"}), out({"--help"}));
        QVERIFY(out({"run", "--help-all"}).contains("HideToobarsCheckBox"));
    }

private:
    TemporaryHome m_home;
    WorkFolder m_folder;
};

QTEST_GUILESS_MAIN(TestMistakes)
#include "TestMistakes.moc"
