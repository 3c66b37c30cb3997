#include "host/files/FileDescriptor.h"
#include "host/saving/FileAttributes.h"
#include "host/saving/SafeOutput.h"
#include "support/Rows.h"
#include "support/folders/WorkFolder.h"

#include <QtTest>

#include <climits>
#include <cstdio>
#include <deque>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace host;
namespace fs = std::filesystem;

namespace {

/// What the next flushes and the next folder made meet: an errno, 0 for nothing.
std::deque<int> flushProblems;
int folderProblem = 0;
int fileSystemFlushes = 0;
int exchangesLeft = 0; ///< Before they fail.
std::string removedBehindExchange;

} // namespace

extern "C" {
int __real_fsync(int file);
int __wrap_fsync(int file)
{
    errno = flushProblems.empty() ? 0 : flushProblems.front();
    if (!flushProblems.empty())
        flushProblems.pop_front();
    return errno != 0 ? -1 : __real_fsync(file);
}

int __wrap_syncfs(int)
{
    ++fileSystemFlushes;
    return 0;
}

int __real_renameat2(int oldFolder, const char* old, int newFolder, const char* now, unsigned flags);
int __wrap_renameat2(int oldFolder, const char* old, int newFolder, const char* now, unsigned flags)
{
    errno = EIO;
    if (flags == RENAME_EXCHANGE && exchangesLeft-- <= 0)
        return -1;
    const int result = __real_renameat2(oldFolder, old, newFolder, now, flags);
    fs::remove(std::exchange(removedBehindExchange, {}));
    return result;
}

int __real_mkdir(const char* path, mode_t mode);
int __wrap_mkdir(const char* path, mode_t mode)
{
    errno = folderProblem;
    return folderProblem != 0 ? -1 : __real_mkdir(path, mode);
}
}

class TestSafeOutput : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        flushProblems.clear();
        folderProblem = fileSystemFlushes = 0;
        exchangesLeft = INT_MAX;
    }
    void cleanup() { m_folder.reset(); }

    void replacesOnlyWhenCommitted()
    {
        WorkFolder::put("target", "old");
        const std::string temporary = SafeOutput::temporaryNameFor("target");
        {
            SafeOutput output("target", temporary);
            WorkFolder::put(temporary, "new");
        }
        QCOMPARE(WorkFolder::contentOf("target"), std::string("old"));
        QVERIFY(!fs::exists(temporary));
        for (const bool flush : {false, true}) {
            QCOMPARE(SafeOutput::makeFolder(SafeOutput::folderOf("deep/er/target")).text, std::string());
            QCOMPARE(replace("deep/er/target", flush), std::string());
            QCOMPARE(WorkFolder::contentOf("deep/er/target"), std::string("new"));
        }
        fs::create_directories("folder/inside");
        QCOMPARE(replace("folder", false), std::string("folder cannot be written: is a directory"));
    }

    // Another program may be there between the last look and the rename.
    void givesOthersTheirPlaceBack()
    {
        for (const bool isChanged : {false, true}) {
            WorkFolder::put("target", "old");
            struct stat asRead;
            QCOMPARE(stat("target", &asRead), 0);
            const std::string temporary = SafeOutput::temporaryNameFor("target");
            WorkFolder::put(temporary, "new");
            SafeOutput output("target", temporary);
            output.replaceOnly(asRead);
            const auto change = [&](const struct stat&, const std::string&) {
                if (isChanged)
                    WorkFolder::put("target", "theirs");
            };
            const auto outcome = output.commit(FileAttributes::ofNewFile(), true, change);
            QCOMPARE(outcome.problem.code, isChanged ? ReasonCode::ChangedMeanwhile : ReasonCode::None);
            QCOMPARE(WorkFolder::contentOf("target"), std::string(isChanged ? "theirs" : "new"));
            QVERIFY(isChanged || !fs::exists(temporary));
        }
    }

    // What others have written stays, whatever goes wrong, and also behind the next run.
    void keepsWhatCannotBeGivenBack_data()
    {
        const Rows<bool, int>
            row; // whether the new file is taken away at once, and the exchanges that succeed
        row("no second exchange", false, 1);
        row("nothing to exchange with", true, INT_MAX);
    }

    void keepsWhatCannotBeGivenBack()
    {
        const auto [isRemoved, exchanges] = Rows<bool, int>::current();
        WorkFolder::put("target", "old");
        struct stat asRead;
        QCOMPARE(stat("target", &asRead), 0);
        const std::string temporary = SafeOutput::temporaryNameFor("target");
        WorkFolder::put(temporary, "new");
        SafeOutput::Outcome outcome;
        {
            SafeOutput output("target", temporary);
            output.replaceOnly(asRead);
            removedBehindExchange = isRemoved ? "target" : "";
            exchangesLeft = exchanges;
            outcome =
                output.commit(FileAttributes::ofNewFile(), true, [](const struct stat&, const std::string&) {
                    WorkFolder::put("target", "theirs");
                });
        }
        SafeOutput::removeLeftovers(".");
        QVERIFY(!fs::exists(temporary));
        if (isRemoved) {
            QCOMPARE(outcome.problem.code, ReasonCode::ChangedMeanwhile);
            QCOMPARE(WorkFolder::contentOf("target"), std::string("theirs"));
            return;
        }
        QCOMPARE(outcome.problem.code, ReasonCode::None);
        QCOMPARE(WorkFolder::contentOf("target"), std::string("new"));
        const std::size_t place = outcome.note.rfind("is kept as ");
        QVERIFY(place != std::string::npos);
        QCOMPARE(WorkFolder::contentOf(outcome.note.substr(place + 11)), std::string("theirs"));
    }

    // Only what is as it was is called failed.
    void tellsOfAFolderThatCannotBeFlushed()
    {
        flushProblems = {EIO};
        QCOMPARE(replace("target", true), std::string("target cannot be written: input/output error"));
        QVERIFY(!fs::exists("target"));
        flushProblems = {0, EIO};
        QCOMPARE(replace("target", true),
                 std::string("note: it may not survive a power failure: its folder cannot be flushed: "
                             "input/output error"));
        QCOMPARE(WorkFolder::contentOf("target"), std::string("new"));
        QCOMPARE(fileSystemFlushes, 0);
        flushProblems = {EINTR, 0, EINTR, EINTR, 0};
        QCOMPARE(replace("target", true), std::string());
        QVERIFY(flushProblems.empty());
        flushProblems = {0, EINVAL};
        QCOMPARE(replace("target", true), std::string());
        QCOMPARE(fileSystemFlushes, 1);
    }

    void replacesInAFolderThatCannotBeRead()
    {
        QCOMPARE(chmod(".", 0711), 0);
        fs::create_directory("shut");
        WorkFolder::put("shut/target", "old");
        const pid_t child = fork();
        if (child == 0) {
            if (geteuid() == 0 &&
                (chown("shut", 65534, 65534) != 0 || chown("shut/target", 65534, 65534) != 0 ||
                 setgroups(0, nullptr) != 0 || setgid(65534) != 0 || setuid(65534) != 0))
                _exit(3);
            chmod("shut", 0300);
            const bool replaced = replace("shut/target", true).empty() && fileSystemFlushes == 1;
            _exit(replaced && WorkFolder::contentOf("shut/target") == "new" ? 0 : 1);
        }
        int status = -1;
        QCOMPARE(waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
    }

    void tellsWhyAFolderCannotBeMade()
    {
        folderProblem = EROFS;
        QCOMPARE(SafeOutput::makeFolder("new").text,
                 std::string("the folder new cannot be made: read-only file system"));
        folderProblem = 0;
        WorkFolder::put("file");
        QCOMPARE(SafeOutput::makeFolder("file/new").text, std::string("file is not a folder"));
    }

    void removesWhatEndedProcessesLeft()
    {
        const pid_t child = fork();
        if (child == 0) {
            std::ofstream("name") << SafeOutput::temporaryNameFor("target");
            std::ofstream(SafeOutput::temporaryNameFor("target")) << "unfinished";
            _exit(0);
        }
        QCOMPARE(waitpid(child, nullptr, 0), child);
        const std::string ended =
            WorkFolder::contentOf("name").substr(0, WorkFolder::contentOf("name").rfind('-'));
        const std::string running = SafeOutput::temporaryNameFor("target");
        const std::string stranger = "./.quintar-0123456789abcdef-1-1";
        const std::string oldStranger = "./.quintar-0123456789abcdef-1-2";
        for (const std::string& name : {running, stranger, oldStranger, std::string(".quintarfile")})
            WorkFolder::put(name);
        WorkFolder::put(".quintar-notes"); // somebody's own
        const timespec old[2] = {{1, 0}, {1, 0}};
        for (const char* name : {oldStranger.c_str(), ".quintar-notes"})
            QCOMPARE(utimensat(AT_FDCWD, name, old, 0), 0);
        fs::create_symlink("nowhere", ".quintar-link");
        SafeOutput::removeLeftovers(".");
        QStringList left;
        for (const fs::directory_entry& entry : fs::directory_iterator("."))
            if (entry.path().string().find(".quintar") != std::string::npos)
                left += QString::fromStdString(entry.path().string());
        left.sort();
        QStringList wanted{QString::fromStdString(running), QString::fromStdString(stranger),
                           "./.quintar-link", "./.quintar-notes", "./.quintarfile"};
        wanted.sort();
        QCOMPARE(left, wanted);
        QVERIFY(ended.find(".quintar-") != std::string::npos);
    }

private:
    /// Puts "new" in the target's place. \returns the problem or the note.
    static std::string replace(const std::string& target, bool flush)
    {
        const std::string temporary = SafeOutput::temporaryNameFor(target);
        SafeOutput output(target, temporary);
        WorkFolder::put(temporary, "new");
        const FileDescriptor like = openRegularFile(temporary);
        const SafeOutput::Outcome outcome =
            output.commit(FileAttributes(like.get(), FileAttributes::Take::All), flush);
        return !outcome.problem && !outcome.note.empty() ? "note: " + outcome.note : outcome.problem.text;
    }

    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestSafeOutput)
#include "TestSafeOutput.moc"
