#include "host/report/Progress.h"

#include <QtTest>

using namespace host;

class TestProgress : public QObject
{
    Q_OBJECT

private slots:
    void drawsProgress()
    {
        QCOMPARE(Progress::lineFor(0, 0, 4, 0, 80), std::string("[........................] 0/4"));
        QCOMPARE(Progress::lineFor(2, 1, 4, 1, 80),
                 std::string("[############............] 2/4, 1 failed  2.0/s  0:01 left"));
        QCOMPARE(Progress::lineFor(500, 0, 100000, 10, 80),
                 std::string("[........................] 500/100000  50/s  33:10 left"));
        QCOMPARE(Progress::lineFor(0, 0, 0, 0, 80), std::string("[########################] 0/0"));
        QCOMPARE(Progress::lineFor(1, 0, 2, 1, 10), std::string("[#########"));
    }
};

QTEST_GUILESS_MAIN(TestProgress)
#include "TestProgress.moc"
