#include "host/cell/Cell.h"
#include "host/cell/Sanitized.h"
#include "host/workers/RunControl.h"
#include "host/workers/SharedMemory.h"
#include "host/workers/WorkerPool.h"
#include "host/workers/WorkerSlot.h"
#include "support/Rows.h"

#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstring>

using namespace host;
using Habit = std::function<bool(int)>; // works at a piece, and tells whether the worker is worn out then

namespace {

const int pieces = 200;

WorkerSlot* slotInUse = nullptr;
std::vector<int> answered; // by this worker
const SharedMemory<std::array<std::atomic<bool>, pieces>> heard;

void waitUntilHeard()
{
    for (const int piece : answered)
        while (!(*heard)[static_cast<std::size_t>(piece)])
            usleep(1000);
}

bool runOutOfMemory()
{
    throw std::bad_alloc();
}

/// Which no limit of data counts.
bool takesMemoryAsStack()
{
    return mmap(nullptr, std::size_t{2} << 30, PROT_READ | PROT_WRITE,
                MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_GROWSDOWN, -1, 0) != MAP_FAILED;
}

} // namespace

struct FakeWorker : Worker
{
    explicit FakeWorker(Habit habit) : m_habit(std::move(habit)) {}
    Answer answer(std::size_t piece, WorkerSlot& slot) override
    {
        slotInUse = &slot;
        const bool last = m_habit(int(piece));
        answered.push_back(int(piece));
        // Long ones go around the ring, and wait for room in it.
        return {"did it" + std::string(piece % 3 * 50'000, ' '), last};
    }
    Habit m_habit;
};

class TestWorkerPool : public QObject
{
    Q_OBJECT

private slots:
    void endsEveryPieceOnce_data()
    {
        // How each so-manieth piece ends; the others are quick.
        const Rows<unsigned, std::string, Habit> row;
        const std::string killed = "the worker process crashed on it: Killed";
        row("slow", 50, "did it", [](int) { return usleep(20'000) != 0; });
        row("wearing", 20, "did it", [](int) { return true; });
        row("refused", 50, "not this", [](int) -> bool { throw std::runtime_error("not this"); });
        row("crashing", 50, killed, [](int) { return raise(SIGKILL) != 0; });
        row("all crashing", 1, killed, [](int) { return raise(SIGKILL) != 0; });
        row("ending", 50, "the worker process ended on it with status 3", [](int) -> bool { _exit(3); });
        row("hanging", 150, "it took longer than 2 s", [](int) { return usleep(9'000'000) != 0; });
        row("never silent", 150, "it took longer than 2 s", [](int) {
            for (;;)
                slotInUse->answer(WorkerSlot::Again, {});
            return true;
        });
        row("no worker", 1, "none can be made", nullptr);
        row("corrupted", 50, killed, [](int piece) {
            waitUntilHeard(); // else it spoils what it told of other pieces as well
            std::memset(static_cast<void*>(slotInUse), piece, sizeof *slotInUse);
            return raise(SIGKILL) != 0;
        });
        row("noting", 50, killed + ", noted", [](int) {
            slotInUse->note(", noted");
            return raise(SIGKILL) != 0;
        });
        row("out of memory in a destructor", 50, "the document needs more memory than there is",
            [](int) noexcept { return runOutOfMemory(); });
        if (!sanitized)
            row("taking memory as stacks", 50, "the document needs more memory than there is",
                [](int) { return takesMemoryAsStack() || runOutOfMemory(); });
        // The program is busy with piece 100 for longer than a worker may take, which may not be ended for
        // it.
        row("busy program", 1, "did it", [](int piece) {
            return piece >= 100 && piece < 110 &&
                   usleep(static_cast<useconds_t>(250'000 + piece % 7 * 20'000)) != 0;
        });
    }

    void endsEveryPieceOnce()
    {
        const auto [each, end, habit] = Rows<unsigned, std::string, Habit>::current();
        // What is not about time has plenty of it, on a busy machine too.
        const bool timed = end.find("took longer") != std::string::npos || each == 1;
        const int limit = timed ? 2 : 60;
        for (const int workers : {1, 3}) {
            const auto make = [&, each = each, habit = habit] {
                return habit ? std::make_unique<FakeWorker>([=](int piece) {
                    return static_cast<unsigned>(piece + 1) % each == 0 && habit(piece);
                })
                             : throw std::runtime_error("none can be made");
            };
            std::vector<std::string> ends(pieces);
            for (std::atomic<bool>& piece : *heard)
                piece = false;
            const auto done = [&, each = each](std::size_t piece, const WorkOutcome& outcome) {
                (*heard)[piece] = true;
                ends[piece] += outcome.answer.substr(0, outcome.answer.find_last_not_of(' ') + 1) +
                               outcome.failure.text + outcome.note;
                if (each == 1 && piece == 100)
                    usleep(2'300'000);
            };
            RunControl control;
            Cell cell(Sandbox::Default);
            WorkerPool({workers, limit, 1024}, make, cell).run(ends.size(), done, control);
            for (std::size_t piece = 0; piece < ends.size(); ++piece)
                QCOMPARE(QByteArray::fromStdString(ends[piece]),
                         QByteArray::fromStdString((piece + 1) % each == 0 ? end : "did it"));
        }
    }
};

QTEST_GUILESS_MAIN(TestWorkerPool)
#include "TestWorkerPool.moc"
