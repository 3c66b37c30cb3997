#include "ChildRun.h"

#include "EventReader.h"

#include <QElapsedTimer>
#include <QRegularExpression>

namespace host::desktop {

namespace {

const int tickMilliseconds = 50;
/// While lines wait: most of the time is left to the window.
const int busyTickMilliseconds = 16;
/// Of each tick, so that the window answers.
const int readingMilliseconds = 8;
const int killMilliseconds = 10000;
const int mostWaiting = 64 << 20;
const int mostErrors = 4096;

/// Kept until it has ended by itself or is killed; nobody hears it any more.
void abandon(QProcess* process)
{
    process->disconnect();
    process->setParent(nullptr);
    if (process->state() == QProcess::NotRunning)
        return process->deleteLater();
    QObject::connect(process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), process,
                     &QObject::deleteLater);
    process->write("stop\n");
    process->closeWriteChannel();
    QTimer::singleShot(killMilliseconds, process, &QProcess::kill);
}

} // namespace

ChildRun::ChildRun(QObject* parent) : QObject(parent), m_process(new ChildProcess(this))
{
    m_tick.setInterval(tickMilliseconds);
    connect(&m_tick, &QTimer::timeout, this, &ChildRun::tick);
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &ChildRun::end);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        m_isBroken = true;
        m_ending.words =
            tr("%1 could not be started: %2").arg(m_process->program(), m_process->errorString());
        end();
    });
}

ChildRun::~ChildRun()
{
    abandon(m_process);
}

void ChildRun::start(const QString& program, const QStringList& arguments, const std::array<int, 2>& handed)
{
    m_process->hand(handed);
    m_process->start(program, arguments);
    m_tick.start();
}

void ChildRun::stop()
{
    m_ending.wasStopped = true;
    order("stop");
    QTimer::singleShot(killMilliseconds, m_process, &QProcess::kill);
}

void ChildRun::order(const char* word)
{
    m_process->write(QByteArray(word) + "\n");
}

void ChildRun::tick()
{
    m_lines.add(m_process->readAllStandardOutput());
    keepErrors();
    const bool isAllTaken = take();
    if (!m_isBroken && (m_lines.isTooLong() || m_lines.waiting() > mostWaiting))
        breakOff(tr("the program said more than can be understood"));
    if (m_isOver && (isAllTaken || m_isBroken))
        return finish();
    if (const int next = isAllTaken ? tickMilliseconds : busyTickMilliseconds; next != m_tick.interval())
        m_tick.setInterval(next);
}

/// Works no longer than the window can wait. \returns whether all whole lines are taken.
bool ChildRun::take()
{
    QElapsedTimer clock;
    clock.start();
    Events events;
    bool isAllTaken = false;
    while (!m_isBroken && clock.elapsed() < readingMilliseconds) {
        const std::optional<QByteArray> line = m_lines.next();
        isAllTaken = !line;
        if (isAllTaken)
            break;
        Event event = eventreader::read(*line);
        if (const auto* bad = std::get_if<BadLine>(&event))
            breakOff(bad->reason);
        else if (const auto* last = std::get_if<EndEvent>(&event)) {
            m_ending.isComplete = true;
            m_ending.counts = last->counts;
            m_ending.wasStopped = m_ending.wasStopped || last->wasStopped;
        }
        events.append(std::move(event));
    }
    if (!events.isEmpty())
        emit came(events);
    return isAllTaken;
}

void ChildRun::keepErrors()
{
    m_errors = (m_errors + m_process->readAllStandardError()).right(mostErrors);
}

void ChildRun::breakOff(const QString& reason)
{
    m_isBroken = true;
    m_ending.words = reason;
    m_process->kill();
}

/// What it said, without the name that each line begins with on a terminal, where several programs speak.
QString ChildRun::errorsInWords() const
{
    static const QRegularExpression name("^quintar: (note: )?", QRegularExpression::MultilineOption);
    return QString::fromLocal8Bit(m_errors).remove(name).trimmed();
}

/// What it said last may still wait to be read.
void ChildRun::end()
{
    m_isOver = true;
    m_tick.start(0);
}

void ChildRun::finish()
{
    m_tick.stop();
    m_ending.isComplete = m_ending.isComplete && !m_isBroken;
    if (m_ending.words.isEmpty())
        m_ending.words = errorsInWords();
    if (m_ending.words.isEmpty() && !m_ending.isComplete && !m_ending.wasStopped)
        m_ending.words = m_process->exitStatus() == QProcess::CrashExit
                             ? tr("%1 crashed").arg(m_process->program())
                             : tr("%1 ended too early, with exit status %2")
                                   .arg(m_process->program(), QString::number(m_process->exitCode()));
    emit ended(m_ending);
}

} // namespace host::desktop
