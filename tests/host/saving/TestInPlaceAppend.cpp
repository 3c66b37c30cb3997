#include "host/files/FileState.h"
#include "host/plan/Placement.h"
#include "host/saving/DocumentLock.h"
#include "host/saving/InPlaceAppend.h"
#include "host/saving/InPlaceFile.h"
#include "support/Rows.h"
#include "support/folders/FileStatus.h"
#include "support/folders/WorkFolder.h"

#include <QtTest>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <thread>
#include <vector>

using namespace host;
namespace fs = std::filesystem;

namespace {

const std::string name = "a.pdf";
const std::string old = "the document\n%%EOF\n";
const std::string begin = "1 0 obj\n<< >>\nendobj\nxref\ntrailer\n\n\n";
const std::string update = begin + "startxref\n33\n%%EOF\n";

/// What the next calls meet: an errno, 0 for nothing, or that only half of what is to be written is.
using Problems = std::map<std::string, std::deque<int>>;
const int half = -1;

Problems problems;
int flushes = 0;
std::vector<off_t> cuts;
std::function<void()> beforeFirstFlush;
long fileSystem = 0;

int nextProblem(const char* call)
{
    std::deque<int>& planned = problems[call];
    errno = planned.empty() ? 0 : planned.front();
    if (!planned.empty())
        planned.pop_front();
    return errno;
}

struct stat oldState()
{
    WorkFolder::put(name, old);
    const struct timespec times[] = {{1, 0}, {123456789, 123456789}};
    utimensat(AT_FDCWD, name.c_str(), times, 0);
    return statusOf(name);
}

} // namespace

extern "C" {
ssize_t __real_write(int file, const void* bytes, std::size_t size);
ssize_t __wrap_write(int file, const void* bytes, std::size_t size)
{
    const int problem = nextProblem("write");
    return problem > 0 ? -1 : __real_write(file, bytes, problem == half ? (size + 1) / 2 : size);
}

int __wrap_fdatasync(int)
{
    if (flushes++ == 0 && beforeFirstFlush)
        beforeFirstFlush();
    return nextProblem("flush") > 0 ? -1 : 0;
}

int __real_ftruncate(int file, off_t size);
int __wrap_ftruncate(int file, off_t size)
{
    cuts.push_back(size);
    return nextProblem("cut") > 0 ? -1 : __real_ftruncate(file, size);
}

int __real_fstatfs(int file, struct statfs* system);
int __wrap_fstatfs(int file, struct statfs* system)
{
    const int result = __real_fstatfs(file, system);
    system->f_type = fileSystem != 0 ? fileSystem : system->f_type;
    return result;
}
}

class TestInPlaceAppend : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        problems.clear();
        flushes = 0;
        cuts.clear();
        beforeFirstFlush = {};
        fileSystem = 0;
        m_before = oldState();
    }
    void cleanup() { m_folder.reset(); }

    void appendsInTwoStepsOrCutsBack_data()
    {
        // The failure, 0 for none, the cuts, and whether power may bring the change back.
        const Rows<Problems, int, std::vector<off_t>, bool> row;
        const auto first = static_cast<off_t>(old.size());
        const auto second = static_cast<off_t>((old + begin).size());
        row("nothing happens", {}, 0, {}, false);
        row("interrupted", {{"write", {EINTR, 0, EINTR}}, {"flush", {EINTR, EINTR, 0, EINTR}}}, 0, {}, false);
        row("in pieces", {{"write", {half, half, 0, half}}}, 0, {}, false);
        row("nothing fits", {{"write", {ENOSPC}}}, ENOSPC, {}, false);
        row("half of it fits", {{"write", {half, ENOSPC}}}, ENOSPC, {first}, false);
        row("the first flush fails", {{"flush", {EIO}}}, EIO, {first}, false);
        row("no flush succeeds", {{"flush", {EIO, EIO, EIO}}}, EIO, {first}, true);
        row("the last lines do not fit", {{"write", {0, EDQUOT}}}, EDQUOT, {first}, false);
        row("half of the last lines fits", {{"write", {0, half, EFBIG}}}, EFBIG, {second, first}, false);
        row("the last flush fails", {{"flush", {0, EIO}}}, EIO, {second, first}, false);
        row("no further flush succeeds", {{"flush", {0, EIO, EIO}}}, EIO, {second, first}, true);
        row("cutting is interrupted", {{"flush", {0, EIO, EINTR}}, {"cut", {EINTR, 0, EINTR}}}, EIO,
            {second, second, first, first}, false);
    }

    void appendsInTwoStepsOrCutsBack()
    {
        const auto [planned, failure, expected, isUncertain] =
            Rows<Problems, int, std::vector<off_t>, bool>::current();
        problems = planned;
        const InPlaceAppend::Outcome outcome = append();
        QCOMPARE(outcome.problem.text, failure == 0 ? std::string() : systemError(failure));
        QCOMPARE(outcome.aftermath.find("after a power failure") != std::string::npos, isUncertain);
        QCOMPARE(outcome.aftermath.empty() && outcome.note.empty(), !isUncertain);
        QCOMPARE(WorkFolder::contentOf(name), failure == 0 ? old + update : old);
        QCOMPARE(cuts, expected);
        QVERIFY(failure == 0 || isSameState(statusOf(name), m_before));
    }

    void flushesTheBeginBeforeTheLastLines()
    {
        beforeFirstFlush = [] { QCOMPARE(WorkFolder::contentOf(name), old + begin); };
        QVERIFY(append().isAppended());
        QCOMPARE(flushes, 2);
    }

    void tellsWhatItCannotCutBack()
    {
        problems = {{"flush", {EIO}}, {"cut", {EPERM}}};
        const InPlaceAppend::Outcome begun = append();
        QVERIFY(begun.aftermath.find("left behind its end") != std::string::npos);
        QCOMPARE(WorkFolder::contentOf(name), old + begin);

        m_before = oldState();
        problems = {{"flush", {0, EIO}}, {"cut", {EPERM, EPERM}}};
        const InPlaceAppend::Outcome ended = append();
        QVERIFY(ended.isAppended());
        QVERIFY(ended.note.find("may not survive a power failure") != std::string::npos);
        QCOMPARE(WorkFolder::contentOf(name), old + update);
    }

    void leavesWhatOthersWrite_data()
    {
        const Rows<std::function<void()>, int, bool> row; // what the flush meets, and whether the begin stays
        const auto rewrite = [] { WorkFolder::put(name, std::string(100, '#')); };
        const auto changeUnseen = [] {
            const struct stat before = statusOf(name);
            std::fstream(name).seekp(3).put('#');
            std::this_thread::sleep_for(std::chrono::milliseconds(20)); // what the kernel's clock can tell
            const std::array<struct timespec, 2> times{before.st_atim, before.st_mtim};
            QCOMPARE(utimensat(AT_FDCWD, name.c_str(), times.data(), 0), 0);
        };
        const auto extend = [] { std::ofstream(name, std::ios::app) << "more"; };
        const auto replace = [] {
            fs::rename(name, "backup");
            WorkFolder::put(name, "new");
        };
        for (const int problem : {0, EIO}) {
            const QString failure = problem == 0 ? "" : ", and a failure";
            row("written anew" + failure, rewrite, problem, false);
            row("extended" + failure, extend, problem, true);
            row(
                "shortened" + failure, [] { fs::resize_file(name, 5); }, problem, false);
            row(
                "a byte changed" + failure, [] { std::fstream(name).seekp(3).put('#'); }, problem, true);
            row("a byte changed, and the time set back" + failure, changeUnseen, problem, true);
            row("replaced" + failure, replace, problem, false);
        }
    }

    void leavesWhatOthersWrite()
    {
        const auto [write, problem, isLeft] = Rows<std::function<void()>, int, bool>::current();
        std::string left;
        beforeFirstFlush = [&, write = write] {
            write();
            left = WorkFolder::contentOf(name);
        };
        problems = {{"flush", {problem}}};
        const InPlaceAppend::Outcome outcome = append();
        QCOMPARE(outcome.whole().text.find("left behind its end") != std::string::npos, isLeft);
        QCOMPARE(WorkFolder::contentOf(name), left);
        const bool isMoved = fs::exists("backup"); // and nobody else has written to it
        QCOMPARE(cuts.size(), isMoved ? 1u : 0u);
        QVERIFY(!isMoved || WorkFolder::contentOf("backup") == old);
        QVERIFY(outcome.whole().text.find(isMoved && problem != 0
                                              ? systemError(problem)
                                              : "changed by another program") != std::string::npos);
    }

    void refusesWhatIsNotAsItWasRead()
    {
        std::ofstream(name, std::ios::app) << "more";
        QVERIFY(append().problem.text.find("changed by another program") != std::string::npos);
        QCOMPARE(WorkFolder::contentOf(name), old + "more");
    }

    // A worker may end at any moment.
    void settlesWhatAWorkerBegan()
    {
        DocumentResult expected{Status::Changed, Saved::AppendedInPlace};
        expected.stateBefore = "known";
        const Placement noted(expected, m_before, update);
        const auto settled = [&](const std::string& behind) {
            std::ofstream(name, std::ios::app) << behind;
            const std::optional<Placement> placement = Placement::fromRecord(noted.toRecord());
            return placement.value().settle(name, {ReasonCode::Crashed, "it crashed"}, true);
        };
        for (std::size_t size = 0; size < update.size(); ++size) {
            QVERIFY(!settled(update.substr(0, size)));
            QVERIFY(isSameState(statusOf(name), m_before));
            QCOMPARE(WorkFolder::contentOf(name), old);
        }
        const auto changed = settled(update);
        QCOMPARE(changed.value().status, Status::Changed);
        QCOMPARE(changed.value().outputState, stateOf(name));
        QVERIFY(changed.value().note.find("it crashed") != std::string::npos);
        QCOMPARE(WorkFolder::contentOf(name), old + update);
        QCOMPARE(settled("more").value().status, Status::Failed);
        QCOMPARE(WorkFolder::contentOf(name), old + update + "more");
    }

    void changesInPlaceWhereThatIsSafe()
    {
        QVERIFY(InPlaceFile(name).isSuited());
        fileSystem = NFS_SUPER_MAGIC;
        QVERIFY(!InPlaceFile(name).isSuited());
        fileSystem = 0;
        fs::create_hard_link(name, "other.pdf");
        QVERIFY(!InPlaceFile(name).isSuited());
        fs::remove("other.pdf");
        fs::create_symlink(name, "link.pdf");
        QCOMPARE(mkfifo("pipe.pdf", 0600), 0);
        for (const char* unsuited : {"link.pdf", "pipe.pdf", ".", "missing.pdf"})
            QVERIFY(!InPlaceFile(unsuited).isSuited());
    }

    void waitsForOtherRuns()
    {
        std::optional<InPlaceFile> other(name);
        const InPlaceFile own(name);
        QCOMPARE(lockDocument(other->get()), DocumentLock::Taken);
        QCOMPARE(lockDocument(own.get(), std::chrono::milliseconds(20)), DocumentLock::Held);
        std::thread ending([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            other.reset();
        });
        QCOMPARE(lockDocument(own.get()), DocumentLock::Taken);
        ending.join();
        QCOMPARE(lockDocument(-1), DocumentLock::Unavailable);
    }

private:
    InPlaceAppend::Outcome append()
    {
        const InPlaceFile file(name);
        return InPlaceAppend(file, m_before, update).perform();
    }

    struct stat m_before = {};
    std::optional<WorkFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestInPlaceAppend)
#include "TestInPlaceAppend.moc"
