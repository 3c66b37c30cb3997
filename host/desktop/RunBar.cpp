#include "RunBar.h"

#include "host/desktop/look/Drawings.h"
#include "host/desktop/texts/PlainText.h"
#include "host/desktop/texts/ReasonTexts.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLocale>

#include <algorithm>
#include <vector>

namespace host::desktop {

using Command = RunMachine::Command;
using State = RunMachine::State;

namespace {

const int announceMilliseconds = 5000;
/// What is said stays that long at least, and good news no longer.
const int sayMilliseconds = 6000;
const int estimateMilliseconds = 3000;

} // namespace

RunBar::RunBar(Workbench& workbench, QWidget* parent)
    : QWidget(parent), m_workbench(workbench), m_sign(new QLabel(this)), m_text(new ElidedLabel(this)),
      m_progress(new QProgressBar(this)),
      m_why(button(tr("Show Wh&y"), tr("Shows the documents that failed or cannot be changed"))),
      m_results(button(tr("Show Res&ults"), tr("Opens the folder that the run has written into"))),
      m_undo(button(tr("&Undo This Run…"), tr("Gives each document back as it was before the run"))),
      m_again(button(tr("Tr&y Failed Again"), tr("Runs once more over what failed or was not done"))),
      m_save(button(tr("Save Repor&t…"), tr("Keeps what became of each document in a file"))),
      m_pause(button(tr("Pa&use"), tr("Begins no further document until it goes on"))),
      m_stop(button(tr("S&top"), tr("Finishes the documents that are being worked on, and begins no more")))
{
    nameParts();
    m_text->setAccessibleName(tr("Status"));
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_progress->setAccessibleName(tr("Progress"));
    m_progress->setTextVisible(false);
    m_progress->setFixedWidth(180);
    layOutParts();
    connectParts();
    show();
}

void RunBar::nameParts()
{
    const std::pair<QWidget*, const char*> names[] = {
        {m_text, "status"},           {m_progress, "progress"},  {m_why, "whyButton"},
        {m_results, "resultsButton"}, {m_undo, "undoRunButton"}, {m_again, "tryAgainButton"},
        {m_save, "saveReportButton"}, {m_pause, "pauseButton"},  {m_stop, "stopButton"},
    };
    for (const auto& [widget, name] : names)
        widget->setObjectName(name);
}

void RunBar::layOutParts()
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 6, 12, 6);
    row->setSpacing(8);
    row->addWidget(m_sign);
    row->addWidget(m_text, 1);
    row->addWidget(m_progress);
    for (QPushButton* each : {m_why, m_again, m_save, m_results, m_undo, m_pause, m_stop})
        row->addWidget(each);
    m_text->setMinimumHeight(2 *
                             m_text->fontMetrics().lineSpacing()); // counts and reasons of a run in two lines
    setMinimumHeight(m_stop->sizeHint().height() + 14);
}

void RunBar::connectParts()
{
    connect(m_why, &QPushButton::clicked, this, [this] { emit whyWanted(why()); });
    connect(m_results, &QPushButton::clicked, this, &RunBar::resultsWanted);
    connect(m_undo, &QPushButton::clicked, this, &RunBar::undoWanted);
    connect(m_save, &QPushButton::clicked, this, &RunBar::saveWanted);
    connect(m_again, &QPushButton::clicked, &m_workbench, &Workbench::tryAgain);
    connect(m_stop, &QPushButton::clicked, &m_workbench, &Workbench::stop);
    connect(m_pause, &QPushButton::clicked, this, [this] {
        m_workbench.machine().state() == State::Paused ? m_workbench.resume() : m_workbench.pause();
    });
    connect(&m_workbench, &Workbench::said, this, &RunBar::say);
    connect(&m_workbench, &Workbench::failed, this, &RunBar::complain);
    m_unsay.setSingleShot(true);
    connect(&m_unsay, &QTimer::timeout, this, [this] {
        if (!m_isTrouble)
            m_said.clear();
        show();
    });
    connect(&m_workbench, &Workbench::draftChanged, this, [this] {
        if (m_isTrouble) // which may have been with what is changed now
            m_said.clear();
        show();
    });
    connect(&m_workbench, &Workbench::countsChanged, this, &RunBar::show);
    connect(&m_workbench, &Workbench::progressed, this, &RunBar::showProgress);
    connect(&m_workbench.machine(), &RunMachine::changed, this, [this] {
        if (m_workbench.machine().isWriting() || !m_unsay.isActive())
            m_said.clear();
        m_running.start();
        show();
    });
}

QPushButton* RunBar::button(const QString& text, const QString& help)
{
    auto* made = new QPushButton(text, this);
    made->setToolTip(help);
    made->setWhatsThis(help);
    made->setAutoDefault(false);
    return made;
}

void RunBar::tell(const QString& text, bool isTrouble)
{
    m_said = text.simplified();
    m_isTrouble = isTrouble;
    m_unsay.start(sayMilliseconds);
    show();
    announce(m_said);
}

/// Those that the count of failures is about.
DocumentFilter::Kind RunBar::why() const
{
    return m_workbench.machine().state() == State::Results ? DocumentFilter::Kind::Failed
                                                           : DocumentFilter::Kind::Trouble;
}

void RunBar::show()
{
    const State state = m_workbench.machine().state();
    const Workbench::Counts counts = m_workbench.counts();
    const bool areResults = state == State::Results;
    m_text->setText(textToShow());
    m_text->setToolTip(plaintext::tip(m_text->text()));
    m_text->setAccessibleDescription(m_text->text());
    m_sign->setPixmap(drawings::icon(drawings::Sign::Warning, palette()).pixmap(16, 16));
    m_why->setText(areResults ? tr("Show %Ln Fa&iled", "", counts.failed) : tr("Show Wh&y"));
    m_pause->setText(state == State::Paused ? tr("Go &On") : tr("Pa&use"));
    showProgress(); // which may have become idle
    if (areResults)
        announce(m_text->text());
}

/// What goes makes room before anything comes: the window would grow for both together.
void RunBar::showParts()
{
    const State state = m_workbench.machine().state();
    const Workbench::Counts counts = m_workbench.counts();
    const bool areResults = state == State::Results;
    const bool isWorking = m_workbench.task() != nullptr;
    const int cannot = areResults ? counts.failed : state == State::Ready ? counts.cannot : 0;
    const std::pair<QWidget*, bool> parts[] = {
        {m_sign, !m_said.isEmpty() && m_isTrouble},
        {m_why, cannot > 0 && m_workbench.order().filter().kind() != why()},
        {m_results, !m_workbench.resultFolder().isEmpty()},
        {m_undo, areResults && counts.changed > 0 && m_workbench.undoableRun() == 0},
        {m_again, areResults && counts.failed + counts.notDone > 0},
        {m_save, areResults},
        {m_pause, state == State::Running || state == State::Paused},
        {m_progress, isWorking},
        {m_stop, isWorking && m_workbench.machine().isEnabled(Command::Stop)},
    };
    for (const bool comes : {false, true})
        for (const auto& [part, isShown] : parts)
            if (isShown == comes)
                part->setVisible(comes);
}

void RunBar::showProgress()
{
    const DocumentTask* task = m_workbench.task();
    showParts();
    if (task == nullptr)
        return;
    m_progress->setMaximum(task->total());
    m_progress->setValue(task->done());
    m_text->setText(textToShow());
    if (m_workbench.machine().isWriting() && m_announced.hasExpired(announceMilliseconds))
        announce(m_text->text());
}

/// What went wrong stands before the counts of a run, which has ended all the same.
QString RunBar::textToShow() const
{
    if (m_said.isEmpty())
        return countsInWords();
    const bool hasBoth = m_isTrouble && m_workbench.machine().state() == State::Results;
    return hasBoth ? m_said + "  ·  " + countsInWords() : m_said;
}

QString RunBar::countsInWords() const
{
    const Workbench::Counts counts = m_workbench.counts();
    const DocumentTask* task = m_workbench.task();
    const QString done =
        task == nullptr
            ? QString()
            : tr("%1 of %2").arg(QLocale().toString(task->done()), QLocale().toString(task->total()));
    switch (m_workbench.machine().state()) {
    case State::Empty:
        return tr("The list is empty.");
    case State::Reading:
        return tr("Reading… %Ln document(s) so far", "", m_workbench.table().count());
    case State::Checking: {
        return m_workbench.problem().isEmpty() ? tr("Finding out what would change… %1").arg(done)
                                               : m_workbench.problem();
    }
    case State::Ready:
        return plannedInWords(counts);
    case State::Running:
        return tr("Changing… %1").arg(done) + timeLeft();
    case State::Paused:
        return tr("Paused at %1").arg(done);
    case State::Stopping:
        return tr("Stopping… documents that are being worked on are finished");
    case State::Undoing:
        return task != nullptr && task->total() > 0 ? tr("Undoing… %1").arg(done) : tr("Undoing…");
    case State::Results:
        return doneInWords(counts);
    case State::Listed:
        break;
    }
    return listedInWords();
}

/// Trying out may have been stopped.
QString RunBar::listedInWords() const
{
    if (m_workbench.draft().isEmpty())
        return tr("Say on the right what is to change.");
    if (m_workbench.targets().isEmpty())
        return tr("No document is shown that the change could be for.");
    return tr("What would change is not known. Read the documents again (F5) to find out.");
}

/// The reasons of most documents first, in brackets.
QString RunBar::reasonsInWords(const Workbench::Counts& counts)
{
    QMap<QString, int> brief;
    for (auto each = counts.reasons.constBegin(); each != counts.reasons.constEnd(); ++each)
        brief[reasontexts::briefly(each.key())] += each.value();
    std::vector<std::pair<int, QString>> parts;
    for (auto each = brief.constBegin(); each != brief.constEnd(); ++each)
        parts.emplace_back(-each.value(), each.key());
    std::sort(parts.begin(), parts.end());
    QStringList texts;
    for (const auto& [count, reason] : parts)
        //: A number of documents, and why they cannot be changed: "4 signed"
        texts += tr("%1 %2").arg(QLocale().toString(-count), reason);
    return texts.isEmpty() ? QString() : " (" + texts.join(tr(", ")) + ")";
}

QString RunBar::plannedInWords(const Workbench::Counts& counts)
{
    QString text =
        counts.willChange == 0 ? tr("Nothing would change") : tr("%Ln will change", "", counts.willChange);
    if (counts.asAsked > 0)
        text += "  ·  " + tr("%Ln open so already", "", counts.asAsked);
    if (counts.cannot > 0)
        text += "  ·  " + tr("%Ln cannot be changed", "", counts.cannot) + reasonsInWords(counts);
    return text;
}

QString RunBar::doneInWords(const Workbench::Counts& counts)
{
    QStringList texts;
    if (counts.written + counts.copied == 0)
        texts += tr("%Ln changed", "", counts.changed);
    else
        texts += tr("%Ln written", "", counts.written);
    if (counts.copied > 0)
        texts += tr("%Ln copied as they were", "", counts.copied);
    if (counts.unchanged > 0)
        texts += tr("%Ln as they were", "", counts.unchanged);
    if (counts.failed > 0)
        texts += tr("%Ln failed", "", counts.failed) + reasonsInWords(counts);
    if (counts.notDone > 0)
        texts += tr("%Ln not done", "", counts.notDone);
    return texts.join("  ·  ");
}

QString RunBar::timeLeft() const
{
    const DocumentTask* task = m_workbench.task();
    if (task == nullptr || task->done() == 0 || m_running.elapsed() < estimateMilliseconds)
        return {};
    const double each = double(m_running.elapsed()) / task->done();
    const int seconds = static_cast<int>(each * (task->total() - task->done()) / 1000) + 1;
    return "  ·  " + (seconds < 90 ? tr("about %Ln second(s) left", "", seconds)
                                   : tr("about %Ln minute(s) left", "", (seconds + 30) / 60));
}

/// Screen readers hear of it without the focus being there.
void RunBar::announce(const QString& text)
{
    m_announced.start();
    m_text->setAccessibleDescription(text);
    QAccessibleEvent event(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace host::desktop
