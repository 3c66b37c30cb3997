// Reads the files that users run, as the linker has left them.
#include "support/Rows.h"
#include "support/folders/WorkFolder.h"
#include "support/program/ProgramRun.h"

namespace fs = std::filesystem;

namespace {

QByteArray readelf(const QStringList& options, const QString& file)
{
    return ProgramRun("readelf", options + QStringList{"--wide", file}).out;
}

QByteArray lineWith(const QByteArray& text, const QByteArray& word)
{
    for (const QByteArray& line : text.split('\n'))
        if (line.contains(word))
            return line.simplified();
    return {};
}

} // namespace

class TestFinishedFiles : public QObject
{
    Q_OBJECT

private slots:
    void areHardened_data()
    {
        const Rows<QString, bool, bool> row; // the file, whether it is a program, and large
        row("program", PROGRAM_FILE, true, true);
        row("library", ENGINE_FILE, false, true);
        row("plug-in", PLUGIN_FILE, false, true);
        const fs::path folder = fs::path(PROGRAM_FILE).parent_path(); // these may be left out of a build
        for (const char* name : {"quintar-window", "../lib/quintar/quintar-render"})
            if (fs::exists(folder / name))
                row(name, QString::fromStdString((folder / name).string()), true, false);
    }

    void areHardened()
    {
        const auto [file, isProgram, isLarge] = Rows<QString, bool, bool>::current();
        const QByteArray dynamic = readelf({"--dynamic"}, file);
        const QByteArray segments = readelf({"--program-headers"}, file);
        QVERIFY2(lineWith(segments, "GNU_STACK").contains(" RW "), segments);
        QVERIFY2(segments.contains("DYN"), segments);
        QCOMPARE(lineWith(dynamic, "(FLAGS_1)").contains("PIE"), isProgram);
        // LD_LIBRARY_PATH comes before the newer kind of run path, and behind the older.
        QCOMPARE(dynamic.contains("(RPATH)"), isProgram);
        QVERIFY2(!dynamic.contains("(RUNPATH)"), dynamic);
        if (!RELEASE)
            QSKIP("the rest holds for what users run");

        QVERIFY2(segments.contains("GNU_RELRO"), segments);
        QVERIFY2(lineWith(dynamic, "(FLAGS_1)").contains("NOW"), dynamic);
        const QByteArray symbols = readelf({"--dyn-syms"}, file);
        QVERIFY2(symbols.contains("__stack_chk_fail"), symbols);
        QVERIFY2(!isLarge || symbols.contains("cpy_chk") || symbols.contains("printf_chk") ||
                     symbols.contains("read_chk"),
                 symbols);
#ifdef __x86_64__
        const std::string bytes = WorkFolder::contentOf(file.toStdString());
        QVERIFY(QByteArray::fromStdString(bytes).count(QByteArray("\xf3\x0f\x1e\xfa")) >
                (isLarge ? 500 : 0));                       // endbr64
        const std::string probe("\x48\x83\x0c\x24\x00", 5); // orq $0, (%rsp), in large frames
        QVERIFY(!isProgram || !isLarge ||
                bytes.find(probe) != std::string::npos); // the others may have no large frames
#endif
    }
};

QTEST_GUILESS_MAIN(TestFinishedFiles)
#include "TestFinishedFiles.moc"
