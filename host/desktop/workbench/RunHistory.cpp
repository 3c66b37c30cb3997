#include "RunHistory.h"

#include "host/change/ViewJson.h"
#include "host/desktop/change/ChangeDraft.h"
#include "host/desktop/change/Destination.h"
#include "host/desktop/texts/PlainText.h"
#include "host/files/FileDescriptor.h"
#include "host/terminal/UsageError.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QSaveFile>
#include <QSet>

#include <algorithm>

#include <sys/file.h>

namespace host::desktop {

namespace {

const char timeFormat[] = "yyyy-MM-ddTHHmmss.zzzZ";
const qint64 largestNote = 1 << 20;
const int mostRuns = 1000;
const int youngSeconds = 3;

QDateTime timeOf(const QString& baseName)
{
    QDateTime time = QDateTime::fromString(baseName, timeFormat);
    time.setTimeSpec(Qt::UTC);
    return time;
}

RunHistory::Run fromNote(const QString& path)
{
    QFile file(path);
    RunHistory::Run run;
    run.note = path;
    if (!file.open(QIODevice::ReadOnly))
        return run;
    const QJsonObject note = QJsonDocument::fromJson(file.read(largestNote)).object();
    run.when = timeOf(QFileInfo(path).completeBaseName());
    run.what = note.value("what").toString();
    run.where = note.value("where").toString();
    run.isInPlace = note.value("inPlace").toBool();
    run.changed = note.value("changed").toInt();
    run.isUndone = note.value("undone").toBool();
    for (const auto& report : note.value("reports").toArray())
        run.reports += QFileInfo(path).dir().filePath(report.toString());
    return run;
}

QJsonObject toNote(const RunHistory::Run& run)
{
    QJsonArray reports;
    for (const QString& report : run.reports)
        reports.append(QFileInfo(report).fileName());
    return {{"what", run.what},       {"where", run.where},     {"inPlace", run.isInPlace},
            {"changed", run.changed}, {"undone", run.isUndone}, {"reports", reports}};
}

QString writeNote(const RunHistory::Run& run)
{
    QSaveFile file(run.note);
    const QByteArray bytes = QJsonDocument(toNote(run)).toJson();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return RunHistory::tr("The run could not be written down in %1: %2").arg(run.note, file.errorString());
}

/// A child of another window may be writing it. One that has just been begun is not touched, since it may be about to
/// be locked.
bool isUnderWay(const QString& report)
{
    if (QFileInfo(report).lastModified().secsTo(QDateTime::currentDateTime()) < youngSeconds)
        return true;
    const FileDescriptor file(open(QFile::encodeName(report).constData(), O_RDONLY | O_CLOEXEC));
    return file.get() >= 0 && flock(file.get(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

/// Empty for settings that are no view, and for what no run has written.
QString changeIn(const QJsonObject& start)
{
    ChangeDraft draft;
    try {
        draft.setView(viewjson::parse(start.value("change").toObject()));
    } catch (const UsageError&) { // the report of another version
    }
    return draft.inWords();
}

/// A report that no note tells of: its window has crashed. Its first line says what the run was to do.
RunHistory::Run fromReport(const QString& path)
{
    RunHistory::Run run;
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    const QJsonObject start =
        QJsonDocument::fromJson(isOpen ? file.readLine(largestNote) : QByteArray()).object();
    const QString what = changeIn(start);
    run.when = timeOf(QFileInfo(path).completeBaseName());
    run.what = what.isEmpty() ? RunHistory::tr("A run that was broken off")
                              : RunHistory::tr("Broken off: %1").arg(what);
    run.isInPlace = start.value("inPlace").toBool(true);
    run.where = run.isInPlace ? Destination().inWords() : QString();
    run.changed = -1;
    run.reports = QStringList{path};
    run.note = QString(path).replace(".jsonl", ".json");
    return run;
}

} // namespace

RunHistory::RunHistory(const QString& folder, QObject* parent) : QAbstractTableModel(parent), m_folder(folder)
{
    reload();
}

QString RunHistory::userFolder()
{
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    return (state.startsWith('/') ? state : QDir::homePath() + "/.local/state") + "/quintar/runs";
}

void RunHistory::reload()
{
    beginResetModel();
    m_runs.clear();
    QSet<QString> told;
    const QDir folder(m_folder);
    for (const QString& name : folder.entryList({"*.json"}, QDir::Files, QDir::Name)) {
        m_runs.push_back(fromNote(folder.filePath(name)));
        for (const QString& report : m_runs.back().reports)
            told.insert(report);
    }
    for (const QString& name : folder.entryList({"*.jsonl"}, QDir::Files, QDir::Name))
        if (!told.contains(folder.filePath(name)) && !isUnderWay(folder.filePath(name)))
            m_runs.push_back(fromReport(folder.filePath(name)));
    std::sort(m_runs.begin(), m_runs.end(),
              [](const Run& left, const Run& right) { return left.when > right.when; });
    if (m_runs.size() > mostRuns)
        m_runs.resize(mostRuns);
    endResetModel();
}

std::pair<QString, QString> RunHistory::add(const Run& run, const QString& earlier)
{
    if (run.reports.isEmpty())
        return {};
    Run told = run;
    told.note = QString(run.reports.first()).replace(".jsonl", ".json");
    for (const Run& each : m_runs)
        if (!earlier.isEmpty() && each.note == earlier && !each.isUndone) {
            told.note = earlier;
            told.reports = each.reports + run.reports;
            told.changed = each.changed < 0 ? -1 : run.changed;
        }
    const QString problem = writeNote(told);
    reload();
    return {told.note, problem};
}

QString RunHistory::setUndone(const QString& note)
{
    const auto found =
        std::find_if(m_runs.begin(), m_runs.end(), [&note](const Run& run) { return run.note == note; });
    if (found == m_runs.end())
        return {};
    found->isUndone = true;
    const int row = static_cast<int>(found - m_runs.begin());
    emit dataChanged(index(row, 0), index(row, columnTotal - 1));
    return writeNote(*found);
}

int RunHistory::newestUndoable() const
{
    for (int row = 0; row < rowCount(); ++row)
        if (canUndo(row))
            return row;
    return -1;
}

bool RunHistory::canUndo(int row) const
{
    if (row < 0 || row >= rowCount())
        return false;
    const Run& run = m_runs[static_cast<std::size_t>(row)];
    return run.isInPlace && !run.isUndone && run.changed != 0 && !run.reports.isEmpty();
}

int RunHistory::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_runs.size());
}

int RunHistory::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columnTotal;
}

QVariant RunHistory::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QString text = textOf(m_runs.at(static_cast<std::size_t>(index.row())), index.column());
    return role == Qt::ToolTipRole ? plaintext::tip(text) : text;
}

QString RunHistory::textOf(const Run& run, int column) const
{
    switch (column) {
    case When:
        return QLocale().toString(run.when.toLocalTime(), QLocale::ShortFormat);
    case What:
        return run.what;
    case Where:
        return run.where;
    case HowMany:
        return run.changed < 0 ? tr("not known")
               : run.isInPlace ? tr("%Ln changed", "", run.changed)
                               : tr("%Ln written", "", run.changed);
    case State:
        return run.isUndone       ? tr("undone")
               : !run.isInPlace   ? tr("documents are as they were")
               : run.changed == 0 ? tr("nothing to undo")
                                  : tr("can be undone");
    default:
        return {};
    }
}

QVariant RunHistory::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString titles[] = {tr("When"), tr("What"), tr("Where to"), tr("How Many"), tr("Undo")};
    return titles[section];
}

} // namespace host::desktop
