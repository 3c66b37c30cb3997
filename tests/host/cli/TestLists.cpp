// Action lists and favourites by name: "quintar lists", and "quintar run" with the names that it tells.
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/ManualsSettings.h"
#include "support/folders/TemporaryHome.h"
#include "support/program/ProgramRun.h"

#include <QSettings>
#include <QtTest>

#include <unistd.h>

namespace {

using Map = QMap<QString, QVariant>;

void storeList(const QString& file, const QVariant& name, const QStringList& actions = {"Initial View"})
{
    QSettings list(TemporaryHome::actionList(file), QSettings::IniFormat);
    if (name.isValid())
        list.setValue("SequenceName", name);
    for (int number = 0; number < actions.size(); ++number) {
        list.setValue(QString("ActionName%1").arg(number), actions[number]);
        list.setValue(QString("ActionPrefs%1").arg(number), manualsSettings());
    }
}

void storeFavorite(const QString& file, Map settings, const QString& name)
{
    settings.insert("CollectionName", name);
    QSettings(TemporaryHome::favorite(file), QSettings::IniFormat).setValue("ActionPrefs", settings);
}

} // namespace

class TestLists : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home.reset();
        QVERIFY(writeFile(m_home.filePath("a.pdf"), QByteArray::fromStdString(PdfBuilder::simple())));
    }

    void tellsInWords()
    {
        QVERIFY(QFile::copy(TEST_DATA_DIR "/manuals.xqq", TemporaryHome::actionList("manuals.xqq")));
        storeList("two.xqq", "Two", {"Watermark", "Initial View"});
        Map odd{{"LayoutAndMagnCheckBox", true}, {"PageLayoutComboBox", 99}};
        storeFavorite("f.ini", odd, "Odd one");
        const ProgramRun run = quintar({"lists"});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        const QByteArray words = run.out.simplified();
        for (const char* told :
             {"File: manuals.xqq",
              "1. Initial View Navigation tab Bookmarks Panel and Page Page layout One Column",
              "Magnification Fit Width Open to page 2 Hide tool bars no", "Resize window to initial page yes",
              "Open in full screen mode no Show Document Title",
              "Two File: two.xqq 1. Watermark (cannot be run here)", "2. Initial View Navigation tab",
              "Odd one File: f.ini 1. Initial View Navigation tab Page Only",
              "Page layout row 99, which does not exist Magnification unchanged Open to page unchanged",
              "Viewer Preferences unchanged"})
            QVERIFY2(words.contains(told), (QByteArray(told) + " not in " + words).constData());
    }

    void tellsInJson()
    {
        storeList("two_lists.xqq", "two lists", {"Watermark", "Initial View"});
        storeFavorite("f.ini", {{"ActionName", "Watermark"}}, "Another's");
        const QList<QJsonObject> lines = ProgramRun::jsonLines(quintar({"lists", "--json"}).out);
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].value("kind"), QJsonValue("action list"));
        QCOMPARE(lines[0].value("name"), QJsonValue("two lists"));
        QCOMPARE(lines[0].value("category"), QJsonValue());
        QCOMPARE(QFileInfo(lines[0].value("file").toString()),
                 QFileInfo(TemporaryHome::actionList("two_lists.xqq")));
        const QJsonArray actions = lines[0].value("actions").toArray();
        QCOMPARE(actions[0].toObject(), (QJsonObject{{"action", "Watermark"}, {"settings", QJsonValue()}}));
        QCOMPARE(actions[1].toObject().value("settings").toObject(),
                 QJsonObject::fromVariantMap(manualsSettings()));
        QCOMPARE(lines[1].value("kind"), QJsonValue("favourite"));
        QCOMPARE(lines[1].value("actions").toArray()[0].toObject().value("action"), QJsonValue("Watermark"));
    }

    void looksBelowTheFolders()
    {
        const QString top = TemporaryHome::actionList("");
        QVERIFY(QDir().mkpath(top + "Q1/deep") && QDir().mkpath(TemporaryHome::favorite("Q1")));
        storeList("Q1/Q_2.xqq", "Q1/Q 2");
        storeList("Q1/deep/x.xqq", "Deep");
        storeFavorite("Q1/f.ini", manualsSettings(), "Q1/f");
        QVERIFY(QFile::link("..", top + "Q1/up") && QFile::link(".", top + "Q1/deep/here"));
        const ProgramRun run = quintar({"lists"});
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.out.count("File: "), 3);
        for (const char* told : {"File: Q1/Q_2.xqq", "File: Q1/deep/x.xqq", "File: Q1/f.ini"})
            QVERIFY2(run.out.contains(told), run.out);
        for (const QStringList& words : {QStringList{"--list", "Q1/Q 2"}, QStringList{"--list", "Q1/deep/x"},
                                         QStringList{"--list", "Deep"}, QStringList{"--favorite", "Q1/f"}}) {
            const ProgramRun done = quintar(QStringList{"run", "-o", "out", "a.pdf"} + words);
            QVERIFY2(done.status == 0, done.err);
            QVERIFY(QDir(m_home.filePath("out")).removeRecursively());
        }
    }

    // A user who never stored anything need not have the folders either.
    void tellsOfNothing()
    {
        QVERIFY(QDir(m_home.filePath("share")).removeRecursively());
        const ProgramRun run = quintar({"lists"});
        QCOMPARE(run.status, 0);
        QVERIFY2(run.out.count(": none") == 2, run.out);
        QCOMPARE(quintar({"lists", "--json"}).out, QByteArray());
    }

    void namesWhatCannotBeRead()
    {
        storeList("good.xqq", "Good");
        QVERIFY(writeFile(TemporaryHome::actionList("bad.xqq"), "no settings"));
        QVERIFY(QDir().mkpath(TemporaryHome::favorite("folder.ini")));
        QVERIFY(writeFile(TemporaryHome::favorite("large.ini"), "[General]\n") &&
                QFile::resize(TemporaryHome::favorite("large.ini"), 100 << 20));
        const ProgramRun run = quintar({"lists"});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.out.contains("Good"), run.out);
        QVERIFY2(run.err.contains("/bad.xqq: not an action list") &&
                     run.err.contains("/folder.ini: is a directory") &&
                     run.err.contains("/large.ini: too large for a settings file"),
                 run.err);

        QVERIFY(QDir(m_home.filePath("share")).removeRecursively() &&
                writeFile(m_home.filePath("share"), ""));
        const ProgramRun unmade = quintar({"lists"});
        QCOMPARE(unmade.status, 1);
        QVERIFY2(unmade.err.count("share is not a folder") == 2, unmade.err);
    }

    void printsNothingThatATerminalObeys()
    {
        const QString hostile = QString::fromUtf8("\x1b[2J\xc2\x9b"
                                                  "31m\xe2\x80\xae\r\n\a\x7f");
        storeList(hostile + ".xqq", "n" + hostile, {"a" + hostile, "Initial View"});
        Map settings = manualsSettings();
        settings["PageLayoutComboBox"] = "9" + hostile;
        storeFavorite("f.ini", settings, hostile);
        storeFavorite("g.ini", {{"ActionName", hostile}}, hostile);
        QVERIFY(writeFile(TemporaryHome::favorite(hostile + ".ini"), "bad"));
        for (const QStringList& words : {QStringList{"lists"}, QStringList{"lists", "--json"},
                                         QStringList{"run", "--list", "x", "-o", "out", "a.pdf"}}) {
            const ProgramRun run = quintar(words);
            for (const QChar character : QString::fromUtf8(run.out + run.err))
                QVERIFY2(character == '\n' || (character.category() != QChar::Other_Control &&
                                               character.category() != QChar::Other_Format),
                         qPrintable(QString::number(character.unicode(), 16)));
            QVERIFY(run.out.contains("[2J") || run.err.contains("[2J"));
        }
    }

    void runsByName_data()
    {
        const Rows<QStringList> row;
        row("a list's name", {"--list", "For my manuals"});
        row("its file without suffix", {"--list", "manuals_x"});
        row("the same with a space", {"--list", "manuals x"});
        row("its file", {"--list", "manuals_x.xqq"});
        row("a name that a folder has, too", {"--list", "folder"});
        row("a favourite's name", {"--favorite", "Fine & good"});
        row("a favourite's file", {"--favorite", "f"});
    }

    void runsByName()
    {
        const auto [words] = Rows<QStringList>::current();
        storeList("manuals_x.xqq", "For my manuals");
        storeList("folder.xqq", QVariant());
        storeFavorite("f.ini", manualsSettings(), "Fine & good");
        QVERIFY(writeFile(TemporaryHome::actionList("bad.xqq"), "no settings"));
        QVERIFY(QDir().mkpath(m_home.filePath("folder")));
        const ProgramRun run = quintar(QStringList{"run", "-o", "out", "a.pdf"} + words);
        QVERIFY2(run.status == 0, run.err);
        const QJsonObject view = ProgramRun::jsonLines(quintar({"show", "--json", "out/a.pdf"}).out).value(0);
        QCOMPARE(view.value("pageMode"), QJsonValue("UseOutlines"));
    }

    void namesWhatThereIs_data()
    {
        const Rows<QStringList, QStringList> row;
        row("unknown", {"--list", "none"},
            {"none: no such file, and no action list", "\n  Same  (a.xqq)", "\n  bad  (bad.xqq)"});
        row("other case", {"--list", "same"}, {"no action list", "Same"});
        row("ambiguous", {"--list", "Same"}, {"more than one action list", "(a.xqq)", "(b.xqq)"});
        row("no favourites", {"--favorite", "Same"}, {"no favourite in ", "there are none"});
        row("a path is no name", {"--list", "./Same"}, {"./Same: no such file or directory"});
        row("damaged", {"--list", "bad"}, {"bad.xqq: not an action list"});
    }

    void namesWhatThereIs()
    {
        const auto [words, named] = Rows<QStringList, QStringList>::current();
        storeList("a.xqq", "Same");
        storeList("b.xqq", "Same");
        QVERIFY(writeFile(TemporaryHome::actionList("bad.xqq"), "no settings"));
        const ProgramRun run = quintar(QStringList{"run", "-o", "out", "a.pdf"} + words);
        QCOMPARE(run.status, 2);
        for (const QString& text : named)
            QVERIFY2(run.err.contains(text.toUtf8()), run.err);
        QVERIFY(!QFile::exists(m_home.filePath("out")));
    }

    void needsNoFolderForAPath()
    {
        QVERIFY(QDir(m_home.filePath("share")).removeRecursively() &&
                writeFile(m_home.filePath("share"), ""));
        const QStringList run{"run", "-o", "out", "a.pdf"};
        const ProgramRun byPath = quintar(run + QStringList{"--list", TEST_DATA_DIR "/manuals.xqq"});
        QVERIFY2(byPath.status == 0 && !byPath.err.contains("share"), byPath.err);
        const ProgramRun byName = quintar(run + QStringList{"--list", "manuals"});
        QCOMPARE(byName.status, 2);
        QVERIFY2(byName.err.contains("share is not a folder"), byName.err);
    }

    void makesNothingWithoutAPlace_data()
    {
        const Rows<QStringList, QByteArray> row; // what env makes of the home, and why it is none
        row("not set", {"-u", "HOME"}, "there is no home folder: HOME is not set");
        row("empty", {"HOME="}, "there is no home folder: HOME is not set");
        row("everybody's", {"HOME=//"}, "the home folder is /");
        row("missing", {"HOME=" + m_home.filePath("gone")}, "gone does not exist");
        if (geteuid() == 0)
            row("another user's", {"HOME=" + m_home.filePath("theirs")}, "theirs is another user's");
    }

    void makesNothingWithoutAPlace()
    {
        const auto [variables, reason] = Rows<QStringList, QByteArray>::current();
        QVERIFY(QDir().mkpath(m_home.filePath("theirs")));
        QCOMPARE(chown(qPrintable(m_home.filePath("theirs")), geteuid() == 0 ? 65534 : geteuid(), getegid()),
                 0);
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        const QStringList before = QDir("/").entryList(all);
        const QStringList env = QStringList{"-u", "XDG_DATA_HOME", "-u", "XDG_CONFIG_HOME"} + variables +
                                QStringList{PROGRAM_FILE};
        const ProgramRun lists("env", env + QStringList{"lists"});
        QCOMPARE(lists.status, 1);
        QVERIFY2(lists.err.count(reason) == 2, lists.err);
        const ProgramRun run("env",
                             env + QStringList{"run", "--page-mode", "bookmarks", "--in-place", "a.pdf"},
                             m_home.filePath(""));
        QVERIFY2(run.status == 0 && run.err.isEmpty(), run.err);
        QCOMPARE(QDir("/").entryList(all), before);
        QVERIFY(!QFile::exists(m_home.filePath("gone")) && QDir(m_home.filePath("theirs")).isEmpty(all));
    }

private:
    ProgramRun quintar(const QStringList& arguments) const
    {
        return ProgramRun(PROGRAM_FILE, arguments, m_home.filePath(""));
    }

    TemporaryHome m_home;
};

QTEST_GUILESS_MAIN(TestLists)
#include "TestLists.moc"
