// The window with very many documents: how soon rows are there, what they cost, and how long it does not
// answer at the worst. bench_window FOLDER [DOCUMENTS]; the documents are made below the folder where
// they are missing.
#include "host/desktop/MainWindow.h"
#include "host/desktop/platform/Language.h"
#include "host/program/HostApplication.h"
#include "pdflibrary/ViewNumbers.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>

using namespace host;
using namespace host::desktop;
using State = RunMachine::State;

namespace {

/// Beats once a millisecond. The longest gap between two beats is how long the window did not answer; of it
/// counts, too, how long this thread has worked, since other work of the machine makes gaps of its own.
class Heart : public QObject
{
public:
    Heart()
    {
        m_clock.start();
        startTimer(1, Qt::PreciseTimer);
    }
    void tell(const char* phase)
    {
        std::printf("%-34s %5lld ms not answered at the worst, of which %lld ms worked\n", phase, m_gap,
                    m_work);
        m_gap = m_work = 0;
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        const long long now = worked();
        m_gap = std::max<long long>(m_gap, m_clock.restart());
        m_work = std::max(m_work, now - std::exchange(m_last, now));
    }

private:
    static long long worked()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return time.tv_sec * 1000LL + time.tv_nsec / 1000000;
    }

    QElapsedTimer m_clock;
    long long m_last = worked();
    long long m_gap = 0;
    long long m_work = 0;
};

long residentMebibytes()
{
    QFile status("/proc/self/status");
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("VmRSS:"))
                return line.simplified().split(' ').at(1).toLong() / 1024;
    return 0;
}

QByteArray document(int number)
{
    const QByteArray mode = number % 3 == 0 ? "/PageMode /UseOutlines" : "";
    const QByteArray objects[] = {"<< /Type /Catalog /Pages 2 0 R " + mode + " >>",
                                  "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                                  "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 200] >>",
                                  "<< /Title (Manual " + QByteArray::number(number * 7919 % 20011) + ") >>"};
    QByteArray bytes = "%PDF-1.4\n";
    QByteArray table = "xref\n0 5\n0000000000 65535 f \n";
    int object = 0;
    for (const QByteArray& each : objects) {
        table += QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
        bytes += QByteArray::number(++object) + " 0 obj\n" + each + "\nendobj\n";
    }
    return bytes + table + "trailer\n<< /Size 5 /Root 1 0 R /Info 4 0 R >>\nstartxref\n" +
           QByteArray::number(bytes.size()) + "\n%%EOF\n";
}

void makeDocuments(const QString& folder, int count)
{
    for (int number = 0; number < count; ++number) {
        const QString place = folder + "/part-" + QString::number(number / 500);
        QFile file(place + "/manual-" + QString::number(number) + ".pdf");
        if (file.exists())
            continue;
        if (!QDir().mkpath(place) || !file.open(QIODevice::WriteOnly) || file.write(document(number)) < 0) {
            std::perror(qPrintable(file.fileName()));
            std::exit(1);
        }
    }
}

bool until(const std::function<bool()>& is, qint64 seconds)
{
    QElapsedTimer clock;
    clock.start();
    while (!is() && clock.elapsed() < seconds * 1000)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return is();
}

void rest(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    until([&clock, milliseconds] { return clock.elapsed() >= milliseconds; }, 60);
}

void useList(MainWindow& window, Heart& heart)
{
    auto* list = window.findChild<QTableView*>("documents");
    for (int page = 0; page < 200; ++page) {
        list->verticalScrollBar()->setValue(page * list->verticalScrollBar()->maximum() / 200);
        QApplication::processEvents();
    }
    rest(50);
    heart.tell("scrolling, 200 steps");
    for (const Column column : {Column::Title, Column::Panel, Column::State, Column::Name}) {
        list->sortByColumn(static_cast<int>(column), Qt::DescendingOrder);
        rest(150);
    }
    heart.tell("sorting by four columns");
    window.workbench().order().select(window.workbench().order().shown(), 1);
    rest(400);
    heart.tell("selecting all");
    window.workbench().order().select({}, 0);
    rest(300);
    DocumentFilter filter;
    for (const char* word : {"m", "manual-1", "manual-19", ""}) {
        filter.setSearch(word);
        window.workbench().order().setFilter(filter);
        rest(300);
    }
    heart.tell("searching");
}

/// \returns whether that ended.
bool tryOut(Workbench& bench, Heart& heart)
{
    QElapsedTimer clock;
    clock.start();
    ChangeDraft draft;
    draft.set(ViewEntry::PageMode, pdflibrary::BookmarksPanel);
    bench.setDraft(draft);
    if (!until([&bench] { return bench.machine().state() == State::Ready; }, 300))
        return std::fprintf(stderr, "Trying out did not end\n"), false;
    std::printf("what would change is known after %lld ms: %d of %d\n", clock.elapsed(),
                bench.counts().willChange, bench.table().count());
    heart.tell("trying out");
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const std::unique_ptr<QCoreApplication> application = hostapplication::forWindows(argc, argv);
    if (argc < 2)
        return std::fprintf(stderr, "Usage: bench_window FOLDER [DOCUMENTS]\n"), 2;
    const int count = argc > 2 ? std::atoi(argv[2]) : 20000;
    const QString folder = QDir(argv[1]).absolutePath();
    language::choose();
    makeDocuments(folder + "/documents", count);
    const QTemporaryDir own;
    MainWindow window({QUINTAR_PROGRAM,
                       own.filePath("runs"),
                       own.filePath("sessions"),
                       own.filePath("window.ini"),
                       own.filePath("views"),
                       {}});
    window.show();
    rest(200);
    const long before = residentMebibytes();
    Heart heart;
    QElapsedTimer clock;
    clock.start();
    window.begin({QFile::encodeName(folder + "/documents")});
    Workbench& bench = window.workbench();
    until([&bench] { return bench.table().count() > 0; }, 60);
    std::printf("first row after %lld ms\n", clock.elapsed());
    if (!until([&bench] { return bench.machine().state() == State::Listed; }, 300))
        return std::fprintf(stderr, "Reading did not end\n"), 1;
    std::printf("%d rows read after %lld ms, %ld MiB more than the empty window's %ld\n",
                bench.table().count(), clock.elapsed(), residentMebibytes() - before, before);
    heart.tell("filling");
    useList(window, heart);
    return tryOut(bench, heart) ? 0 : 1;
}
