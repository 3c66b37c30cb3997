// Documents that take their readers over, and what comes of it.
#include "host/cell/Cell.h"
#include "host/cell/Sanitized.h"
#include "support/Rows.h"
#include "support/documents/PdfBuilder.h"
#include "support/documents/SpecialDocuments.h"
#include "support/folders/WorkFolder.h"

#include <QProcess>

#include <optional>
#include <sstream>
#include <vector>

#include <fcntl.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace host;
namespace fs = std::filesystem;

namespace {

/// A program on a kernel that lacks something.
class Program : public QProcess
{
public:
    enum Lacks { Nothing = 0, Files = 1, Calls = 2 };

    Program(int lacks, const QString& program, const QStringList& arguments) : m_lacks(lacks)
    {
        start(program, arguments);
        if (!waitForFinished(60000))
            kill();
        out = readAllStandardOutput();
        err = readAllStandardError();
    }

    QByteArray out;
    QByteArray err;

protected:
    void setupChildProcess() override
    {
        if (m_lacks == Nothing)
            return;
        prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
        if ((m_lacks & Files) != 0)
            for (const int call : {SCMP_SYS(landlock_create_ruleset), SCMP_SYS(landlock_restrict_self)})
                seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), call, 0);
        if ((m_lacks & Calls) != 0) {
            seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(seccomp), 0);
            seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1,
                             scmp_arg_cmp{0, SCMP_CMP_EQ, PR_SET_SECCOMP, 0});
        }
        if (seccomp_load(filter) != 0)
            _exit(99);
    }

private:
    int m_lacks;
};

QString calls(const char* name)
{
    return QString("did what no document needs (%1)").arg(name);
}

const QString denied = "permission denied";
const QString noLandlock = "the files that workers reach are not limited: this kernel has no Landlock";
const QString noSeccomp = "the system calls that workers make are not limited: this kernel has no seccomp";

} // namespace

class TestCell : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        if (!Cell(Sandbox::Try).state().missing().empty())
            QSKIP(Cell(Sandbox::Try).state().missing().c_str());
        m_folder.emplace();
        qputenv("HOME", m_folder->path().toUtf8());
        m_folder->put(".ssh/id");
        m_program = programBesideTrouble(m_folder->path("installed"));
    }

    /// A document does it in the cell, and outside.
    void keepsDocumentsFrom_data()
    {
        const Rows<QString> row; // why the document fails
        row("reads-key", denied);
        row("writes-outside", denied);
        row("connects", calls("socket"));
        row("forks", calls("clone"));
        row("executes", calls("execve"));
        row("traces", calls("ptrace"));
        row("signals", calls("kill"));
        row("spies", denied);
        row("shares", calls("mmap"));
        row("lends", calls("fchmod"));
        row("grants", denied);
        row("scribbles", denied);
        row("learns", denied);
#if defined(__x86_64__)
        row("switches", calls("a forbidden system call"));
#endif
        row("empties", sanitized ? denied : calls("openat"));
    }

    void keepsDocumentsFrom()
    {
        const auto [reason] = Rows<QString>::current();
        const QString name = QString("1-%1.pdf").arg(QTest::currentDataTag());
        const QString other = name.contains("spies") ? "0-slow.pdf" : "0-good.pdf";
        for (const QString& each : {other, name, QString("2-good.pdf")})
            m_folder->put(each.toStdString(), PdfBuilder::simple());
        const int listener = listenAt("socket");
        const QStringList words{"run",       "--jobs",   "2",      "--page-mode",
                                "bookmarks", "--report", "report", "--sandbox"};
        const QStringList documents{other, name, "2-good.pdf"};

        const Program kept(Program::Nothing, m_program,
                           words + QStringList{"require", "-o", "kept"} + documents);
        QCOMPARE(QString(kept.err), "failed: " + name + ": " + reason + "\n");
        QVERIFY2(kept.out.endsWith("2 changed, 0 unchanged, 1 failed\n"), kept.out);
        QVERIFY(!fs::exists("written"));

        const Program free(Program::Nothing, m_program, words + QStringList{"off", "-o", "free"} + documents);
        close(listener);
        if (geteuid() != 0 && (name.contains("traces") || name.contains("grants")))
            QSKIP("only root may do that here");
        if (name.contains("executes")) // another program, which reads no documents
            QVERIFY2(free.err.contains(": the worker process "), free.err);
        else
            QCOMPARE(QString(free.err),
                     name.contains("empties") ? "failed: " + name + ": the file is empty\n" : QString());
        QCOMPARE(fs::exists("written"), name.contains("writes"));
    }

    /// A result of its own is written into a folder, but nothing else that is there is read, nor is more than
    /// that folder written.
    void reachesNothingBesideAResult_data()
    {
        const Rows<QString, QString> row; // the document, and its result
        row("reads", "1-reads-key.pdf", "result.pdf");
        row("writes", "1-writes-outside.pdf", "not/there/yet/result.pdf");
    }

    void reachesNothingBesideAResult()
    {
        const auto [document, result] = Rows<QString, QString>::current();
        m_folder->put(document.toStdString(), PdfBuilder::simple());
        const auto errors = [&, document = document, result = result](const QString& sandbox) {
            return QString(
                Program(Program::Nothing, m_program,
                        {"run", "--page-mode", "bookmarks", "--sandbox", sandbox, "-o", result, document})
                    .err);
        };
        QCOMPARE(errors("require"), "failed: " + document + ": " + denied + "\n");
        QVERIFY(!fs::exists("written"));
        QCOMPARE(errors("off"), QString());
    }

    void changesNoModeWhereNothingIsWritten()
    {
        m_folder->put("1-bares.pdf", PdfBuilder::simple());
        const auto errors = [&](const QString& sandbox) {
            return QString(
                Program(Program::Nothing, m_program, {"show", "--sandbox", sandbox, "1-bares.pdf"}).err);
        };
        QCOMPARE(errors("require"), "quintar: 1-bares.pdf: " + calls("fchmod") + "\n");
        QCOMPARE(errors("off"), QString());
    }

    void tellsWhatTheKernelLacks_data()
    {
        const Rows<int, QString, QString, QString> row; // what is missing; how two documents fail
        row("files", Program::Files, noLandlock, QString(), calls("socket"));
        row("calls", Program::Calls, noSeccomp, denied, QString());
        row("both", Program::Files | Program::Calls, noLandlock + "; " + noSeccomp, QString(), QString());
    }

    void tellsWhatTheKernelLacks()
    {
        const auto [lacks, missing, reading, connecting] = Rows<int, QString, QString, QString>::current();
        m_folder->put("1-reads-key.pdf", PdfBuilder::simple());
        m_folder->put("2-connects.pdf", PdfBuilder::simple());
        const int listener = listenAt("socket");
        const auto show = [&, lacks = lacks](const QString& sandbox) {
            return Program(lacks, m_program,
                           {"show", "--sandbox", sandbox, "--table", "1-reads-key.pdf", "2-connects.pdf"});
        };
        const auto failure = [](const QString& name, const QString& reason) {
            return reason.isEmpty() ? QString() : "quintar: " + name + ": " + reason + "\n";
        };
        const Program tried(show("try"));
        close(listener);
        QCOMPARE(QString(tried.err), "quintar: note: " + missing + "\n" +
                                         failure("1-reads-key.pdf", reading) +
                                         failure("2-connects.pdf", connecting));
        const Program required(show("require"));
        QCOMPARE(required.exitCode(), 2);
        QVERIFY2(QString(required.err).contains(missing) && required.out.isEmpty(), required.err);
    }

    void takesEveryVersionOfLandlock()
    {
        m_folder->put("in/file");
        for (int version = 1; version <= Landlock::version(); ++version) {
            const pid_t child = fork();
            if (child == 0)
                _exit(reachesOnlyWhatIsAllowed(version) ? 0 : 1);
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            QCOMPARE(status, 0);
        }
    }

    void keepsNoDescriptorButThoseNamed()
    {
        const pid_t child = fork();
        if (child == 0) {
            const int kept = open("/dev/null", O_RDONLY);
            const int other = open("/dev/null", O_RDONLY);
            Cell(Sandbox::Require).enter({kept, -1}, [](int) {});
            char byte = 0;
            const bool silent = read(STDIN_FILENO, &byte, 1) == 0;
            _exit(silent && read(kept, &byte, 1) == 0 && read(other, &byte, 1) < 0 ? 0 : 1);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
    }

    void showsNobodyAPassword_data()
    {
        const Rows<QString> row;
        row("locked in", "require");
        row("free", "off");
    }

    void showsNobodyAPassword()
    {
        const auto [sandbox] = Rows<QString>::current();
        m_folder->put("1-slow.pdf", PdfBuilder::simple());
        m_folder->put("2-hang.pdf", PdfBuilder::simple());
        const QStringList words{"run",       "--page-mode", "bookmarks",  "--in-place", "--report",
                                "report",    "--jobs",      "1",          "--password", "n0b0dys",
                                "--sandbox", sandbox,       "1-slow.pdf", "2-hang.pdf"};
        const pid_t program = started(words);
        QTRY_VERIFY(WorkFolder::contentOf("report").find("1-slow.pdf") != std::string::npos);
        std::istringstream workers(WorkFolder::contentOf("/proc/" + std::to_string(program) + "/task/" +
                                                         std::to_string(program) + "/children"));
        int count = 0;
        for (pid_t process = program; process != 0; ++count) {
            const std::string line = WorkFolder::contentOf("/proc/" + std::to_string(process) + "/cmdline");
            QVERIFY(line.find("--password") != std::string::npos &&
                    line.find("n0b0dys") == std::string::npos);
            process = 0;
            workers >> process;
        }
        QCOMPARE(count, 2);
        ::kill(program, SIGSEGV);
        int status = 0;
        QCOMPARE(waitpid(program, &status, 0), program);
        QVERIFY(WIFSIGNALED(status) && !WCOREDUMP(status));
        QVERIFY(WorkFolder::contentOf("report").find("n0b0dys") == std::string::npos);
    }

private:
    /// As from a shell that lets programs leave cores.
    pid_t started(const QStringList& words) const
    {
        std::vector<QByteArray> arguments{m_program.toUtf8()};
        for (const QString& word : words)
            arguments.push_back(word.toUtf8());
        std::vector<char*> pointers;
        pointers.reserve(arguments.size() + 1);
        for (QByteArray& each : arguments)
            pointers.push_back(each.data());
        pointers.push_back(nullptr);
        const pid_t child = fork();
        if (child != 0)
            return child;
        const rlimit unlimited{RLIM_INFINITY, RLIM_INFINITY};
        setrlimit(RLIMIT_CORE, &unlimited);
        execv(pointers[0], pointers.data());
        _exit(127);
    }

    static int listenAt(const std::string& name)
    {
        fs::remove(name);
        sockaddr_un address{AF_UNIX, {}};
        (fs::current_path() / name).string().copy(address.sun_path, sizeof address.sun_path - 1);
        const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
            listen(listener, 5) != 0)
            qFatal("nobody listens");
        return listener;
    }

    static bool opens(const char* path, int flags)
    {
        const int file = open(path, flags | O_CLOEXEC, 0600);
        return file >= 0 && close(file) == 0;
    }

    static bool reachesOnlyWhatIsAllowed(int version)
    {
        Landlock rules(version);
        rules.allow("in", Landlock::Access::Write);
        rules.allow(".ssh/id", Landlock::Access::Read);
        rules.allow("not there", Landlock::Access::Read);
        prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        return rules.enter() && opens("in/file", O_WRONLY | O_TRUNC) && !opens("in/file", O_RDONLY) &&
               opens("in/new", O_WRONLY | O_CREAT) && opens(".ssh/id", O_RDONLY) &&
               !opens(".ssh/id", O_RDWR) && !opens(".ssh/id2", O_RDWR | O_CREAT) &&
               !opens("/proc/self/status", O_RDONLY) && !opens(".ssh", O_RDONLY) &&
               rename("in/new", "in/newer") == 0 && rename("in/newer", "newer") != 0;
    }

    std::optional<WorkFolder> m_folder;
    QString m_program;
};

QTEST_GUILESS_MAIN(TestCell)
#include "TestCell.moc"
