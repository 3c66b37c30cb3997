#pragma once

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

/// Stores favourites and steps through the stored ones of a tool, newest first.
///
/// Made for one use: the files are listed once, at construction. GUI thread only.
class CActionHistoryAPI
{
public:
    /// Lists the files whose names begin with `name`, in whatever letter case.
    explicit CActionHistoryAPI(QString name);

    /// Writes the favourite that is named by the map's "CollectionName", in place of an earlier one.
    /// \param icon stored at 42 x 42 pixels at most.
    /// \returns 0, also when the file cannot be written; 1 when an exception was caught, and then the earlier
    ///     favourite stays.
    int SaveSettingsToHistory(QMap<QString, QVariant>* prefs, QIcon* icon);

    /// Moves the cursor, which starts before the newest file, by `step` files back in time and reads the file
    /// there.
    /// \returns the settings, which the caller owns; null outside the list, where the cursor stays all the
    ///     same, and for a file without settings.
    QMap<QString, QVariant>* LoadSettingsFromHistory(int step);

private:
    QString m_Name;
    QList<QFileInfo> m_Files; // the oldest first
    QDir m_Dir;
    int m_nCurrent = -1; // 0 is the newest
};
