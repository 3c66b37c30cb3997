#include "support/folders/ManualsSettings.h"
#include "support/people/ConfigureFixture.h"
#include "support/program/UsageErrors.h"

#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using host::ConfigureCommand;
using person::pressCancel;
using person::pressOk;
using namespace initialview;

namespace {

const QString data = TEST_DATA_DIR;
const char manualsWords[] =
    "--set LayoutAndMagnCheckBox=true --set NavigationTabComboBox=1 --set PageLayoutComboBox=1 "
    "--set MagnificationComboBox=2 --set OpenToPageSpinBox=2 --set ViewerPrefsCheckBox=true "
    "--set HideToobarsCheckBox=false --set HideMenuBarCheckBox=false --set HideCtrlWindowsCheckBox=false "
    "--set ResizeWinToInitPageCheckBox=true --set CenterWinOnScreenCheckBox=true "
    "--set OpenInFullScreenCheckBox=false --set ShowComboBox=1\n";

/// The program on a terminal where no window can be shown.
ProgramRun configureWithoutDisplay(const QStringList& words, const QString& folder = QString())
{
    return ProgramRun("env",
                      QStringList{"-u", "DISPLAY", "-u", "WAYLAND_DISPLAY", "-u", "QT_QPA_PLATFORM",
                                  PROGRAM_FILE, "configure"} +
                          words,
                      folder);
}

} // namespace

class TestConfigure : public QObject, ConfigureFixture
{
    Q_OBJECT

private:
    /// The settings of the window, stored in it as an action list.
    static CommandRun storedAs(const QString& name)
    {
        return configure({}, [name](QDialog& dialog) {
            person::whenOpens("CSaveAsActionlistDialog", [name](QDialog& save) {
                person::widget<QLineEdit>(save, "actionListNameLineEdit")->setText(name);
                person::widget<QPushButton>(save, "saveButton")->click();
            });
            QMetaObject::invokeMethod(&dialog, "on_QDShowSaveDialog");
            pressOk(dialog);
        });
    }

private slots:
    void init() { begin(); }

    void startsFromAFile_data()
    {
        const Rows<QStringList> row;
        row("action list", {"--list", data + "/manuals.xqq"});
        row("favourite", {"--favorite", data + "/manuals.ini"});
        row("tool settings", {"--tool-settings", data + "/manuals.tsf"});
        row("rather than from a document", {path("a.pdf"), "--tool-settings", data + "/manuals.tsf"});
        row("action list by name", {"--list", "manuals"});
        row("favourite by name", {"--favorite", "manuals"});
    }

    void startsFromAFile()
    {
        const auto [words] = Rows<QStringList>::current();
        QVERIFY(QFile::copy(data + "/manuals.xqq", TemporaryHome::actionList("manuals.xqq")));
        QVERIFY(QFile::copy(data + "/manuals.ini", TemporaryHome::favorite("manuals.ini")));
        const CommandRun run = configure(words);
        QCOMPARE(run.err, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.out, QByteArray(manualsWords));
    }

    void leavesOutWhatIsNotChosen()
    {
        const CommandRun run = configure({}, {{key::PageLayout, -1}});
        QCOMPARE(run.status, 0);
        QVERIFY2(!run.out.contains("PageLayout") && run.out.count("--set ") == 12, run.out);
        QVERIFY2(run.err.contains("PageLayoutComboBox is left out"), run.err);

        putDocument("/OpenAction [ 4 0 R /XYZ 0 792 1.5 ]");
        const CommandRun stored = configure({path("a.pdf"), "-o", path("out.tsf")});
        QVERIFY2(stored.err.contains("MagnificationComboBox is left out"), stored.err);
        const Map settings = this->stored("out.tsf", "ToolSettings").toMap();
        QVERIFY(!settings.contains(key::Magnification) && settings.value(key::OpenToPage) == 2);
    }

    void doesNothingOnCancel()
    {
        QVERIFY(writeFile(path("out.ini"), "old"));
        for (const char* file : {"out.tsf", "out.ini"}) {
            const CommandRun run = configure({path("a.pdf"), "-o", path(file)}, pressCancel);
            QCOMPARE(run.status, 1);
            QCOMPARE(run.out, QByteArray());
            QVERIFY2(run.err.contains("no settings were written"), run.err);
        }
        QVERIFY(bytesOf(path("out.ini")) == "old" && !QFile::exists(path("out.tsf")));
        QCOMPARE(configure({}, pressCancel).err,
                 QByteArray("quintar: the window was closed without OK: no settings were printed\n"));
    }

    void writesEachKindOfFile()
    {
        Map settings = manualsSettings();
        settings[key::OpenToPage] = 3;
        QVERIFY(writeFile(path("My_list.xqq"), "[General]\nActionName0=a\nActionName3=b\n"));
        for (const char* file : {"My_list.xqq", "favourite.ini", "tool.tsf"}) {
            const CommandRun run = configure({"--tool-settings", data + "/manuals.tsf", "-o", path(file)},
                                             {{key::OpenToPage, 3}});
            QCOMPARE(run.err,
                     "quintar: stored: " + path(file).toUtf8() +
                         (QString(file) == "My_list.xqq" ? ", in place of one with 2 entries\n" : "\n"));
            QCOMPARE(run.out, QByteArray());
            QCOMPARE(run.status, 0);
        }
        QCOMPARE(storedKeys(path("My_list.xqq")), storedKeys(data + "/manuals.xqq"));
        QCOMPARE(stored("My_list.xqq", "SequenceName"), QVariant("My_list"));
        QCOMPARE(stored("My_list.xqq", "ActionName0"), QVariant("Initial View"));
        Map inAFavorite = settings;
        inAFavorite["CollectionName"] = "favourite";
        QCOMPARE(stored("favourite.ini", "ActionPrefs").toMap(), inAFavorite);
        const auto icon = stored("favourite.ini", "ActionIcon").value<QImage>();
        QCOMPARE(icon.size(), QSize(42, 42));
        QVERIFY(icon.pixelColor(21, 21) != icon.pixelColor(0, 0));
        QCOMPARE(storedKeys(path("tool.tsf")), QStringList{"ToolSettings"});
        QCOMPARE(stored("tool.tsf", "ToolSettings").toMap(), settings);
        settings.remove(key::ActionName);
        QCOMPARE(stored("My_list.xqq", "ActionPrefs0").toMap(), settings);
    }

    void changesOneEntryOfAList()
    {
        const QString file = path("several.xqq");
        {
            QSettings list(file, QSettings::IniFormat);
            list.setValue("SequenceName", "Several");
            for (const int number : {0, 2, 5}) {
                list.setValue(QString("ActionName%1").arg(number),
                              number == 2 ? "Watermark" : "Initial View");
                list.setValue(QString("ActionPrefs%1").arg(number), Map{{key::OpenToPage, 10 + number}});
            }
        }
        const auto refused = [](const QStringList& words) {
            const auto call = [&words] { CommandRun(ConfigureCommand(), words); };
            return QByteArray::fromStdString(refusalOf(call));
        };
        QVERIFY(refused({"--list", file}).contains("several entries"));
        QVERIFY(refused({"--list", file, "--entry", "2"}).contains("in place 2"));
        QVERIFY(refused({"--list", file, "--entry", "4"}).contains("in place 4"));

        const CommandRun run = configure({"--list", file, "--entry", "3", "-o", file}, [](QDialog& dialog) {
            auto* page = person::widget<QSpinBox>(dialog, "OpenToPageSpinBox");
            QCOMPARE(page->value(), 15);
            page->setValue(77);
            pressOk(dialog);
        });
        QCOMPARE(run.status, 0);
        QCOMPARE(stored("several.xqq", "ActionPrefs5").toMap().value(key::OpenToPage), QVariant(77));
        QCOMPARE(stored("several.xqq", "ActionPrefs0").toMap(), (Map{{key::OpenToPage, 10}}));
        QCOMPARE(stored("several.xqq", "ActionPrefs2").toMap(), (Map{{key::OpenToPage, 12}}));
        QCOMPARE(stored("several.xqq", "ActionName2"), QVariant("Watermark"));
        QCOMPARE(stored("several.xqq", "SequenceName"), QVariant("Several"));
    }

    void changesAFavouriteButNotItsIcon()
    {
        QImage red(42, 42, QImage::Format_ARGB32);
        red.fill(Qt::red);
        {
            QSettings favourite(path("f.ini"), QSettings::IniFormat);
            Map prefs = manualsSettings();
            prefs.insert("CollectionName", "Its name");
            favourite.setValue("ActionPrefs", prefs);
            favourite.setValue("ActionIcon", red);
        }
        QCOMPARE(configure({"--favorite", path("f.ini"), "-o", path("f.ini")}).status, 0);
        QCOMPARE(stored("f.ini", "ActionPrefs").toMap().value("CollectionName"), QVariant("Its name"));
        QCOMPARE(stored("f.ini", "ActionIcon").value<QImage>().pixelColor(5, 5), QColor(Qt::red));
    }

    void keepsLinksAndPermissions()
    {
        QVERIFY(writeFile(path("real.tsf"), ""));
        QCOMPARE(chmod(qPrintable(path("real.tsf")), 0604), 0);
        QCOMPARE(symlink("real.tsf", qPrintable(path("link.tsf"))), 0);
        QCOMPARE(configure({"-o", path("link.tsf")}).status, 0);
        QVERIFY(QFileInfo(path("link.tsf")).isSymLink());
        QVERIFY(!stored("real.tsf", "ToolSettings").toMap().isEmpty());
        struct stat status = {};
        QCOMPARE(stat(qPrintable(path("real.tsf")), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t(0604));
    }

    void takesOutputNamesOfAnyBytes()
    {
        const std::string name = path("odd\n").toStdString() + "\xff.tsf";
        std::string arguments[] = {"configure", "-o", name};
        char* words[] = {arguments[0].data(), arguments[1].data(), arguments[2].data(), nullptr};
        person::whenOpens("CPrefsDialog", pressOk);
        QCOMPARE(ConfigureCommand().run(3, words), 0);
        QCOMPARE(access(name.c_str(), R_OK), 0);
        unlink(name.c_str());
    }

    void tellsWhenItCannotWrite()
    {
        QVERIFY(QDir().mkpath(path("folder")));
        const CommandRun run = configure({"-o", path("folder/out.tsf")}, [this](QDialog& dialog) {
            QDir(path("folder")).removeRecursively();
            pressOk(dialog);
        });
        QCOMPARE(run.status, 1);
        QVERIFY2(run.err.contains("folder/out.tsf: cannot be written: no such file"), run.err);
    }

    void tellsWhatTheWindowStored_data()
    {
        const Rows<QString, QString> row;
        row("a new list", "Q1/Q 2", "stored: the action list %1Q1/Q_2.xqq\n");
        row("an old list", "old", "stored: the action list %1old.xqq, in place of one with 1 entry\n");
        row("a name that leaves", "../x", "not stored: the action list %1../x.xqq: its name leads out");
        row("a name too long", QString(300, 'n'), "xqq: file name too long\n");
        row("below a file", "old.xqq/x", "not stored: the action list %1old.xqq/x.xqq: not a directory\n");
    }

    void tellsWhatTheWindowStored()
    {
        const auto [name, told] = Rows<QString, QString>::current();
        QVERIFY(QFile::copy(data + "/manuals.xqq", TemporaryHome::actionList("old.xqq")));
        const CommandRun run = storedAs(name);
        QCOMPARE(run.status, 0);
        const QString words = told.contains("%1") ? told.arg(TemporaryHome::actionList("")) : told;
        QVERIFY2(run.err.contains(words.toUtf8()), run.err);
    }

    void losesNothingWhereItCannotStore_data()
    {
        const Rows<const char*, const char*, QByteArray> row; // kind and options of what is mounted there
        row("full", "tmpfs", "size=16k,nr_inodes=4", "no space left on device");
        row("read-only", "tmpfs", "size=16k,ro", "read-only file system");
    }

    void losesNothingWhereItCannotStore()
    {
        const auto [kind, options, reason] = Rows<const char*, const char*, QByteArray>::current();
        // Nobody else sees what is mounted, and it goes with this process.
        if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            QSKIP("only root may mount");
        const QByteArray folder = CUtils::GetSequenceFolder().toLocal8Bit();
        const QByteArray plain = QByteArray(options).replace(",ro", "");
        QCOMPARE(mount(kind, folder, kind, 0, plain.constData()), 0);
        QVERIFY(QFile::copy(data + "/manuals.xqq", TemporaryHome::actionList("old.xqq")));
        QFile filler(TemporaryHome::actionList("filler"));
        QVERIFY(filler.open(QIODevice::WriteOnly));
        filler.write(QByteArray(1 << 14, 'x'));
        filler.close();
        if (plain != options)
            QCOMPARE(mount(kind, folder, kind, MS_REMOUNT | MS_RDONLY, nullptr), 0);
        const CommandRun run = storedAs("old");
        const QByteArray old = bytesOf(TemporaryHome::actionList("old.xqq"));
        const int files = QDir(CUtils::GetSequenceFolder()).entryList(QDir::AllEntries | QDir::Hidden).size();
        QCOMPARE(umount(folder), 0);
        QVERIFY2(run.err.contains("not stored: the action list " + folder + "/old.xqq: " + reason), run.err);
        QCOMPARE(old, bytesOf(data + "/manuals.xqq"));
        QCOMPARE(files, 4); // with the folder itself and the one above
    }

    void refusesWithoutADisplay_data()
    {
        const Rows<QStringList, QByteArray> row;
        row("no display", {}, "a window cannot be shown here: ");
        row("no display for a document", {"a.pdf"}, "a window cannot be shown here: ");
        row("other suffix", {"-o", "out.txt"}, "-o takes a file that ends in .xqq (action list)");
        row("no suffix", {"-o", "tsf"}, "-o takes a file that ends in");
        row("missing folder", {"-o", "none/out.tsf"},
            "none/out.tsf cannot be written: no such file or directory");
        row("a folder", {"-o", "folder.tsf"}, "folder.tsf cannot be written: it is not a regular file");
        row("a view that is a folder", {"-o", "folder.json"}, "folder.json cannot be written: it is not");
        row("two outputs", {"-o", "a.tsf", "-o", "b.tsf"}, "-o is given twice");
        row("two documents", {"a.pdf", "b.pdf"}, "configure takes one document, not 2");
        row("two files", {"--list", "a", "--favorite", "b"}, "settings come from one file");
        row("entry of no list", {"--entry", "1"}, "--entry goes with --list");
        row("missing document", {"b.pdf"}, "b.pdf: no such file or folder");
        row("not a document", {"text"}, "text: ");
        row("missing settings", {"--tool-settings", "b.tsf"}, "b.tsf: no such file or directory");
        row("unknown list", {"--list", "b"}, "b: no such file, and no action list in ");
    }

    void refusesWithoutADisplay()
    {
        const auto [words, reason] = Rows<QStringList, QByteArray>::current();
        QVERIFY(writeFile(path("text"), "text") && QDir().mkpath(path("folder.tsf")) &&
                QDir().mkpath(path("folder.json")));
        const ProgramRun run = configureWithoutDisplay(words, path(""));
        QCOMPARE(run.status, 2);
        QCOMPARE(run.out, QByteArray());
        QVERIFY2(run.err.startsWith("quintar: " + reason), run.err);
    }

    void helpsWithoutADisplay()
    {
        const ProgramRun run = configureWithoutDisplay({"--help"});
        QCOMPARE(run.status, 0);
        QVERIFY2(run.out.startsWith("quintar configure manual.pdf\n") &&
                     run.out.contains("Usage: quintar configure"),
                 run.out);
    }
};

QTEST_MAIN(TestConfigure)
#include "TestConfigure.moc"
