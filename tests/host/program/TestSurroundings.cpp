// What the program loads and does where others have prepared the ground.
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/folders/WorkFolder.h"
#include "support/program/ProgramRun.h"

#include <QLibrary>

#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

class TestSurroundings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        m_folder->put("document.pdf", PdfBuilder::simple());
        for (const char* each : {"LD_LIBRARY_PATH", "QT_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH",
                                 "GCONV_PATH", "HOSTILE_MARK"})
            qunsetenv(each);
        qputenv("HOME", m_folder->path("home").toUtf8());
        qputenv("XDG_CONFIG_HOME", m_folder->path("home/.config").toUtf8());
        qputenv("XDG_DATA_HOME", m_folder->path("home/.local").toUtf8());
        qputenv("QT_QPA_PLATFORM", "hostile");
    }

    void loadsNothingFrom_data()
    {
        const Rows<QByteArray, QString> row; // the variable that names the place, and the place
        row("LD_LIBRARY_PATH", "LD_LIBRARY_PATH", "place");
        row("QT_PLUGIN_PATH", "QT_PLUGIN_PATH", "place");
        row("QT_QPA_PLATFORM_PLUGIN_PATH", "QT_QPA_PLATFORM_PLUGIN_PATH", "place/platforms");
        row("GCONV_PATH", "GCONV_PATH", "place");
        row("current folder", "HOSTILE_PLACE", "");
        row("home", "HOSTILE_PLACE", "home/.config/pkcs11/modules");
        row("plug-ins at home", "HOSTILE_PLACE", "home/.local/qt5/plugins");
    }

    void loadsNothingFrom()
    {
        const auto [variable, name] = Rows<QByteArray, QString>::current();
        const fs::path place = m_folder->path(name.toStdString()).toStdString();
        fill(name.endsWith("platforms") ? place.parent_path() : place);
        m_folder->put("home/.config/pkcs11/pkcs11.conf", "user-config: merge\n");
        qputenv(variable, QByteArray::fromStdString(place.string()));
        qputenv("HOSTILE_MARK", m_folder->path("mark").toUtf8());

        const ProgramRun show(PROGRAM_FILE, {"check", "--page-mode", "bookmarks", "document.pdf"},
                              m_folder->path());
        QCOMPARE(show.err, QByteArray());
        QCOMPARE(show.status, 1);
        QList<ProgramRun> windows{{PROGRAM_FILE, {"configure"}, m_folder->path()}};
        if (const fs::path window = fs::path(PROGRAM_FILE).replace_filename("quintar-window");
            fs::exists(window))
            windows.append({QString::fromStdString(window.string()), {}, m_folder->path()});
        for (const ProgramRun& each : windows) {
            QVERIFY2(each.err.contains("a window cannot be shown"), each.err);
            QCOMPARE(each.status, 2);
        }
        QVERIFY(!fs::exists("mark"));
    }

    void modulesLeaveMarks()
    {
        for (const char* module : {HOSTILE_LIBRARY, HOSTILE_PLUGIN}) {
            qputenv("HOSTILE_MARK", m_folder->path("mark").toUtf8());
            QVERIFY(QLibrary(module).load());
            QVERIFY(fs::remove("mark"));
        }
    }

    void refusesRightsOfItsFile()
    {
        if (geteuid() != 0)
            QSKIP("only root can give away a file");
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("leaks cannot be looked for with rights that are not the user's");
#endif
        fs::copy_file(PROGRAM_FILE, "quintar");
        const uid_t nobody = 65534;
        QCOMPARE(chown("quintar", nobody, nobody), 0);
        QCOMPARE(chmod("quintar", 04755), 0);
        const ProgramRun run("./quintar", {"--version"}, m_folder->path());
        QCOMPARE(run.status, 2);
        QVERIFY2(run.err.contains("set-user-ID"), run.err);
    }

private:
    /// Puts a module where each of those lies that the program and the library need, and Qt's plug-ins.
    static void fill(const fs::path& place)
    {
        const auto put = [&](const std::string& module, const std::string& name) {
            fs::create_directories((place / name).parent_path());
            fs::copy_file(module, place / name, fs::copy_options::skip_existing);
        };
        for (const char* user : {PROGRAM_FILE, ENGINE_FILE, PLUGIN_FILE})
            for (const QByteArray& line : ProgramRun("ldd", {user}).out.split('\n'))
                if (const QByteArray name = line.trimmed().split(' ').first(); name.startsWith("lib"))
                    put(HOSTILE_LIBRARY, name.toStdString());
        for (const char* name : {"EditInitialView.so", "lib/quintar/EditInitialView.so", "p11-hostile.so",
                                 "TelvarPDFLibraryCPDylib1311.dylib", "HOSTILE.so"})
            put(HOSTILE_LIBRARY, name);
        put(HOSTILE_PLUGIN, "platforms/libhostile.so");
        put(HOSTILE_PLUGIN, "libhostile.so");
        WorkFolder::put(place / "qt.conf", "[Paths]\nPlugins=" + place.string() + "\n");
        WorkFolder::put(place / "gconv-modules",
                        "module INTERNAL UTF-8// HOSTILE 1\nmodule UTF-8// INTERNAL HOSTILE 1\n");
        WorkFolder::put(place / "hostile.module", "module: " + (place / "p11-hostile.so").string() + "\n");
    }

    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestSurroundings)
#include "TestSurroundings.moc"
