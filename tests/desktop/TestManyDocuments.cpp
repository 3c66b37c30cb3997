#include "host/cell/ProcessLimits.h"
#include "host/desktop/workbench/Workbench.h"
#include "support/program/FakeQuintar.h"

#include <QElapsedTimer>
#include <QtTest>

#include <ctime>
#include <fstream>
#include <limits>

using namespace host::desktop;

namespace {

const int documents = 20000;
/// What is promised, in milliseconds, with room for a build without optimisation. A sanitizer makes any time of it.
const qint64 longestStall = host::sanitized ? std::numeric_limits<qint64>::max() : 250;

/// Beats once a millisecond; its longest gap is how long a window would not have answered. It counts the time
/// that this thread has worked, so that other work of the machine is no stall.
class Heart : public QObject
{
public:
    Heart() { startTimer(1, Qt::PreciseTimer); }
    qint64 takeLongest() { return std::exchange(m_longest, 0); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        const qint64 now = worked();
        m_longest = std::max(m_longest, now - std::exchange(m_last, now));
    }

private:
    static qint64 worked()
    {
        timespec time;
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return time.tv_sec * 1000 + time.tv_nsec / 1000000;
    }

    qint64 m_last = worked();
    qint64 m_longest = 0;
};

long residentKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmRSS:") {
            long size = 0;
            status >> size;
            return size;
        }
    return 0;
}

/// What "quintar show" says of the documents, which lie in 97 folders.
QByteArray shown()
{
    QByteArray stream = FakeQuintar::start();
    for (int number = 0; number < documents; ++number)
        stream += FakeQuintar::found(number, "/manuals/part-" + QByteArray::number(number % 97) + "/manual-" +
                                                 QByteArray::number((number * 7919) % documents) + ".pdf");
    for (int number = 0; number < documents; ++number)
        stream += FakeQuintar::document(number, number % 3 == 0 ? ",\"pageLayout\":\"OneColumn\"" : "");
    return stream + FakeQuintar::end();
}

} // namespace

class TestManyDocuments : public QObject
{
    Q_OBJECT

private slots:
    void answersAllTheTime()
    {
        const FakeQuintar fake;
        fake.plays("show", shown());
        const long before = residentKilobytes();
        Workbench bench(FakeQuintar::program(), QDir::tempPath());
        Heart heart;
        QElapsedTimer clock;
        clock.start();
        bench.add({"/manuals"});
        QTRY_VERIFY_WITH_TIMEOUT(bench.table().count() > 0, 30000);
        qInfo("first row after %lld ms", clock.elapsed());
        QTRY_COMPARE_WITH_TIMEOUT(bench.machine().state(), RunMachine::State::Listed, 60000);
        qInfo("all after %lld ms, %ld MiB more", clock.elapsed(), (residentKilobytes() - before) / 1024);
        QCOMPARE(bench.order().rowCount(), documents);
        check("filling", heart);
        bench.order().select(bench.order().shown(), 1);
        QTest::qWait(100);
        check("selecting all", heart);
        for (const Column column : {Column::Title, Column::Layout, Column::Pages, Column::Name})
            bench.order().sort(int(column), Qt::DescendingOrder), QTest::qWait(60);
        check("sorting", heart);
        DocumentFilter filter;
        filter.setSearch("manual-1");
        bench.order().setFilter(filter);
        QTest::qWait(100);
        bench.order().setFilter(DocumentFilter());
        QTest::qWait(100);
        check("filtering", heart);
        bench.remove(bench.order().shown().mid(0, 5000));
        QTest::qWait(100);
        bench.undoEdit();
        QTest::qWait(100);
        check("removing and undoing", heart);
        QCOMPARE(bench.order().rowCount(), documents);
    }

private:
    static void check(const char* what, Heart& heart)
    {
        const qint64 stall = heart.takeLongest();
        qInfo("%s: longest stall %lld ms", what, stall);
        QVERIFY2(stall < longestStall, what);
    }
};

QTEST_GUILESS_MAIN(TestManyDocuments)
#include "TestManyDocuments.moc"
