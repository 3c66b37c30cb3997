#include "host/workers/StopSignal.h"
#include "host/workers/WorkerPool.h"
#include "support/Rows.h"

#include <unistd.h>

#include <csignal>

using namespace host;
using Habit = std::function<bool(int)>; // works at a piece, and tells whether the worker is worn out then

struct FakeWorker : Worker
{
    explicit FakeWorker(Habit habit) : m_habit(std::move(habit)) {}
    Answer answer(std::size_t piece, WorkerSlot&) override { return {"did it", m_habit(int(piece))}; }
    Habit m_habit;
};

class TestWorkerPool : public QObject
{
    Q_OBJECT

private slots:
    void endsEveryPieceOnce_data()
    {
        const Rows<unsigned, std::string, Habit> row; // how each so-manieth piece ends; the others are quick
        row("slow", 50, "did it", [](int) { return usleep(20'000) != 0; });
        row("wearing", 20, "did it", [](int) { return true; });
        row("refused", 50, "not this", [](int) -> bool { throw std::runtime_error("not this"); });
        row("crashing", 50, "the worker process crashed on it: Killed",
            [](int) { return raise(SIGKILL) != 0; });
        row("ending", 50, "the worker process ended on it with status 3", [](int) -> bool { _exit(3); });
        row("hanging", 100, "it took longer than 1 s", [](int) { return usleep(9'000'000) != 0; });
        row("no worker", 1, "none can be made", nullptr);
        // What a worker has in reserve lasts for longer than the program is busy with piece 100.
        row("busy program", 1, "did it", [](int piece) {
            return piece >= 100 && piece < 110 && usleep(250'000 + piece % 7 * 20'000) != 0;
        });
    }

    void endsEveryPieceOnce()
    {
        const auto [each, end, habit] = Rows<unsigned, std::string, Habit>::current();
        for (const int workers : {1, 3}) {
            const auto make = [&, each = each, habit = habit] {
                return habit ? std::make_unique<FakeWorker>(
                                   [=](int piece) { return (piece + 1) % each == 0 && habit(piece); })
                             : throw std::runtime_error("none can be made");
            };
            std::vector<std::string> ends(200);
            const auto done = [&, each = each](std::size_t piece, const WorkOutcome& outcome) {
                ends[piece] += outcome.text;
                usleep(each == 1 && piece == 100 ? 1'300'000 : 0);
            };
            StopSignal stop;
            WorkerPool({workers, 1, 1024}, make).run(ends.size(), done, stop);
            for (std::size_t piece = 0; piece < ends.size(); ++piece)
                QCOMPARE(ends[piece], (piece + 1) % each == 0 ? end : "did it");
        }
    }
};

QTEST_GUILESS_MAIN(TestWorkerPool)
#include "TestWorkerPool.moc"
