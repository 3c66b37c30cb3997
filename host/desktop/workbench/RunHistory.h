#pragma once

#include <QAbstractTableModel>
#include <QDateTime>

#include <vector>

namespace host::desktop {

/// The runs that the user's folder of reports tells of, the newest first. Beside the reports of a run lies a
/// note of what it was; a run whose window has crashed has its reports alone.
class RunHistory : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { When, What, Where, HowMany, State, columnTotal };

    struct Run
    {
        QDateTime when;
        QString what;
        QString where;
        bool isInPlace = false;
        int changed = 0;
        bool isUndone = false;
        /// In the order in which they were written.
        QStringList reports;
        QString note;
    };

    explicit RunHistory(const QString& folder, QObject* parent = nullptr);

    /// Below $XDG_STATE_HOME.
    static QString userFolder();

    const QString& folder() const { return m_folder; }
    void reload();
    /// Writes a run down. \param earlier the note of a run that this one went on with,
    /// such as by trying once more what had failed: both are told as one, and undone
    /// together. \returns the note, and empty or why it could not be written.
    std::pair<QString, QString> add(const Run& run, const QString& earlier = {});
    /// \returns empty, or why it could not be kept.
    QString setUndone(const QString& note);

    const std::vector<Run>& runs() const { return m_runs; }
    /// -1 where there is none that can be undone.
    int newestUndoable() const;
    bool canUndo(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString textOf(const Run& run, int column) const;

    QString m_folder;
    std::vector<Run> m_runs;
};

} // namespace host::desktop
