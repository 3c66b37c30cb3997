#pragma once

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

/// Stores favourites and steps through the stored ones of a tool, newest first. A favourite is one file in
/// the collections folder (CUtils::GetCollectionsFolder): a settings map with an icon.
///
/// Made for one use: the files are listed once, at construction, and what is stored later is not among them.
/// GUI thread only. Nothing thrown leaves it; failures show in the results.
class CActionHistoryAPI
{
public:
    /// Lists the files whose names begin with `name`, in whatever letter case. None where the folder is
    /// missing.
    /// \param name the tool's, as the object name of its dialog.
    explicit CActionHistoryAPI(QString name);

    /// Writes the favourite that is named by the map's "CollectionName", in place of an earlier one.
    /// \param prefs the whole map is stored; not changed.
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
